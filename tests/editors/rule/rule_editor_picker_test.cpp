// The buttons of the rule editor that let the user pick a folder or a file.

#include <windows.h>

#include "tests/kit/driver/file_dialog.h"
#include "tests/kit/fixtures/rule_editor_fixture.h"

namespace corvane::test {
namespace {

class RuleEditorPickers : public RuleEditorTest {
  protected:
    [[nodiscard]] FileDialog OpenPicker(const Window& dialog, int buttonId) const {
        dialog.Control(buttonId).PostClick();
        return FileDialog(Editor().WaitForDialog(dialog));
    }
    void Pick(const Window& dialog, int buttonId, const std::wstring& path) const {
        const FileDialog picker = OpenPicker(dialog, buttonId);
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
    const FileDialog picker = OpenPicker(dialog, IDC_RULE_CERT_BUTTON);
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
    const MessageBoxWindow report = Editor().WaitForMessageBox(dialog);
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
    ListView(lists.Control(IDC_SIGNER_LISTS_LIST)).Select({0, 1});
    lists.Control(IDC_SIGNER_LISTS_DELETE_BUTTON).PostClick();
    ExpectMessageBox(lists, L"Delete 2 list(s)?", 0x134, IDYES);
    lists.WaitUntilEnabled();
    ListView(lists.Control(IDC_SIGNER_LISTS_LIST)).WaitForRowCount(1);
    lists.Control(IDOK).PostClick();
    lists.WaitUntilGone();
    WaitForEditor(dialog);
    EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), L"1");
    Close(dialog, IDOK);
    EXPECT_EQ(Rules().Cell(0, kExtraColumn), L"1");
}

/// A Windows without the library of the file dialogs and of the picker, for the editor alone. Only Wine can
/// be told to leave one out.
class MissingDialogs : public RuleEditorPickers {
  protected:
    MissingDialogs() {
        RegSetKeyValueW(HKEY_CURRENT_USER, kOverrides, L"comdlg32", REG_SZ, L"", sizeof(wchar_t));
    }
    void TearDown() override {
        RegDeleteTreeW(HKEY_CURRENT_USER, kProgram);
        RuleEditorPickers::TearDown();
    }

    void ExpectReport(const Window& owner, const std::wstring& what, unsigned code) const {
        const MessageBoxWindow report = Editor().WaitForMessageBox(owner);
        EXPECT_EQ(report.View(), MessageBoxOfStyle(ReportText(L"Showing " + what, code),
                                                   L"QENT AC Velmaris - configuration", kReport));
        report.Answer(IDOK);
        owner.WaitUntilEnabled();
    }

    static constexpr wchar_t kFolderPicker[] = L"folder picker (CoCreateInstance)";
    /// What Wine says of a class whose library cannot be loaded.
    static constexpr unsigned kPickersCode = ERROR_ACCESS_DENIED;
    static constexpr wchar_t kFileDialog[] = L"file dialog (comdlg32.dll)";

  private:
    static constexpr wchar_t kProgram[] = L"Software\\Wine\\AppDefaults\\corvane.exe";
    static constexpr wchar_t kOverrides[] = L"Software\\Wine\\AppDefaults\\corvane.exe\\DllOverrides";
};

TEST_F(MissingDialogs, AreReportedByTheRuleEditorAndChangeNothing) {
    const Window dialog = StartAndOpen(FullRule(L"MOVE"));
    for (const int button :
         {IDC_RULE_INPUT_BUTTON, IDC_RULE_OUTPUT_BUTTON, IDC_RULE_ERROR_BUTTON, IDC_RULE_CERT_BUTTON}) {
        const Texts before = ShownFields(dialog);
        dialog.Control(button).PostClick();
        ExpectReport(dialog, kFolderPicker, kPickersCode);
        WaitForEditor(dialog);
        EXPECT_EQ(ShownFields(dialog), before);
    }
    SelectOperation(dialog, L"EXEC");
    dialog.Control(IDC_RULE_CERT_BUTTON).PostClick();
    ExpectReport(dialog, kFileDialog, ERROR_MOD_NOT_FOUND);
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(MissingDialogs, AreReportedByTheMainWindowAndTheLogSettings) {
    StartWithRules({FullRule(L"MOVE")});
    for (const int button : {IDC_EXPORT_RULES_BUTTON, IDC_IMPORT_RULES_BUTTON}) {
        Control(button).PostClick();
        ExpectReport(Main(), kFileDialog, ERROR_MOD_NOT_FOUND);
        WaitForMain();
    }
    Control(IDC_LOG_PATH_BUTTON).PostClick();
    const Window settings = Editor().WaitForDialog(Main());
    settings.Control(IDC_LOG_FOLDER_BUTTON).PostClick();
    ExpectReport(settings, kFolderPicker, kPickersCode);
    settings.Control(IDCANCEL).PostClick();
    settings.WaitUntilGone();
    WaitForMain();
    ExpectNothingToSave();
}

}  // namespace
}  // namespace corvane::test
