// The buttons of the rule editor that let the user pick a folder or a file.

#include <windows.h>

#include "tests/driver/file_dialog.h"
#include "tests/windows/rule_editor_test.h"

namespace corvane {
namespace {

using driver::Texts;
using driver::Window;

class RuleEditorPickers : public RuleEditorTest {
  protected:
    [[nodiscard]] driver::FileDialog OpenPicker(const Window& dialog, int buttonId) const {
        dialog.Control(buttonId).PostClick();
        return driver::FileDialog(Editor().WaitForDialog(dialog));
    }
    void Pick(const Window& dialog, int buttonId, const std::wstring& path) const {
        const driver::FileDialog picker = OpenPicker(dialog, buttonId);
        picker.SetFileName(path);
        picker.Confirm();
        picker.WaitUntilGone();
        WaitForEditor(dialog);
    }
    void GiveUp(const Window& dialog, int buttonId) const {
        OpenPicker(dialog, buttonId).GiveUp();
        WaitForEditor(dialog);
    }
};

TEST_F(RuleEditorPickers, EachFolderButtonFillsItsField) {
    StartWithRules({});
    const Window dialog = OpenNew();
    dialog.Control(IDC_RULE_DESCRIPTION_EDIT).SetText(L"being typed");
    const std::vector<std::pair<int, int>> folders = {{IDC_RULE_INPUT_BUTTON, IDC_RULE_INPUT_EDIT},
                                                      {IDC_RULE_OUTPUT_BUTTON, IDC_RULE_OUTPUT_EDIT},
                                                      {IDC_RULE_ERROR_BUTTON, IDC_RULE_ERROR_EDIT}};
    for (const auto& [button, edit] : folders) {
        Pick(dialog, button, kInFolder);
        EXPECT_EQ(dialog.Control(edit).Text(), kInFolder);
        dialog.Control(edit).SetText(L"typed");
        GiveUp(dialog, button);
        EXPECT_EQ(dialog.Control(edit).Text(), L"typed");
    }
    EXPECT_EQ(dialog.Control(IDC_RULE_INPUT_EDIT).Text(), L"typed");
    EXPECT_EQ(dialog.Control(IDC_RULE_DESCRIPTION_EDIT).Text(), L"being typed");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorPickers, MovePicksASecondFolder) {
    const Window dialog = StartAndOpen(FullRule(L"MOVE"));
    dialog.Control(IDC_RULE_ROW1_EDIT).SetText(L"typed");
    Pick(dialog, IDC_RULE_CERT_BUTTON, kInFolder);
    EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), kInFolder);
    EXPECT_EQ(dialog.Control(IDC_RULE_ROW1_EDIT).Text(), L"typed");
    GiveUp(dialog, IDC_RULE_CERT_BUTTON);
    EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), kInFolder);
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorPickers, ExecutePicksAFileThatExistsAmongAll) {
    const std::wstring program = L"C:\\windows\\system32\\cmd.exe";
    const Window dialog = StartAndOpen(FullRule(L"EXEC"));
    dialog.Control(IDC_RULE_ROW1_NUMBER_EDIT).SetText(L"99");
    const driver::FileDialog picker = OpenPicker(dialog, IDC_RULE_CERT_BUTTON);
    EXPECT_EQ(picker.FileTypes(), (Texts{L"All files (*.*)"}));
    picker.SetFileName(L"C:\\windows\\system32\\no such program.exe");
    picker.Confirm();
    const Window refusal = Editor().WaitForWindow(picker);
    refusal.Post(WM_COMMAND, IDOK);
    refusal.WaitUntilGone();
    picker.WaitUntilEnabled();
    picker.SetFileName(program);
    picker.Confirm();
    picker.WaitUntilGone();
    WaitForEditor(dialog);
    EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), program);
    EXPECT_EQ(dialog.Control(IDC_RULE_ROW1_NUMBER_EDIT).Text(), L"99");
    GiveUp(dialog, IDC_RULE_CERT_BUTTON);
    EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), program);
    Close(dialog, IDOK);
    EXPECT_EQ(Rules().Cell(0, kExtraColumn), program + L"; 99");
}

TEST_F(RuleEditorPickers, AButtonOfAnOperationWithoutCertificatesOpensNothing) {
    const Window dialog = StartAndOpen(FullRule(L"HASH"));
    dialog.Send(WM_COMMAND, MAKEWPARAM(IDC_RULE_CERT_BUTTON, BN_CLICKED),
                reinterpret_cast<LPARAM>(dialog.Control(IDC_RULE_CERT_BUTTON).Handle()));
    EXPECT_TRUE(dialog.IsEnabled());
    EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), L"0");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorPickers, WithoutTheProvidersLibraryRecipientsStayAndTheEditorGoesOn) {
    const Window dialog = StartAndOpen(FullRule(L"ENCR"));
    dialog.Control(IDC_RULE_INPUT_EDIT).SetText(L"C:\\half typ");
    dialog.Control(IDC_RULE_CERT_BUTTON).PostClick();
    const driver::MessageBoxWindow report = Editor().WaitForMessageBox(dialog);
    EXPECT_EQ(report.View().text,
              ReportText(L"Loading crypto provider library (tarn1.dll)", ERROR_MOD_NOT_FOUND));
    report.Answer(IDOK);
    WaitForEditor(dialog);
    EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), L"2");
    EXPECT_EQ(dialog.Control(IDC_RULE_INPUT_EDIT).Text(), L"C:\\half typ");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleEditorPickers, SignerListsAreEditedWithoutTheProvidersLibraryUntilOneIsAdded) {
    const Window dialog = StartAndOpen(FullRule(L"CHCK"));
    dialog.Control(IDC_RULE_CERT_BUTTON).PostClick();
    Window lists = Editor().WaitForDialog(dialog);
    driver::ListView(lists.Control(IDC_SIGNER_LISTS_LIST)).Select({0, 1});
    lists.Control(IDC_SIGNER_LISTS_DELETE_BUTTON).PostClick();
    ExpectMessageBox(lists, L"Delete 2 list(s)?", 0x134, IDYES);
    lists.WaitUntilEnabled();
    driver::ListView(lists.Control(IDC_SIGNER_LISTS_LIST)).WaitForRowCount(1);
    lists.Control(IDOK).PostClick();
    lists.WaitUntilGone();
    WaitForEditor(dialog);
    EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), L"1");
    Close(dialog, IDOK);
    EXPECT_EQ(Rules().Cell(0, kExtraColumn), L"1");
}

}  // namespace
}  // namespace corvane
