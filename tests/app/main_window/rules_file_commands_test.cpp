#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/kit/driver/file_dialog.h"
#include "tests/kit/driver/probe.h"
#include "tests/kit/driver/waiting.h"
#include "tests/kit/fixtures/editor_fixture.h"

namespace corvane::test {
namespace {

/// A description that the machine's code page can write, beyond ASCII; Cyrillic where it has it.
std::wstring LocalText() {
    return GetACP() == 1251
               ? L"\u041F\u0440\u0438\u043A\u0430\u0437\u044B \u0438 \u043E\u0442\u0447\u0451\u0442\u044B"
               : L"Pr\u00FCfung f\u00FCr Ren\u00E9";
}

std::string LocalBytes(const std::wstring& text) {
    std::string bytes(text.size() * 4, '\0');
    bytes.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

class RulesFile : public EditorTest {
  protected:
    RulesFile() {
        folder_ = std::filesystem::temp_directory_path() /
                  (L"corvane rules " + std::to_wstring(GetCurrentProcessId()));
        std::filesystem::create_directories(folder_);
    }
    void TearDown() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
        EditorTest::TearDown();
    }
    [[nodiscard]] std::wstring Path(const std::wstring& name) const { return (folder_ / name).wstring(); }
    [[nodiscard]] std::string Content(const std::wstring& name) const {
        std::ifstream file(folder_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void WriteFile(const std::wstring& name, const std::string& bytes) const {
        std::ofstream(folder_ / name, std::ios::binary) << bytes;
    }
    [[nodiscard]] FileDialog OpenFileDialog(int buttonId) const {
        Control(buttonId).PostClick();
        return FileDialog(Editor().WaitForDialog(Main()));
    }
    /// Answers the file dialog with a path and waits until the main window can be used again.
    void Choose(const FileDialog& dialog, const std::wstring& path) const {
        dialog.SetFileName(path);
        dialog.Confirm();
        dialog.WaitUntilGone();
    }
    void Export(const std::wstring& name) const {
        Choose(OpenFileDialog(IDC_EXPORT_RULES_BUTTON), Path(name));
        WaitForMain();
    }
    void Import(const std::wstring& name) const {
        Choose(OpenFileDialog(IDC_IMPORT_RULES_BUTTON), Path(name));
        WaitForMain();
    }

  private:
    std::filesystem::path folder_;
};

TEST_F(RulesFile, ExportOffersTheProfilesNameAndTheFileTypes) {
    StartWithSample();
    const FileDialog dialog = OpenFileDialog(IDC_EXPORT_RULES_BUTTON);
    EXPECT_EQ(dialog.FileName(), L"alpha");
    EXPECT_EQ(dialog.FileTypes(), (Texts{L"Profiles (*.prx)", L"All files (*.*)"}));
    dialog.GiveUp();
    WaitForMain();
    ExpectNothingToSave();
}

TEST_F(RulesFile, ExportWritesOneRecordForEachRule) {
    StartWithSample();
    OpenProfile(L"beta");
    Export(L"beta.prx");
    EXPECT_EQ(Content(L"beta.prx"),
              "HASH\nC:\\in\nC:\\out\nC:\\failed\n*.xml\n0\n1\nCS one\n0\n0\n\n\nHash "
              "reports\n0\n0\n\n\n\n\n0\n0\n0\n"
              "\n\n0\n\r"
              "B64E\nC:\\in\nC:\\out\nC:\\failed\n*.xml\n0\n0\nCS one\n0\n0\n\n\nEncode "
              "reports\n0\n0\n\n\n\n\n0\n0\n0"
              "\n\n\n0\n\r");
    ExpectNothingToSave();
}

TEST_F(RulesFile, ExportByTheMenuAddsTheExtension) {
    StartWithSample();
    Main().PostMenuCommand(IDM_EXPORT_RULES);
    Choose(FileDialog(Editor().WaitForDialog(Main())), Path(L"without"));
    WaitForMain();
    EXPECT_FALSE(Content(L"without.prx").empty());
}

TEST_F(RulesFile, ExportOfAProfileWithoutRulesIsRefused) {
    WriteSampleConfiguration();
    WriteProfile(L"without rules", {L"CS one"});
    Start();
    OpenProfile(L"without rules");
    Control(IDC_EXPORT_RULES_BUTTON).PostClick();
    ExpectBox(L"Profile contains no rules.", kRefusal, IDOK);
    ExpectNothingToSave();
}

TEST_F(RulesFile, ExportOverAnExistingFileAsksFirst) {
    StartWithSample();
    OpenProfile(L"beta");
    WriteFile(L"old.prx", "old");
    const FileDialog dialog = OpenFileDialog(IDC_EXPORT_RULES_BUTTON);
    dialog.SetFileName(Path(L"old.prx"));
    dialog.Confirm();
    const MessageBoxWindow question = Editor().WaitForMessageBox(dialog);
    question.Answer(IDNO);
    dialog.WaitUntilEnabled();
    EXPECT_EQ(Content(L"old.prx"), "old");
    dialog.Confirm();
    Editor().WaitForMessageBox(dialog).Answer(IDYES);
    dialog.WaitUntilGone();
    WaitForMain();
    EXPECT_EQ(Content(L"old.prx").substr(0, 5), "HASH\n");
}

TEST_F(RulesFile, ExportToAFileThatCannotBeCreatedIsReported) {
    SetCursorPos(1, 1);
    StartWithSample();
    // Opened without sharing, the file is there for the dialog and closed to the export.
    WriteFile(L"locked.prx", "locked");
    const UniqueHandle lock(CreateFileW(Path(L"locked.prx").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    const FileDialog dialog = OpenFileDialog(IDC_EXPORT_RULES_BUTTON);
    dialog.SetFileName(Path(L"locked.prx"));
    dialog.Confirm();
    Editor().WaitForMessageBox(dialog).Answer(IDYES);
    dialog.WaitUntilGone();
    EXPECT_EQ(PointerOf(Editor().WaitForMessageBox(Main())), kHourglass);
    ExpectBox(ReportText(L"Creating file " + Path(L"locked.prx"), ERROR_SHARING_VIOLATION), kReport, IDOK);
    ExpectNothingToSave();
}

TEST_F(RulesFile, ImportAppendsTheRulesSelectsTheLastAndHasToBeSaved) {
    StartWithSample();
    Export(L"all.prx");
    OpenProfile(L"beta");
    Import(L"all.prx");
    Texts expected = {L"Hash reports", L"Encode reports"};
    for (const std::wstring& description : SampleDescriptions()) {
        // What the code page cannot write has become question marks.
        expected.push_back(description);
    }
    ASSERT_EQ(Rules().RowCount(), 8);
    const Texts shown = ShownRules();
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (i != 2 + kResign || GetACP() == 1251) {
            EXPECT_EQ(shown[i], expected[i]);
        }
    }
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{7});
    Rules().WaitForFocus();
    EXPECT_TRUE(Rules().IsInView(7));
    EXPECT_EQ(Rules().Checks(), (std::vector<bool>{true, false, true, false, true, false, true, false}));
    ExpectUnsavedChanges();
}

TEST_F(RulesFile, AnImportedRuleIsSavedLikeTheOneThatWasExported) {
    WriteSampleConfiguration();
    WriteProfile(L"target", {L"CS one"});
    Start();
    Export(L"all.prx");
    OpenProfile(L"target");
    Import(L"all.prx");
    SaveAndLeave();
    for (const int rule : {kEncrypt, kMove, kPack, kExecute, kDelete}) {
        EXPECT_EQ(ReadRegistryTree(RuleKey(L"target", rule)), ReadRegistryTree(RuleKey(L"alpha", rule)))
            << "rule " << rule;
    }
    EXPECT_EQ(ReadRegistryTree(RuleKey(L"target", kResign) + L"\\Board"),
              ReadRegistryTree(RuleKey(L"alpha", kResign) + L"\\Board"));
}

TEST_F(RulesFile, TextOfTheCodePageGoesOutAndInUnharmed) {
    WriteCatalogue({L"CS one"});
    WriteProfile(L"alpha", {L"CS one"});
    WriteProfile(L"beta", {L"CS one"});
    WriteRule(L"alpha", 0, PlainRule(L"ENCR", LocalText()));
    Start();
    Export(LocalText() + L".prx");
    EXPECT_NE(Content(LocalText() + L".prx").find("\n" + LocalBytes(LocalText()) + "\n"), std::string::npos);
    OpenProfile(L"beta");
    Import(LocalText() + L".prx");
    EXPECT_EQ(ShownRules(), Texts{LocalText()});
}

TEST_F(RulesFile, ImportByTheMenuGivenUpChangesNothing) {
    StartWithSample();
    Rules().Select({kMove});
    Main().PostMenuCommand(IDM_IMPORT_RULES);
    const FileDialog dialog(Editor().WaitForDialog(Main()));
    EXPECT_EQ(dialog.FileTypes(), (Texts{L"Profiles (*.prx)", L"All files (*.*)"}));
    dialog.GiveUp();
    WaitForMain();
    EXPECT_EQ(ShownRules(), SampleDescriptions());
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{kMove});
    ExpectNothingToSave();
}

TEST_F(RulesFile, ImportOfAFileWithoutRecordsChangesNothing) {
    StartWithSample();
    WriteFile(L"text.prx", "no record here\r\n");
    Import(L"text.prx");
    ExpectNoDialog();
    EXPECT_EQ(ShownRules(), SampleDescriptions());
    ExpectNothingToSave();
}

TEST_F(RulesFile, ImportOfAFileThatIsInUseIsReported) {
    SetCursorPos(1, 1);
    StartWithSample();
    WriteFile(L"locked.prx", "locked");
    const FileDialog dialog = OpenFileDialog(IDC_IMPORT_RULES_BUTTON);
    dialog.SetFileName(Path(L"locked.prx"));
    const UniqueHandle lock(CreateFileW(Path(L"locked.prx").c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    dialog.Confirm();
    Window box = Editor().WaitForWindow(Main());
    while (box == dialog) {
        dialog.WaitUntilGone();
        box = Editor().WaitForWindow(Main());
    }
    EXPECT_EQ(PointerOf(box), kHourglass);
    EXPECT_EQ(MessageBoxWindow(box).View(),
              MessageBoxOfStyle(ReportText(L"Opening file " + Path(L"locked.prx"), ERROR_SHARING_VIOLATION),
                                L"QENT AC Velmaris - configuration", kReport));
    MessageBoxWindow(box).Answer(IDOK);
    WaitForMain();
    ExpectNothingToSave();
}

TEST_F(RulesFile, ImportingTwiceAppendsTwice) {
    StartWithSample();
    OpenProfile(L"beta");
    Export(L"beta.prx");
    Import(L"beta.prx");
    Import(L"beta.prx");
    EXPECT_EQ(ShownRules(), (Texts{L"Hash reports", L"Encode reports", L"Hash reports", L"Encode reports",
                                   L"Hash reports", L"Encode reports"}));
}

}  // namespace
}  // namespace corvane::test
