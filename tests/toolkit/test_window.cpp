#include "tests/toolkit/test_window.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace corvane::test {

namespace {

constexpr UINT_PTR kSubclass = 1;

}  // namespace

TestWindow::TestWindow()
    : handle_(CreateWindowExW(0, L"STATIC", L"Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 300, 200,
                              nullptr, nullptr, nullptr, nullptr)) {
    SetWindowSubclass(handle_, &TestWindow::Procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
    SetActiveWindow(handle_);
}

TestWindow::~TestWindow() {
    if (IsWindow(handle_) != FALSE) {
        RemoveWindowSubclass(handle_, &TestWindow::Procedure, kSubclass);
        DestroyWindow(handle_);
    }
}

bool TestWindow::HasSeen(UINT message) const {
    return std::find(seen_.begin(), seen_.end(), message) != seen_.end();
}

LRESULT CALLBACK TestWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                       UINT_PTR /*subclass*/, DWORD_PTR self) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the platform keeps the pointer as a number.
    auto* const testWindow = reinterpret_cast<TestWindow*>(self);
    testWindow->seen_.push_back(message);
    if (message == WM_APP && testWindow->onAppMessage) {
        testWindow->onAppMessage();
        return 0;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

MessageWatcher::MessageWatcher(HWND window, std::function<void(UINT message)> watch)
    : window_(window), watch_(std::move(watch)) {
    SetWindowSubclass(window_, &MessageWatcher::Procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
}

MessageWatcher::~MessageWatcher() {
    RemoveWindowSubclass(window_, &MessageWatcher::Procedure, kSubclass);
}

LRESULT CALLBACK MessageWatcher::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR /*subclass*/, DWORD_PTR self) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the platform keeps the pointer as a number.
    reinterpret_cast<MessageWatcher*>(self)->watch_(message);
    return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace corvane::test
