#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "toolkit/system/message_presenter.h"

namespace corvane::test {
namespace {

std::wstring TextOf(HWND window) {
    wchar_t text[200] = {};
    GetWindowTextW(window, text, static_cast<int>(std::size(text)));
    return text;
}

// Looks at the next message box of this thread when it comes up, and presses a button of it.
class BoxWatcher {
  public:
    explicit BoxWatcher(int buttonToPress)
        : buttonToPress_(buttonToPress),
          hook_(SetWindowsHookExW(WH_CBT, &BoxWatcher::OnWindowEvent, nullptr, GetCurrentThreadId())) {
        current = this;
    }
    BoxWatcher(const BoxWatcher&) = delete;
    BoxWatcher& operator=(const BoxWatcher&) = delete;
    BoxWatcher(BoxWatcher&&) = delete;
    BoxWatcher& operator=(BoxWatcher&&) = delete;
    ~BoxWatcher() {
        current = nullptr;
        UnhookWindowsHookEx(hook_);
    }

    std::wstring title;
    std::wstring text;
    HWND owner = nullptr;
    int preselectedButton = 0;
    bool hasIcon = false;

  private:
    static LRESULT CALLBACK OnWindowEvent(int code, WPARAM window, LPARAM details) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the platform hands the window over as a number.
        const auto handle = reinterpret_cast<HWND>(window);
        if (code == HCBT_ACTIVATE && IsBox(handle)) {
            current->Look(handle);
            PostMessageW(handle, WM_COMMAND, MAKEWPARAM(current->buttonToPress_, BN_CLICKED), 0);
        } else if (code == HCBT_SETFOCUS && IsBox(GetParent(handle))) {
            // The preselected button is the one that the box itself gives the focus to.
            current->preselectedButton = GetDlgCtrlID(handle);
        }
        return CallNextHookEx(nullptr, code, window, details);
    }

    static bool IsBox(HWND window) { return GetDlgItem(window, kTextId) != nullptr; }

    void Look(HWND box) {
        title = TextOf(box);
        text = TextOf(GetDlgItem(box, kTextId));
        owner = GetWindow(box, GW_OWNER);
        for (HWND child = GetWindow(box, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
            const bool isVisible = (GetWindowLongPtrW(child, GWL_STYLE) & WS_VISIBLE) != 0;
            // Asked of anything else than a static with an icon, the answer is none.
            hasIcon = hasIcon || (isVisible && SendMessageW(child, STM_GETICON, 0, 0) != 0);
        }
    }

    // The id that message boxes have always used for their text.
    static constexpr int kTextId = 0xFFFF;

    // A hook has no place for data of its own.
    static thread_local BoxWatcher* current;

    int buttonToPress_;
    HHOOK hook_;
};

thread_local BoxWatcher* BoxWatcher::current = nullptr;

// A window that lives as long as its owner.
class HiddenWindow {
  public:
    HiddenWindow()
        : handle_(CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, nullptr,
                                  nullptr)) {}
    HiddenWindow(const HiddenWindow&) = delete;
    HiddenWindow& operator=(const HiddenWindow&) = delete;
    HiddenWindow(HiddenWindow&&) = delete;
    HiddenWindow& operator=(HiddenWindow&&) = delete;
    ~HiddenWindow() { DestroyWindow(handle_); }

    [[nodiscard]] HWND Handle() const { return handle_; }

  private:
    HWND handle_;
};

TEST(WindowsMessagePresenter, AQuestionIsShownAsAskedAndGivesTheAnswer) {
    const HiddenWindow owner;
    const BoxWatcher watcher(IDYES);
    const int answer = toolkit::WindowsMessagePresenter().Show(owner.Handle(), L"Жук löschen?", L"Title",
                                                               MB_ICONQUESTION | MB_YESNO | MB_DEFBUTTON2);
    EXPECT_EQ(answer, IDYES);
    EXPECT_EQ(watcher.title, L"Title");
    EXPECT_EQ(watcher.text, L"Жук löschen?");
    EXPECT_EQ(watcher.owner, owner.Handle());
    EXPECT_EQ(watcher.preselectedButton, IDNO);
    EXPECT_TRUE(watcher.hasIcon);
}

TEST(WindowsMessagePresenter, ABoxNeedsNoOwner) {
    const BoxWatcher watcher(IDCANCEL);
    EXPECT_EQ(
        toolkit::WindowsMessagePresenter().Show(nullptr, L"Text", L"Title", MB_ICONWARNING | MB_OKCANCEL),
        IDCANCEL);
    EXPECT_EQ(watcher.owner, nullptr);
    EXPECT_EQ(watcher.preselectedButton, IDOK);
}

TEST(WindowsMessagePresenter, AWindowIsLiveUntilItIsDestroyed) {
    const toolkit::WindowsMessagePresenter presenter;
    HWND window = nullptr;
    {
        const HiddenWindow hidden;
        window = hidden.Handle();
        ASSERT_NE(window, nullptr);
        EXPECT_TRUE(presenter.IsLive(window));
    }
    EXPECT_FALSE(presenter.IsLive(window));
    EXPECT_FALSE(presenter.IsLive(nullptr));
}

}  // namespace
}  // namespace corvane::test
