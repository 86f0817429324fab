#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/kit/driver/file_dialog.h"
#include "tests/kit/fixtures/selection_fixture.h"

namespace corvane::test {
namespace {

constexpr wchar_t kAnn[] = L"CN=Ann,C=GB";
constexpr wchar_t kBob[] = L"CN=Bob,C=GB";

/// A name of a file and of a person beyond ASCII that the code page of the test can write, Cyrillic where it
/// has it.
std::wstring LocalName() {
    return GetACP() == 1251 ? L"\u041F\u0451\u0442\u0440 \u0418\u0432\u0430\u043D\u043E\u0432"
                            : L"Ren\u00E9 M\u00FCller";
}

class SelectionGroupFile : public SelectionTest {
  protected:
    void OpenWithTwoFound() {
        script.Certificate(LibraryScriptWriter::kEvery, "CN=Ann,C=GB");
        script.Certificate(LibraryScriptWriter::kEvery, "CN=Bob,C=GB");
        OpenRecipients();
        Press(IDC_SELECTION_FROM_STORE_BUTTON);
    }
    void WriteFile(const std::wstring& name, const std::string& bytes) const {
        std::ofstream(std::filesystem::path(Folder() + name), std::ios::binary) << bytes;
    }
    [[nodiscard]] std::string Content(const std::wstring& name) const {
        std::ifstream file(std::filesystem::path(Folder() + name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    [[nodiscard]] FileDialog OpenFileDialog(int buttonId) const {
        Control(buttonId).PostClick();
        return FileDialog(Program().WaitForDialog(Dialog()));
    }
    /// Answers a file dialog with a file of the test's folder. What the command says follows.
    void Choose(const FileDialog& dialog, const std::wstring& name) const {
        dialog.SetFileName(Folder() + name);
        dialog.Confirm();
        dialog.WaitUntilGone();
    }
    void WaitForDialog() const {
        Dialog().WaitUntilEnabled();
        SettleDialog();
    }
    void Load(const std::wstring& name) const {
        Choose(OpenFileDialog(IDC_SELECTION_FROM_GROUP_BUTTON), name);
        WaitForDialog();
    }
    void Save(const std::wstring& name) const {
        Choose(OpenFileDialog(IDC_SELECTION_SAVE_BUTTON), name);
        WaitForDialog();
    }
    /// The report of a failure with a file of the test's folder that somebody else holds open.
    [[nodiscard]] std::wstring HeldFileReport(const std::wstring& operation, const std::wstring& name) const {
        std::wstring description(1024, L'\0');
        description.resize(FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                          ERROR_SHARING_VIOLATION, 0, description.data(),
                                          static_cast<DWORD>(description.size()), nullptr));
        description.erase(description.find_last_not_of(L".\r\n") + 1);
        return operation + L" " + Folder() + name + L".\r\nError 0x20 - " + description + L".";
    }
};

TEST_F(SelectionGroupFile, OpeningOffersTheFileTypes) {
    OpenRecipients();
    const FileDialog dialog = OpenFileDialog(IDC_SELECTION_FROM_GROUP_BUTTON);
    EXPECT_EQ(dialog.FileTypes(), (Texts{L"User groups files (*.grx)", L"All files (*.*)"}));
    EXPECT_EQ(dialog.FileName(), L"");
    dialog.GiveUp();
    WaitForDialog();
    EXPECT_EQ(Found().RowCount(), 0);
}

TEST_F(SelectionGroupFile, OpeningAddsTheOwnersOfTheFileThatAreNotThere) {
    OpenWithTwoFound();
    Check(Found(), {1});
    WriteFile(L"team.grx",
              "CN=Zoe,C=GB\r\nCN=Bob,C=GB\r\n\r\nno owner\r\nCN=Adam,C=GB\r\nCN=Zoe,C=GB\r\nCN=Lost,C=GB");
    Load(L"team.grx");
    EXPECT_EQ(Found().Column(0), (Texts{kAnn, kBob, L"CN=Zoe,C=GB", L"CN=Adam,C=GB"}));
    EXPECT_EQ(Found().Checks(), (std::vector<bool>{false, true, false, false}));
    Load(L"team.grx");
    EXPECT_EQ(Found().RowCount(), 4);
}

TEST_F(SelectionGroupFile, AnEmptyFileAddsNothing) {
    OpenWithTwoFound();
    WriteFile(L"empty.grx", "");
    Load(L"empty.grx");
    EXPECT_EQ(Found().RowCount(), 2);
}

TEST_F(SelectionGroupFile, TheFileLastUsedIsProposedUntilTheListIsDeleted) {
    OpenWithTwoFound();
    WriteFile(L"team.grx", "CN=Zoe,C=GB\r\n");
    Load(L"team.grx");
    const FileDialog again = OpenFileDialog(IDC_SELECTION_FROM_GROUP_BUTTON);
    EXPECT_EQ(again.FileName(), L"team.grx");
    again.GiveUp();
    WaitForDialog();
    Press(IDC_SELECTION_SELECT_ALL_BUTTON);
    const FileDialog save = OpenFileDialog(IDC_SELECTION_SAVE_BUTTON);
    EXPECT_EQ(save.FileName(), L"team.grx");
    save.GiveUp();
    WaitForDialog();
    Control(IDC_SELECTION_DELETE_ALL_BUTTON).PostClick();
    ExpectBox(L"Delete all list items?", kBoxQuestion, IDYES);
    const FileDialog last = OpenFileDialog(IDC_SELECTION_FROM_GROUP_BUTTON);
    EXPECT_EQ(last.FileName(), L"");
    last.GiveUp();
    WaitForDialog();
}

TEST_F(SelectionGroupFile, AFileThatCannotBeOpenedIsReportedAndKeepsTheLists) {
    OpenWithTwoFound();
    WriteFile(L"held.grx", "CN=Zoe,C=GB\r\n");
    const HANDLE held = CreateFileW((Folder() + L"held.grx").c_str(), GENERIC_READ | GENERIC_WRITE,
                                    FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    Choose(OpenFileDialog(IDC_SELECTION_FROM_GROUP_BUTTON), L"held.grx");
    ExpectBox(HeldFileReport(L"Opening file", L"held.grx"), kBoxReport, IDOK);
    EXPECT_EQ(Found().Column(0), (Texts{kAnn, kBob}));
    CloseHandle(held);
}

TEST_F(SelectionGroupFile, SavingNeedsCheckedOwners) {
    OpenWithTwoFound();
    Control(IDC_SELECTION_SAVE_BUTTON).PostClick();
    ExpectBox(L"No users selected.", kBoxRefusal, IDOK);
    ExpectStaysOpen();
    Found().WaitForFocus();
}

TEST_F(SelectionGroupFile, SavingSignersNeedsCheckedSigners) {
    OpenNewList();
    Control(IDC_SELECTION_SAVE_BUTTON).PostClick();
    ExpectBox(L"No signers selected.", kBoxRefusal, IDOK);
    ExpectStaysOpen();
}

TEST_F(SelectionGroupFile, SavingWritesTheCheckedOwnersInTheOrderShown) {
    OpenWithTwoFound();
    Press(IDC_SELECTION_SELECT_ALL_BUTTON);
    ClickHeader(Found());
    ClickHeader(Found());
    const FileDialog dialog = OpenFileDialog(IDC_SELECTION_SAVE_BUTTON);
    EXPECT_EQ(dialog.FileTypes(), (Texts{L"User groups files (*.grx)", L"All files (*.*)"}));
    EXPECT_EQ(dialog.FileName(), L"New group.grx");
    Choose(dialog, L"saved");
    WaitForDialog();
    EXPECT_EQ(Content(L"saved.grx"), "CN=Bob,C=GB\r\nCN=Ann,C=GB\r\n");
    Check(Found(), {1});
    Save(L"one.grx");
    EXPECT_EQ(Content(L"one.grx"), "CN=Ann,C=GB\r\n");
}

TEST_F(SelectionGroupFile, SavingOverAFileAsksFirst) {
    OpenWithTwoFound();
    Press(IDC_SELECTION_SELECT_ALL_BUTTON);
    WriteFile(L"old.grx", "old");
    const FileDialog dialog = OpenFileDialog(IDC_SELECTION_SAVE_BUTTON);
    dialog.SetFileName(Folder() + L"old.grx");
    dialog.Confirm();
    Program().WaitForMessageBox(dialog).Answer(IDNO);
    dialog.WaitUntilEnabled();
    EXPECT_EQ(Content(L"old.grx"), "old");
    dialog.Confirm();
    Program().WaitForMessageBox(dialog).Answer(IDYES);
    dialog.WaitUntilGone();
    WaitForDialog();
    EXPECT_EQ(Content(L"old.grx"), "CN=Ann,C=GB\r\nCN=Bob,C=GB\r\n");
}

TEST_F(SelectionGroupFile, AFileThatCannotBeCreatedIsReported) {
    OpenWithTwoFound();
    Press(IDC_SELECTION_SELECT_ALL_BUTTON);
    WriteFile(L"held.grx", "old");
    const HANDLE held = CreateFileW((Folder() + L"held.grx").c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    const FileDialog dialog = OpenFileDialog(IDC_SELECTION_SAVE_BUTTON);
    dialog.SetFileName(Folder() + L"held.grx");
    dialog.Confirm();
    Program().WaitForMessageBox(dialog).Answer(IDYES);
    dialog.WaitUntilGone();
    ExpectBox(HeldFileReport(L"Creating file", L"held.grx"), kBoxReport, IDOK);
    CloseHandle(held);
    EXPECT_EQ(Content(L"held.grx"), "old");
    EXPECT_EQ(Found().Checks(), (std::vector<bool>{true, true}));
}

TEST_F(SelectionGroupFile, OwnersAndPathsOfTheLocalScriptAreWrittenAndReadBack) {
    const std::wstring owner = L"CN=" + LocalName() + L",C=RU";
    script.Certificate(LibraryScriptWriter::kEvery, ToCodePage(owner));
    OpenRecipients();
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    EXPECT_EQ(Found().Column(0), Texts{owner});
    Press(IDC_SELECTION_SELECT_ALL_BUTTON);
    const std::wstring file = LocalName() + L".grx";
    Save(file);
    EXPECT_EQ(Content(file), ToCodePage(owner) + "\r\n");
    Control(IDC_SELECTION_DELETE_ALL_BUTTON).PostClick();
    ExpectBox(L"Delete all list items?", kBoxQuestion, IDYES);
    Load(file);
    EXPECT_EQ(Found().Column(0), Texts{owner});
}

TEST_F(SelectionGroupFile, APathBeyondTheCodePageIsTakenAsItIs) {
    OpenWithTwoFound();
    Check(Found(), {0});
    const std::wstring file = L"\u0413\u0440\u0443\u043F\u043F\u0430 \u4E2D.grx";
    Save(file);
    EXPECT_EQ(Content(file), "CN=Ann,C=GB\r\n");
    WriteFile(file, "CN=Zoe,C=GB\r\n");
    Load(file);
    EXPECT_EQ(Found().Column(0), (Texts{kAnn, kBob, L"CN=Zoe,C=GB"}));
}

}  // namespace
}  // namespace corvane::test
