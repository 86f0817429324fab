#include "toolkit/dialog/modal_state.h"

#include <algorithm>

#include "toolkit/dialog/user_command.h"

namespace corvane::toolkit {

namespace {

std::vector<HWND> WindowsOfThread() {
    std::vector<HWND> windows;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM list) {
            // NOLINTNEXTLINE(performance-no-int-to-ptr): the platform hands the pointer over as a number.
            reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    return windows;
}

bool IsToolWindow(HWND window) {
    return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) != 0;
}

bool HasCaption(HWND window) {
    return (GetWindowLongPtrW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
}

// A window with a caption counts when it is hidden, too: a dialog that is being made, or one whose owner is
// minimised. What else is hidden belongs to the system, such as the windows of input methods.
bool TakesInput(HWND window) {
    return IsWindowEnabled(window) != FALSE && !IsToolWindow(window) &&
           (IsWindowVisible(window) != FALSE || HasCaption(window));
}

HWND TopmostVisible(const std::vector<HWND>& windows) {
    const auto found = std::find_if(windows.begin(), windows.end(), [](HWND window) {
        return IsWindowVisible(window) != FALSE && !IsToolWindow(window);
    });
    return found != windows.end() ? *found : nullptr;
}

}  // namespace

ModalState::ModalState(HWND exempt)
    : active_(GetActiveWindow()), focus_(GetFocus()), wasForeground_(GetForegroundWindow() == active_) {
    const HWND left = exempt != nullptr ? GetAncestor(exempt, GA_ROOT) : nullptr;
    const std::vector<HWND> windows = WindowsOfThread();
    inUse_ = active_ != nullptr ? active_ : TopmostVisible(windows);
    std::copy_if(windows.begin(), windows.end(), std::back_inserter(disabled_),
                 [left](HWND window) { return window != left && TakesInput(window); });
    for (const HWND window : disabled_) {
        EnableWindow(window, FALSE);
    }
}

ModalState::~ModalState() {
    for (const HWND window : disabled_) {
        if (IsWindow(window) != FALSE) {
            EnableWindow(window, TRUE);
        }
    }
    GiveBackActivation();
}

void ModalState::GiveBackActivation() const {
    if (active_ != nullptr && GetActiveWindow() == nullptr && IsWindow(active_) != FALSE) {
        // A window that closes while all others are disabled hands over to another program. Windows lets a
        // program take the foreground back only where the user's last input went to it.
        if (wasForeground_) {
            SetForegroundWindow(active_);
        } else {
            SetActiveWindow(active_);
        }
    }
    if (focus_ != nullptr && GetFocus() == nullptr && GetActiveWindow() == GetAncestor(focus_, GA_ROOT)) {
        SetFocus(focus_);
    }
}

void WindowsInputGate::Shut() {
    if (depth_++ == 0) {
        state_.emplace();
    }
}

void WindowsInputGate::Open() {
    if (--depth_ == 0) {
        DiscardUserInput();
        state_.reset();
    }
}

}  // namespace corvane::toolkit
