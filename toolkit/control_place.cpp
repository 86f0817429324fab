#include "toolkit/control_place.h"

#include <algorithm>

namespace toolkit {

RECT PlaceOf(HWND control) {
    RECT place = {};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void CenterOver(HWND window, HWND owner) {
    RECT own = {};
    RECT around = {};
    GetWindowRect(window, &own);
    GetWindowRect(owner, &around);
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTONEAREST), &monitor);
    const LONG width = own.right - own.left;
    const LONG height = own.bottom - own.top;
    const RECT& screen = monitor.rcWork;
    // The upper left corner wins where the screen is too small: the title bar must stay within reach.
    const LONG left =
        std::max(screen.left, std::min(screen.right - width, (around.left + around.right - width) / 2));
    const LONG top =
        std::max(screen.top, std::min(screen.bottom - height, (around.top + around.bottom - height) / 2));
    SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace toolkit
