#include <gtest/gtest.h>

#include <vector>

#include "res/ids.h"

// The numbers by which other programs drive this one, typed a second time: whoever changes one in the header
// breaks those programs, and this test.

namespace {

TEST(Ids, TemplatesMenuAndIconsKeepTheirNumbers) {
    EXPECT_EQ((std::vector{IDD_ABOUT, IDD_MAIN_WINDOW, IDD_LOG_SETTINGS, IDD_ERROR_BOX, IDD_WARNING_BOX}),
              (std::vector{100, 102, 104, 113, 118}));
    EXPECT_EQ(IDR_MAIN_MENU, 186);
    EXPECT_EQ((std::vector{IDI_WARNING_BOX, IDI_ERROR_MODE, IDI_INFO_MODE, IDI_REFUSAL, IDI_MAIN_WINDOW}),
              (std::vector{137, 139, 211, 200, 171}));
    EXPECT_EQ((std::vector{IDI_SAVE, IDI_LOG_PATH, IDI_ADD_RULE, IDI_EDIT_RULE, IDI_DELETE_RULE,
                           IDI_MAKE_FIRST, IDI_MOVE_UP, IDI_MOVE_DOWN, IDI_MAKE_LAST, IDI_COPY_RULE}),
              (std::vector{159, 160, 161, 162, 163, 164, 165, 166, 167, 210}));
    EXPECT_EQ((std::vector{IDI_ADD_PROFILE, IDI_EDIT_PROFILE, IDI_DELETE_PROFILE, IDI_EXPORT_RULES,
                           IDI_IMPORT_RULES, IDI_DELETE_ITEM, IDI_ADD_ITEM}),
              (std::vector{190, 195, 192, 198, 199, 136, 168}));
}

TEST(Ids, MenuCommandsKeepTheirNumbers) {
    EXPECT_EQ((std::vector{IDM_SAVE, IDM_LOG_PATH, IDM_CONFIGURATIONS, IDM_EXIT}),
              (std::vector{57603, 32787, 32822, 32788}));
    EXPECT_EQ((std::vector{IDM_ADD_PROFILE, IDM_OPEN_PROFILE, IDM_EDIT_PROFILE, IDM_DELETE_PROFILE,
                           IDM_IMPORT_RULES, IDM_EXPORT_RULES}),
              (std::vector{32808, 32809, 32810, 32814, 32811, 32812}));
    EXPECT_EQ((std::vector{IDM_ADD_RULE, IDM_COPY_RULE, IDM_EDIT_RULE, IDM_DELETE_RULE, IDM_MAKE_FIRST,
                           IDM_MOVE_UP, IDM_MOVE_DOWN, IDM_MAKE_LAST}),
              (std::vector{32815, 32828, 32816, 32817, 32818, 32819, 32820, 32821}));
    EXPECT_EQ(IDM_ABOUT, 16);
}

TEST(Ids, ControlsOfTheMainWindowKeepTheirNumbers) {
    EXPECT_EQ(
        (std::vector{IDC_SAVE_BUTTON, IDC_SAVE_ICON_BUTTON, IDC_LOG_PATH_BUTTON, IDC_ADD_RULE_BUTTON,
                     IDC_COPY_RULE_BUTTON, IDC_EDIT_RULE_BUTTON, IDC_DELETE_RULE_BUTTON,
                     IDC_MAKE_FIRST_BUTTON, IDC_MOVE_UP_BUTTON, IDC_MOVE_DOWN_BUTTON, IDC_MAKE_LAST_BUTTON}),
        (std::vector{1000, 1021, 1022, 1023, 1037, 1024, 1025, 1026, 1027, 1028, 1029}));
    EXPECT_EQ((std::vector{IDC_ADD_PROFILE_BUTTON, IDC_EDIT_PROFILE_BUTTON, IDC_DELETE_PROFILE_BUTTON,
                           IDC_EXPORT_RULES_BUTTON, IDC_IMPORT_RULES_BUTTON, IDC_CONFIGURATIONS_BUTTON,
                           IDC_OPEN_PROFILE_BUTTON}),
              (std::vector{1031, 1032, 1033, 1034, 1035, 1036, 1053}));
    EXPECT_EQ((std::vector{IDC_PROFILE_LIST, IDC_RULE_LIST, IDC_PROFILE_CAPTION_EDIT,
                           IDC_RULE_LIST_CAPTION_EDIT, IDC_SEARCH_EDIT, IDC_SEARCH_LABEL}),
              (std::vector{1001, 1030, 1041, 1042, 1079, 1120}));
}

TEST(Ids, ControlsOfTheSmallDialogsKeepTheirNumbers) {
    EXPECT_EQ((std::vector{IDC_ABOUT_MAKER_TEXT, IDC_ABOUT_PRODUCT_TEXT, IDC_ABOUT_VERSION_TEXT}),
              (std::vector{1096, 1097, 1114}));
    EXPECT_EQ(
        (std::vector{IDC_LOG_FOLDER_BUTTON, IDC_LOG_FOLDER_EDIT, IDC_LOG_SIZE_LABEL, IDC_LOG_SIZE_EDIT}),
        (std::vector{1090, 1091, 1132, 1133}));
    EXPECT_EQ((std::vector{IDC_ERROR_BOX_TEXT, IDC_ERROR_BOX_ICON, IDC_WARNING_BOX_EDIT}),
              (std::vector{1112, 1113, 1128}));
}

TEST(Ids, ControlsOfTheRuleEditorAndTheMaskDialogKeepTheirNumbers) {
    EXPECT_EQ((std::vector{IDD_RULE_EDITOR, IDD_MASK, IDC_MASK_COMBO}), (std::vector{105, 116, 1095}));
    EXPECT_EQ((std::vector{IDI_INPUT_FOLDER, IDI_OUTPUT_FOLDER, IDI_ERROR_FOLDER, IDI_CERTIFICATES,
                           IDI_SECOND_OUTPUT_FOLDER, IDI_EXECUTABLE, IDI_EDIT_ITEM}),
              (std::vector{212, 213, 214, 215, 216, 217, 218}));
    EXPECT_EQ((std::vector{IDC_RULE_OPERATION_COMBO, IDC_RULE_CS_PROFILE_LABEL, IDC_RULE_CS_PROFILE_COMBO,
                           IDC_RULE_DESCRIPTION_LABEL, IDC_RULE_DESCRIPTION_EDIT}),
              (std::vector{1042, 1104, 1051, 1122, 1079}));
    EXPECT_EQ(
        (std::vector{IDC_RULE_INPUT_BUTTON, IDC_RULE_INPUT_EDIT, IDC_RULE_OUTPUT_BUTTON, IDC_RULE_OUTPUT_EDIT,
                     IDC_RULE_ERROR_BUTTON, IDC_RULE_ERROR_EDIT, IDC_RULE_CERT_BUTTON, IDC_RULE_CERT_EDIT}),
        (std::vector{1000, 1045, 1043, 1046, 1044, 1047, 1050, 1049}));
    EXPECT_EQ((std::vector{IDC_RULE_ROW1_LABEL, IDC_RULE_ROW2_LABEL, IDC_RULE_ROW3_LABEL, IDC_RULE_ROW4_LABEL,
                           IDC_RULE_ROW1_COMBO, IDC_RULE_ROW2_COMBO, IDC_RULE_ROW3_COMBO}),
              (std::vector{1108, 1109, 1110, 1138, 1105, 1106, 1107}));
    EXPECT_EQ((std::vector{IDC_RULE_ROW1_EDIT, IDC_RULE_ROW2_EDIT, IDC_RULE_ROW3_EDIT, IDC_RULE_ROW4_EDIT,
                           IDC_RULE_ROW1_NUMBER_EDIT, IDC_RULE_ROW2_NUMBER_EDIT, IDC_RULE_ROW3_NUMBER_EDIT}),
              (std::vector{1130, 1131, 1136, 1137, 1139, 1140, 1141}));
    EXPECT_EQ((std::vector{IDC_RULE_MASK_LIST, IDC_RULE_ADD_MASK_BUTTON, IDC_RULE_EDIT_MASK_BUTTON,
                           IDC_RULE_DELETE_MASK_BUTTON, IDC_RULE_UNUSED_EDIT, IDC_RULE_UNUSED_COMBO,
                           IDC_RULE_UNUSED_LABEL}),
              (std::vector{1001, 1124, 1125, 1126, 1048, 1095, 1123}));
}

}  // namespace
