#include "tests/kit/driver/window.h"

#include <commctrl.h>

#include <array>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/waiting.h"

namespace corvane::test {
namespace {

LPARAM PointParameter(POINT point) {
    return MAKELPARAM(point.x, point.y);
}

}  // namespace

DWORD Window::Style() const {
    return static_cast<DWORD>(GetWindowLongPtrW(handle_, GWL_STYLE));
}

DWORD Window::ExtendedStyle() const {
    return static_cast<DWORD>(GetWindowLongPtrW(handle_, GWL_EXSTYLE));
}

std::wstring Window::ClassName() const {
    std::array<wchar_t, 256> name{};
    GetClassNameW(handle_, name.data(), static_cast<int>(name.size()));
    return name.data();
}

bool Window::IsOfClass(const wchar_t* name) const {
    return lstrcmpiW(ClassName().c_str(), name) == 0;
}

std::wstring Window::Text() const {
    const auto length = static_cast<std::size_t>(Send(WM_GETTEXTLENGTH));
    std::wstring text(length + 1, L'\0');
    const auto copied =
        static_cast<std::size_t>(Send(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
    text.resize(copied);
    return text;
}

std::wstring Window::Name() const {
    if (!IsLive()) {
        return L"a window that is gone";
    }
    // The caption as the system keeps it, so that a window that answers no message has a name too.
    std::array<wchar_t, 256> text{};
    InternalGetWindowText(handle_, text.data(), static_cast<int>(text.size()));
    std::wstring name = ClassName();
    const HWND parent = GetAncestor(handle_, GA_PARENT);
    const bool isChild = (Style() & WS_CHILD) != 0;
    if (isChild) {
        name += L" " + std::to_wstring(Id());
    }
    name += L" \"" + std::wstring(text.data()) + L"\"";
    if (isChild) {
        InternalGetWindowText(parent, text.data(), static_cast<int>(text.size()));
        name += L" of \"" + std::wstring(text.data()) + L"\"";
    }
    return name;
}

RECT Window::Bounds() const {
    RECT bounds{};
    if (!GetWindowRect(handle_, &bounds)) {
        throw Failure(L"The rectangle was wanted of " + Name() + L".");
    }
    return bounds;
}

RECT Window::BoundsInParent() const {
    RECT bounds = Bounds();
    MapWindowPoints(HWND_DESKTOP, GetParent(handle_), reinterpret_cast<POINT*>(&bounds), 2);
    return bounds;
}

SIZE Window::ClientSize() const {
    RECT client{};
    GetClientRect(handle_, &client);
    return {client.right, client.bottom};
}

RECT Window::ClientBounds() const {
    RECT client{};
    GetClientRect(handle_, &client);
    MapWindowPoints(handle_, HWND_DESKTOP, reinterpret_cast<POINT*>(&client), 2);
    return client;
}

RECT Window::RestoredBounds() const {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (!GetWindowPlacement(handle_, &placement)) {
        throw Failure(L"The placement was wanted of " + Name() + L".");
    }
    return placement.rcNormalPosition;
}

POINT Window::SmallestTrackingSize() const {
    MINMAXINFO info{};
    Send(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    return info.ptMinTrackSize;
}

Window Window::Control(int id) const {
    const HWND control = GetDlgItem(handle_, id);
    if (control == nullptr) {
        throw Failure(L"A control " + std::to_wstring(id) + L" was expected in " + Name() +
                      L", and there is none.");
    }
    return Window(control);
}

std::vector<Window> Window::Children() const {
    std::vector<Window> children;
    for (HWND child = GetWindow(handle_, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        children.emplace_back(child);
    }
    return children;
}

Window Window::FocusOfThread() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(ThreadId(), &info) ? Window(info.hwndFocus) : Window();
}

LRESULT Window::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutW(handle_, message, wParam, lParam, SMTO_NORMAL, kLimitMilliseconds, &answer)) {
        throw Failure(L"An answer to message " + std::to_wstring(message) + L" was expected of " + Name() +
                      (IsLive() ? L", and none came: it is busy, or has opened a dialog." : L"."));
    }
    return static_cast<LRESULT>(answer);
}

void Window::Post(UINT message, WPARAM wParam, LPARAM lParam) const {
    if (!PostMessageW(handle_, message, wParam, lParam)) {
        throw Failure(L"Message " + std::to_wstring(message) + L" could not be posted to " + Name() + L".");
    }
}

void Window::SetText(const std::wstring& text) const {
    Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void Window::Type(const std::wstring& text) const {
    for (const wchar_t character : text) {
        Send(WM_CHAR, character, 1);
    }
}

void Window::PostKey(WPARAM virtualKey) const {
    Post(WM_KEYDOWN, virtualKey, 1);
    // The key may have closed the window already; then there is nobody who could see it released.
    PostMessageW(handle_, WM_KEYUP, virtualKey, static_cast<LPARAM>(0xC0000001));
}

void Window::PostLeftClick(POINT point) const {
    Post(WM_LBUTTONDOWN, MK_LBUTTON, PointParameter(point));
    Post(WM_LBUTTONUP, 0, PointParameter(point));
}

void Window::PostLeftDoubleClick(POINT point) const {
    PostLeftClick(point);
    Post(WM_LBUTTONDBLCLK, MK_LBUTTON, PointParameter(point));
    Post(WM_LBUTTONUP, 0, PointParameter(point));
}

void Window::PostRightClick(POINT point) const {
    Post(WM_RBUTTONDOWN, MK_RBUTTON, PointParameter(point));
    Post(WM_RBUTTONUP, 0, PointParameter(point));
}

void Window::WaitUntilGone() const {
    if (!WaitUntil([&] { return !IsLive(); })) {
        throw Failure(Name() + L" was expected to close, and is still there.");
    }
}

void Window::WaitUntilEnabled() const {
    if (!WaitUntil([&] { return IsEnabled(); })) {
        throw Failure(Name() + L" was expected to be enabled, and is not.");
    }
}

void Window::WaitForText(const std::wstring& text) const {
    std::wstring last;
    if (!WaitUntil([&] {
            last = Text();
            return last == text;
        })) {
        throw Failure(L"The text \"" + text + L"\" was expected of " + Name() + L"; it is \"" + last +
                      L"\".");
    }
}

void Window::WaitForFocus() const {
    if (!WaitUntil([&] { return HasFocus(); })) {
        throw Failure(L"The keyboard focus was expected on " + Name() + L"; it is on " +
                      FocusOfThread().Name() + L".");
    }
}

void UseScreenPixels() {
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_SYSTEM_AWARE);
}

}  // namespace corvane::test
