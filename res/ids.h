#pragma once

// The numbers of templates, menus, commands, controls and icons. They are a public interface: other
// programs drive this one by them, so a number is never changed and never given a second meaning within
// its window. The resource script, the code and the tests all read them here.

// Dialog templates.
#define IDD_ABOUT 100
#define IDD_MAIN_WINDOW 102
#define IDD_LOG_SETTINGS 104
#define IDD_ERROR_BOX 113
#define IDD_WARNING_BOX 118

// Menus.
#define IDR_MAIN_MENU 186

// Icons.
#define IDI_DELETE_ITEM 136
#define IDI_WARNING_BOX 137
#define IDI_ERROR_MODE 139
#define IDI_SAVE 159
#define IDI_LOG_PATH 160
#define IDI_ADD_RULE 161
#define IDI_EDIT_RULE 162
#define IDI_DELETE_RULE 163
#define IDI_MAKE_FIRST 164
#define IDI_MOVE_UP 165
#define IDI_MOVE_DOWN 166
#define IDI_MAKE_LAST 167
#define IDI_ADD_ITEM 168
#define IDI_MAIN_WINDOW 171
#define IDI_ADD_PROFILE 190
#define IDI_DELETE_PROFILE 192
#define IDI_EDIT_PROFILE 195
#define IDI_EXPORT_RULES 198
#define IDI_IMPORT_RULES 199
#define IDI_REFUSAL 200
#define IDI_COPY_RULE 210
#define IDI_INFO_MODE 211

// Menu commands of the main window.
#define IDM_SAVE 57603
#define IDM_LOG_PATH 32787
#define IDM_EXIT 32788
#define IDM_ADD_PROFILE 32808
#define IDM_OPEN_PROFILE 32809
#define IDM_EDIT_PROFILE 32810
#define IDM_IMPORT_RULES 32811
#define IDM_EXPORT_RULES 32812
#define IDM_DELETE_PROFILE 32814
#define IDM_ADD_RULE 32815
#define IDM_EDIT_RULE 32816
#define IDM_DELETE_RULE 32817
#define IDM_MAKE_FIRST 32818
#define IDM_MOVE_UP 32819
#define IDM_MOVE_DOWN 32820
#define IDM_MAKE_LAST 32821
#define IDM_CONFIGURATIONS 32822
#define IDM_COPY_RULE 32828
// System menu command; the system keeps the low four bits for itself.
#define IDM_ABOUT 16

// Main window.
#define IDC_SAVE_BUTTON 1000
#define IDC_PROFILE_LIST 1001
#define IDC_SAVE_ICON_BUTTON 1021
#define IDC_LOG_PATH_BUTTON 1022
#define IDC_ADD_RULE_BUTTON 1023
#define IDC_EDIT_RULE_BUTTON 1024
#define IDC_DELETE_RULE_BUTTON 1025
#define IDC_MAKE_FIRST_BUTTON 1026
#define IDC_MOVE_UP_BUTTON 1027
#define IDC_MOVE_DOWN_BUTTON 1028
#define IDC_MAKE_LAST_BUTTON 1029
#define IDC_RULE_LIST 1030
#define IDC_ADD_PROFILE_BUTTON 1031
#define IDC_EDIT_PROFILE_BUTTON 1032
#define IDC_DELETE_PROFILE_BUTTON 1033
#define IDC_EXPORT_RULES_BUTTON 1034
#define IDC_IMPORT_RULES_BUTTON 1035
#define IDC_CONFIGURATIONS_BUTTON 1036
#define IDC_COPY_RULE_BUTTON 1037
#define IDC_PROFILE_CAPTION_EDIT 1041
#define IDC_RULE_LIST_CAPTION_EDIT 1042
#define IDC_OPEN_PROFILE_BUTTON 1053
#define IDC_SEARCH_EDIT 1079
#define IDC_SEARCH_LABEL 1120

// About box.
#define IDC_ABOUT_MAKER_TEXT 1096
#define IDC_ABOUT_PRODUCT_TEXT 1097
#define IDC_ABOUT_VERSION_TEXT 1114

// Log settings dialog.
#define IDC_LOG_FOLDER_BUTTON 1090
#define IDC_LOG_FOLDER_EDIT 1091
#define IDC_LOG_SIZE_LABEL 1132
#define IDC_LOG_SIZE_EDIT 1133

// Error box.
#define IDC_ERROR_BOX_TEXT 1112
#define IDC_ERROR_BOX_ICON 1113

// Warning box.
#define IDC_WARNING_BOX_EDIT 1128
