#include <windows.h>

#include "tests/kit/driver/file_dialog.h"
#include "tests/kit/fixtures/editor_fixture.h"

namespace corvane::test {
namespace {

class LogSettings : public EditorTest {
  protected:
    void StartWithLog(const std::wstring& path, std::uint32_t sizeKilobytes) {
        WriteSampleConfiguration();
        WriteRegistryValue(kProgramKey, L"LogPath", path);
        WriteRegistryValue(kProgramKey, L"Log filesize", sizeKilobytes);
        Start();
    }
    [[nodiscard]] Window Open() const {
        Control(IDC_LOG_PATH_BUTTON).PostClick();
        return Editor().WaitForDialog(Main());
    }
    void Close(const Window& dialog, int buttonId) const {
        dialog.Control(buttonId).PostClick();
        dialog.WaitUntilGone();
        WaitForMain();
    }
    /// OK must report this path with this code, and the dialog must stay open as it is.
    void ExpectBadPath(const Window& dialog, const std::wstring& path, unsigned code) const {
        dialog.Control(IDC_LOG_FOLDER_EDIT).SetText(path);
        dialog.Control(IDOK).PostClick();
        ExpectMessageBox(dialog, ReportText(L"Opening file " + path, code, L"Bad Log path."), kReport, IDOK);
        dialog.WaitUntilEnabled();
        EXPECT_EQ(dialog.Control(IDC_LOG_FOLDER_EDIT).Text(), path);
        dialog.Control(IDC_LOG_FOLDER_EDIT).WaitForFocus();
    }
    [[nodiscard]] static RegistryData StoredPath() { return ReadRegistryValue(kProgramKey, L"LogPath"); }
    [[nodiscard]] static RegistryData StoredSize() { return ReadRegistryValue(kProgramKey, L"Log filesize"); }
};

TEST_F(LogSettings, ShowsTheStoredSettings) {
    StartWithLog(L"C:\\windows", 1234);
    const Window dialog = Open();
    EXPECT_EQ(dialog.Text(), L"Log path");
    EXPECT_EQ(dialog.Control(IDC_LOG_FOLDER_EDIT).Text(), L"C:\\windows");
    EXPECT_EQ(dialog.Control(IDC_LOG_SIZE_EDIT).Text(), L"1234");
    EXPECT_EQ(dialog.Control(IDC_LOG_FOLDER_BUTTON).Text(), L"Log path");
    EXPECT_EQ(dialog.Control(IDC_LOG_SIZE_LABEL).Text(), L"Log files size (KB.):");
    EXPECT_EQ(dialog.Control(IDCANCEL).Text(), L"Exit");
    EXPECT_NE(dialog.Control(IDC_LOG_SIZE_EDIT).Style() & ES_NUMBER, 0U);
    EXPECT_EQ(LOWORD(dialog.Send(DM_GETDEFID)), IDOK);
    Close(dialog, IDCANCEL);
}

TEST_F(LogSettings, OpensFromTheMenuToo) {
    StartWithLog(L"C:\\windows", 4000);
    Main().PostMenuCommand(IDM_LOG_PATH);
    const Window dialog = Editor().WaitForDialog(Main());
    EXPECT_EQ(dialog.Text(), L"Log path");
    Close(dialog, IDCANCEL);
}

TEST_F(LogSettings, OkTakesPathAndSizeWhichAreThenToBeSaved) {
    StartWithLog(L"", 4000);
    const Window dialog = Open();
    dialog.Control(IDC_LOG_FOLDER_EDIT).SetText(L"C:\\windows");
    dialog.Control(IDC_LOG_SIZE_EDIT).SetText(L"5000");
    Close(dialog, IDOK);
    EXPECT_EQ(StoredPath(), RegistryData(L""));
    SaveAndLeave();
    EXPECT_EQ(StoredPath(), RegistryData(L"C:\\windows"));
    EXPECT_EQ(StoredSize(), RegistryData(5000U));
}

TEST_F(LogSettings, OkWithoutAnyChangeStillHasToBeSaved) {
    StartWithLog(L"C:\\windows", 4000);
    Close(Open(), IDOK);
    ExpectUnsavedChanges();
}

TEST_F(LogSettings, ExitLeavesEverythingAsItWas) {
    StartWithLog(L"C:\\windows", 4000);
    const Window dialog = Open();
    dialog.Control(IDC_LOG_FOLDER_EDIT).SetText(L"C:\\elsewhere");
    dialog.Control(IDC_LOG_SIZE_EDIT).SetText(L"5000");
    Close(dialog, IDCANCEL);
    const Window again = Open();
    EXPECT_EQ(again.Control(IDC_LOG_FOLDER_EDIT).Text(), L"C:\\windows");
    EXPECT_EQ(again.Control(IDC_LOG_SIZE_EDIT).Text(), L"4000");
    Close(again, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(LogSettings, EscapeAndTheCloseBoxDoWhatExitDoes) {
    StartWithLog(L"C:\\windows", 4000);
    Window dialog = Open();
    dialog.Control(IDC_LOG_SIZE_EDIT).SetText(L"5000");
    dialog.FocusOfThread().PostKey(VK_ESCAPE);
    dialog.WaitUntilGone();
    WaitForMain();
    dialog = Open();
    dialog.Control(IDC_LOG_SIZE_EDIT).SetText(L"5000");
    dialog.Post(WM_SYSCOMMAND, SC_CLOSE);
    dialog.WaitUntilGone();
    WaitForMain();
    ExpectNothingToSave();
}

TEST_F(LogSettings, EnterDoesWhatOkDoes) {
    StartWithLog(L"C:\\windows", 4000);
    const Window dialog = Open();
    dialog.Control(IDC_LOG_SIZE_EDIT).PostKey(VK_RETURN);
    dialog.WaitUntilGone();
    WaitForMain();
    ExpectUnsavedChanges();
}

// Deliberate: the size is corrected at once, even while it is being typed.
TEST_F(LogSettings, TypingOneIntoAnEmptySizeTurnsItInto400) {
    StartWithLog(L"C:\\windows", 4000);
    const Window dialog = Open();
    const Window size = dialog.Control(IDC_LOG_SIZE_EDIT);
    size.Send(EM_SETSEL, 0, -1);
    size.Type(L"1");
    EXPECT_EQ(size.Text(), L"400");
    Close(dialog, IDCANCEL);
}

TEST_F(LogSettings, EmptyingTheSizeShows400AtOnce) {
    StartWithLog(L"C:\\windows", 4000);
    const Window dialog = Open();
    dialog.Control(IDC_LOG_SIZE_EDIT).SetText(L"");
    EXPECT_EQ(dialog.Control(IDC_LOG_SIZE_EDIT).Text(), L"400");
    Close(dialog, IDOK);
    SaveAndLeave();
    EXPECT_EQ(StoredSize(), RegistryData(400U));
}

TEST_F(LogSettings, ASizeOf400Stays) {
    StartWithLog(L"C:\\windows", 4000);
    const Window dialog = Open();
    dialog.Control(IDC_LOG_SIZE_EDIT).SetText(L"399");
    EXPECT_EQ(dialog.Control(IDC_LOG_SIZE_EDIT).Text(), L"400");
    dialog.Control(IDC_LOG_SIZE_EDIT).SetText(L"401");
    EXPECT_EQ(dialog.Control(IDC_LOG_SIZE_EDIT).Text(), L"401");
    Close(dialog, IDCANCEL);
}

TEST_F(LogSettings, CorrectingTheSizeKeepsThePathThatIsBeingEdited) {
    StartWithLog(L"C:\\windows", 4000);
    const Window dialog = Open();
    dialog.Control(IDC_LOG_FOLDER_EDIT).SetText(L"C:\\half typ");
    dialog.Control(IDC_LOG_SIZE_EDIT).SetText(L"1");
    EXPECT_EQ(dialog.Control(IDC_LOG_FOLDER_EDIT).Text(), L"C:\\half typ");
    Close(dialog, IDCANCEL);
}

TEST_F(LogSettings, APathThatDoesNotExistIsRefused) {
    StartWithLog(L"C:\\windows", 4000);
    const Window dialog = Open();
    ExpectBadPath(dialog, L"C:\\no such folder", ERROR_FILE_NOT_FOUND);
    ExpectBadPath(dialog, L"C:\\no such folder\\logs", ERROR_PATH_NOT_FOUND);
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(LogSettings, ARelativePathIsRefusedAlsoWhereItExists) {
    StartWithLog(L"C:\\windows", 4000);
    const Window dialog = Open();
    ExpectBadPath(dialog, L".", ERROR_PATH_NOT_FOUND);
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(LogSettings, APathWithTwoBackslashesPasses) {
    StartWithLog(L"C:\\windows", 4000);
    const Window dialog = Open();
    // A path of the current drive without its letter; only the two backslashes let it pass.
    dialog.Control(IDC_LOG_FOLDER_EDIT).SetText(L".\\\\.");
    Close(dialog, IDOK);
    SaveAndLeave();
    EXPECT_EQ(StoredPath(), RegistryData(L".\\\\."));
}

TEST_F(LogSettings, AStoredSizeBelow400IsShownAs400) {
    StartWithLog(L"C:\\windows", 10);
    const Window dialog = Open();
    EXPECT_EQ(dialog.Control(IDC_LOG_SIZE_EDIT).Text(), L"400");
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(LogSettings, TheButtonPicksAFolder) {
    StartWithLog(L"", 4000);
    const Window dialog = Open();
    dialog.Control(IDC_LOG_SIZE_EDIT).SetText(L"777");
    dialog.Control(IDC_LOG_FOLDER_BUTTON).PostClick();
    const FileDialog picker(Editor().WaitForDialog(dialog));
    picker.SetFileName(L"C:\\windows");
    picker.Confirm();
    picker.WaitUntilGone();
    dialog.WaitUntilEnabled();
    dialog.Control(IDC_LOG_FOLDER_EDIT).WaitForText(L"C:\\windows");
    EXPECT_EQ(dialog.Control(IDC_LOG_SIZE_EDIT).Text(), L"777");
    Close(dialog, IDCANCEL);
    ExpectNothingToSave();
}

TEST_F(LogSettings, GivingUpThePickerKeepsThePath) {
    StartWithLog(L"C:\\windows", 4000);
    const Window dialog = Open();
    dialog.Control(IDC_LOG_FOLDER_BUTTON).PostClick();
    const FileDialog picker(Editor().WaitForDialog(dialog));
    picker.GiveUp();
    dialog.WaitUntilEnabled();
    EXPECT_EQ(dialog.Control(IDC_LOG_FOLDER_EDIT).Text(), L"C:\\windows");
    Close(dialog, IDCANCEL);
}

}  // namespace
}  // namespace corvane::test
