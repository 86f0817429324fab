// What OK refuses, in its order, with its boxes.

#include <windows.h>

#include "tests/kit/fixtures/rule_editor_fixture.h"

namespace corvane::test {
namespace {

class RuleEditorValidation : public RuleEditorTest {
  protected:
    /// A new rule that lacks nothing but what its operation wants besides folders and masks.
    [[nodiscard]] Window OpenComplete(const std::wstring& code) {
        StartWithRules({});
        const Window dialog = OpenNew();
        FillFolders(dialog);
        AddMaskByDialog(dialog, L"*.xml");
        SelectOperation(dialog, code);
        return dialog;
    }
    /// OK must report the text of this field, with this code and detail.
    void ExpectBadFolder(const Window& dialog, int editId, const std::wstring& folder, unsigned code,
                         const std::wstring& detail) const {
        dialog.Control(editId).SetText(folder);
        ExpectRefusal(dialog, ReportText(L"Opening file " + folder, code, detail), kReport, editId);
        EXPECT_EQ(dialog.Control(editId).Text(), folder);
    }
    void ExpectAccepted(const Window& dialog) const {
        Close(dialog, IDOK);
        EXPECT_EQ(Rules().RowCount(), 1);
    }
};

TEST_F(RuleEditorValidation, MissingFieldsAreAskedForOneAfterTheOther) {
    StartWithRules({});
    const Window dialog = OpenNew();
    ExpectErrorBox(dialog, L"No Input folder selected.", IDI_INPUT_FOLDER, IDC_RULE_INPUT_EDIT);
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(kInFolder);
    ExpectErrorBox(dialog, L"No Output folder selected.", IDI_OUTPUT_FOLDER, IDC_RULE_OUTPUT_EDIT);
    dialog.Control(IDC_RULE_OUTPUT_EDIT).SetText(kOutFolder);
    ExpectErrorBox(dialog, L"No Error folder selected.", IDI_ERROR_FOLDER, IDC_RULE_ERROR_EDIT);
    dialog.Control(IDC_RULE_ERROR_EDIT).SetText(kErrorFolder);
    ExpectRefusal(dialog, L"No Mask selected.", kRefusal, IDC_RULE_ADD_MASK_BUTTON);
    AddMaskByDialog(dialog, L"*.xml");
    ExpectErrorBox(dialog, L"No certificate is selected for operation.", IDI_CERTIFICATES,
                   IDC_RULE_CERT_BUTTON);
    EXPECT_EQ(dialog.Control(IDC_RULE_INPUT_EDIT).Text(), kInFolder);
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(RuleEditorValidation, AFolderOfZeroIsNotSet) {
    StartWithRules({});
    const Window dialog = OpenNew();
    FillFolders(dialog);
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(L"0");
    ExpectErrorBox(dialog, L"No Input folder selected.", IDI_INPUT_FOLDER, IDC_RULE_INPUT_EDIT);
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(kInFolder);
    dialog.Control(IDC_RULE_OUTPUT_EDIT).SetText(L"0");
    ExpectErrorBox(dialog, L"No Output folder selected.", IDI_OUTPUT_FOLDER, IDC_RULE_OUTPUT_EDIT);
    dialog.Control(IDC_RULE_OUTPUT_EDIT).SetText(kOutFolder);
    dialog.Control(IDC_RULE_ERROR_EDIT).SetText(L"0");
    ExpectErrorBox(dialog, L"No Error folder selected.", IDI_ERROR_FOLDER, IDC_RULE_ERROR_EDIT);
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorValidation, TheErrorBoxClosesByEscape) {
    StartWithRules({});
    const Window dialog = OpenNew();
    dialog.Control(IDOK).PostClick();
    const Window box = Editor().WaitForWindow(dialog);
    box.FocusOfThread().PostKey(VK_ESCAPE);
    box.WaitUntilGone();
    WaitForEditor(dialog);
    EXPECT_TRUE(dialog.IsVisible());
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorValidation, ARelativeFolderIsRefusedAlsoWhereItExists) {
    const Window dialog = OpenComplete(L"HASH");
    ExpectBadFolder(dialog, IDC_RULE_INPUT_EDIT, L"data\\in", ERROR_PATH_NOT_FOUND, L"Bad Input folder.");
    ExpectBadFolder(dialog, IDC_RULE_INPUT_EDIT, L".", ERROR_PATH_NOT_FOUND, L"Bad Input folder.");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorValidation, EachFolderMustExist) {
    const Window dialog = OpenComplete(L"HASH");
    ExpectBadFolder(dialog, IDC_RULE_INPUT_EDIT, L"C:\\no such folder", ERROR_FILE_NOT_FOUND,
                    L"Bad Input folder.");
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(kInFolder);
    ExpectBadFolder(dialog, IDC_RULE_OUTPUT_EDIT, L"C:\\no such folder\\out", ERROR_PATH_NOT_FOUND,
                    L"Bad Output folder.");
    dialog.Control(IDC_RULE_OUTPUT_EDIT).SetText(kOutFolder);
    ExpectBadFolder(dialog, IDC_RULE_ERROR_EDIT, L"C:\\no such folder", ERROR_FILE_NOT_FOUND,
                    L"Bad Error folder.");
    dialog.Control(IDC_RULE_ERROR_EDIT).SetText(kErrorFolder);
    ExpectAccepted(dialog);
}

TEST_F(RuleEditorValidation, AFolderThatIsAFilePasses) {
    const Window dialog = OpenComplete(L"HASH");
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(L"C:\\windows\\system32\\kernel32.dll");
    ExpectAccepted(dialog);
}

TEST_F(RuleEditorValidation, TwoBackslashesAreEnoughOfAForm) {
    const Window dialog = OpenComplete(L"HASH");
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(L".\\\\.");
    ExpectAccepted(dialog);
}

TEST_F(RuleEditorValidation, ANetworkPathIsAskedOfTheSystem) {
    const Window dialog = OpenComplete(L"HASH");
    const std::wstring share = L"\\\\no-such-server\\share\\in";
    SetLastError(0);
    ASSERT_EQ(GetFileAttributesW(share.c_str()), INVALID_FILE_ATTRIBUTES);
    ExpectBadFolder(dialog, IDC_RULE_INPUT_EDIT, share, GetLastError(), L"Bad Input folder.");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorValidation, AFolderOf300CharactersIsReportedInFull) {
    const Window dialog = OpenComplete(L"HASH");
    const std::wstring folder = L"C:\\" + std::wstring(297, L'x');
    SetLastError(0);
    ASSERT_EQ(GetFileAttributesW(folder.c_str()), INVALID_FILE_ATTRIBUTES);
    ExpectBadFolder(dialog, IDC_RULE_INPUT_EDIT, folder, GetLastError(), L"Bad Input folder.");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorValidation, DeleteNeedsNoOutputFolder) {
    StartWithRules({});
    const Window dialog = OpenNew();
    SelectOperation(dialog, L"DELE");
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(kInFolder);
    ExpectErrorBox(dialog, L"No Error folder selected.", IDI_ERROR_FOLDER, IDC_RULE_ERROR_EDIT);
    dialog.Control(IDC_RULE_ERROR_EDIT).SetText(kErrorFolder);
    AddMaskByDialog(dialog, L"*");
    ExpectAccepted(dialog);
}

TEST_F(RuleEditorValidation, AVerifyingRuleMayDoWithoutSignerLists) {
    ExpectAccepted(OpenComplete(L"CHCK"));
}

TEST_F(RuleEditorValidation, ASecondFolderMayBeLeftOutButNotBeBad) {
    const Window dialog = OpenComplete(L"MOVE");
    ExpectBadFolder(dialog, IDC_RULE_CERT_EDIT, L"second", ERROR_PATH_NOT_FOUND,
                    L"Bad Second Output folder.");
    ExpectBadFolder(dialog, IDC_RULE_CERT_EDIT, L"C:\\no such folder", ERROR_FILE_NOT_FOUND,
                    L"Bad Second Output folder.");
    dialog.Control(IDC_RULE_CERT_EDIT).SetText(L"");
    ExpectAccepted(dialog);
}

TEST_F(RuleEditorValidation, ExecuteNeedsAProgramThatNeedNotExist) {
    const Window dialog = OpenComplete(L"EXEC");
    ExpectErrorBox(dialog, L"Executable file is not set.", IDI_EXECUTABLE, IDC_RULE_CERT_EDIT);
    dialog.Control(IDC_RULE_CERT_EDIT).SetText(L"0");
    ExpectErrorBox(dialog, L"Executable file is not set.", IDI_EXECUTABLE, IDC_RULE_CERT_EDIT);
    dialog.Control(IDC_RULE_CERT_EDIT).SetText(L"nowhere.exe");
    ExpectAccepted(dialog);
}

TEST_F(RuleEditorValidation, WhatIsCheckedIsShown) {
    const Window dialog = OpenComplete(L"PACK");
    dialog.Control(IDC_RULE_ROW1_NUMBER_EDIT).SetText(L"");
    dialog.Control(IDC_RULE_ROW2_NUMBER_EDIT).SetText(L"007");
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(L"in");
    ExpectRefusal(dialog, ReportText(L"Opening file in", ERROR_PATH_NOT_FOUND, L"Bad Input folder."), kReport,
                  IDC_RULE_INPUT_EDIT);
    EXPECT_EQ(dialog.Control(IDC_RULE_ROW1_NUMBER_EDIT).Text(), L"0");
    EXPECT_EQ(dialog.Control(IDC_RULE_ROW2_NUMBER_EDIT).Text(), L"7");
    Close(dialog, IDCANCEL);
}

class RuleEditorNumbers : public RuleEditorTest {
  protected:
    [[nodiscard]] Window OpenPack() { return StartAndOpen(FullRule(L"PACK")); }
};

TEST_F(RuleEditorNumbers, WhatIsPastedIsCorrectedAtOnce) {
    const Window dialog = OpenPack();
    const std::vector<std::pair<std::wstring, std::wstring>> pasted = {
        {L"-1", L"0"},      {L"99999999999", L"2147483647"},
        {L"abc", L"0"},     {L"12abc", L"12"},
        {L"4000", L"4000"}, {L"", L""},
        {L"0", L"0"}};
    for (const int id : {IDC_RULE_ROW1_NUMBER_EDIT, IDC_RULE_ROW2_NUMBER_EDIT, IDC_RULE_ROW3_NUMBER_EDIT}) {
        for (const auto& [text, shown] : pasted) {
            dialog.Control(id).SetText(text);
            EXPECT_EQ(dialog.Control(id).Text(), shown);
        }
    }
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorNumbers, ACorrectionKeepsWhatIsTypedElsewhere) {
    const Window dialog = OpenPack();
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(L"C:\\half typ");
    dialog.Control(IDC_RULE_ROW2_NUMBER_EDIT).SetText(L"");
    dialog.Control(IDC_RULE_ROW1_NUMBER_EDIT).SetText(L"-5");
    EXPECT_EQ(dialog.Control(IDC_RULE_INPUT_EDIT).Text(), L"C:\\half typ");
    EXPECT_EQ(dialog.Control(IDC_RULE_ROW2_NUMBER_EDIT).Text(), L"");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorNumbers, TypingGoesOnBehindTheCorrection) {
    const Window dialog = OpenPack();
    const Window number = dialog.Control(IDC_RULE_ROW1_NUMBER_EDIT);
    number.SetText(L"x");
    EXPECT_EQ(number.Text(), L"0");
    number.Type(L"5");
    EXPECT_EQ(number.Text(), L"05");
    Close(dialog, IDCANCEL);
}

}  // namespace
}  // namespace corvane::test
