#pragma once

// Ids of the dialogs that the toolkit is tested with.

#define IDD_FORM 200
#define IDD_HIDDEN_FORM 201
#define IDD_PLAIN_FORM 202
#define IDD_NOWHERE 299
#define IDI_SQUARE 300
#define IDI_NOWHERE 399

#define IDC_TEXT_EDIT 1001
#define IDC_NUMBER_EDIT 1002
#define IDC_NAME_TEXT 1003
#define IDC_ROW_LIST 1004
#define IDC_TALL_BUTTON 1005
#define IDC_CHOICE_CHECK 1006
#define IDC_CHOICE_COMBO 1007
#define IDC_PICTURE 1008
#define IDC_NOWHERE 1099
