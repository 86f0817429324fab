#include "tests/kit/audit/dialog_audit.h"
#include "tests/kit/audit/picture.h"
#include "tests/kit/driver/failure.h"
#include "tests/kit/fixtures/editor_fixture.h"

namespace corvane::test {
namespace {

class Audit : public EditorTest {
  protected:
    static void ExpectSound(const Window& dialog, const std::string& name) {
        dialog.Send(WM_NULL);
        KeepPicture(dialog, name);
        for (const std::wstring& fault : AllFaults(dialog)) {
            ADD_FAILURE() << Utf8(fault);
        }
    }
    /// Escape must do what the button that leaves does.
    void LeaveByEscape(const Window& dialog) const {
        dialog.FocusOfThread().PostKey(VK_ESCAPE);
        dialog.WaitUntilGone();
        WaitForMain();
    }
};

TEST_F(Audit, MainWindow) {
    StartWithSample();
    ExpectSound(Main(), "main_window");
    Profiles().PostKey(VK_ESCAPE);
    Editor().WaitForEnd();
}

TEST_F(Audit, MainWindowWithoutAnOpenProfile) {
    StartWithSample();
    Control(IDC_DELETE_PROFILE_BUTTON).PostClick();
    ExpectBox(L"Delete profile 'alpha'?", kConfirmation, IDYES);
    Profiles().PostLeftClick(Profiles().PointBelowRows());
    Settle();
    ExpectSound(Main(), "main_window_closed_profile");
}

TEST_F(Audit, MainWindowAtItsSmallestSize) {
    StartWithSample();
    const RECT atFirst = Main().Bounds();
    SetWindowPos(Main().Handle(), nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Settle();
    // The movements of the controls are laid down, and so is this size; the sizes of lists and fields that
    // come of it are the user's choice.
    KeepPicture(Main(), "main_window_smallest");
    const RECT bounds = Main().Bounds();
    const RECT button = Control(IDOK).Bounds();
    EXPECT_EQ(bounds.right - bounds.left,
              11 * (button.right - button.left) + 2 * GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_EQ(bounds.bottom - bounds.top,
              2 * (GetSystemMetrics(SM_CYVSCROLL) + 5 * (button.bottom - button.top)));
    if (atFirst.right - atFirst.left >= GetSystemMetrics(SM_CXSCREEN)) {
        // At this scale the window does not fit on the display. It is made narrower than its template then,
        // and its buttons move with the changes from there on.
        return;
    }
    const RECT client = Main().ClientBounds();
    for (const int id : {IDC_SAVE_BUTTON, IDOK, IDCANCEL}) {
        const RECT place = Control(id).Bounds();
        RECT shown{};
        IntersectRect(&shown, &client, &place);
        EXPECT_TRUE(EqualRect(&shown, &place)) << "button " << id << " reaches out of the window";
    }
}

TEST_F(Audit, AboutBox) {
    StartWithSample();
    Main().Post(WM_SYSCOMMAND, IDM_ABOUT);
    const Window dialog = Editor().WaitForDialog(Main());
    ExpectSound(dialog, "about");
    LeaveByEscape(dialog);
}

TEST_F(Audit, LogSettings) {
    StartWithSample();
    Control(IDC_LOG_PATH_BUTTON).PostClick();
    const Window dialog = Editor().WaitForDialog(Main());
    dialog.Control(IDC_LOG_FOLDER_EDIT).SetText(L"C:\\windows\\temp");
    ExpectSound(dialog, "log_settings");
    LeaveByEscape(dialog);
}

TEST_F(Audit, DescriptionBox) {
    StartWithSample();
    Rules().PostRightClick(Rules().CellCentre(kResign, kExtraColumn));
    const Window dialog = Editor().WaitForDialog(Main());
    ExpectSound(dialog, "description_box");
    LeaveByEscape(dialog);
}

TEST_F(Audit, CellBox) {
    StartWithSample();
    Rules().PostRightClick(Rules().CellCentre(kMove, kMasksColumn));
    const MessageBoxWindow box = Editor().WaitForMessageBox(Main());
    ExpectSound(box, "cell_box");
    LeaveByEscape(box);
}

TEST_F(Audit, Question) {
    StartWithSample();
    Control(IDC_DELETE_PROFILE_BUTTON).PostClick();
    const MessageBoxWindow box = Editor().WaitForMessageBox(Main());
    ExpectSound(box, "question");
    box.Answer(IDNO);
}

TEST_F(Audit, Report) {
    StartWithSample();
    Control(IDC_LOG_PATH_BUTTON).PostClick();
    const Window dialog = Editor().WaitForDialog(Main());
    dialog.Control(IDC_LOG_FOLDER_EDIT).SetText(L"C:\\no such folder");
    dialog.Control(IDOK).PostClick();
    const MessageBoxWindow box = Editor().WaitForMessageBox(dialog);
    ExpectSound(box, "report");
    box.Answer(IDOK);
}

TEST_F(Audit, ErrorBox) {
    // Its host stands beside this program and shows nothing else.
    std::wstring path(1024, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    const Program host(path.substr(0, path.find_last_of(L'\\') + 1) + L"error_box_host.exe");
    const Window dialog = host.WaitForWindow(Window());
    EXPECT_EQ(dialog.Text(), L"Error");
    EXPECT_EQ(dialog.Control(IDC_ERROR_BOX_TEXT).Text(), L"No certificate is selected for operation.");
    ExpectSound(dialog, "error_box");
    dialog.FocusOfThread().PostKey(VK_ESCAPE);
    dialog.WaitUntilGone();
    host.WaitForEnd();
}

}  // namespace
}  // namespace corvane::test
