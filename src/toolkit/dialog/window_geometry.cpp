#include "toolkit/dialog/window_geometry.h"

#include <algorithm>

#include "toolkit/system/libraries.h"

namespace corvane::toolkit {

UINT WindowDotsPerInch(HWND window) {
    static const auto kDpiForWindow =
        FindSystemFunction<UINT(WINAPI*)(HWND)>(L"user32.dll", "GetDpiForWindow");
    const UINT dotsPerInch = kDpiForWindow != nullptr ? kDpiForWindow(window) : 0;
    if (dotsPerInch != 0) {
        return dotsPerInch;
    }
    const HDC screen = GetDC(nullptr);
    const int systemWide = screen != nullptr ? GetDeviceCaps(screen, LOGPIXELSX) : USER_DEFAULT_SCREEN_DPI;
    ReleaseDC(nullptr, screen);
    return static_cast<UINT>(systemWide);
}

int SystemMetric(int metric, UINT dotsPerInch) {
    static const auto kMetricForDpi =
        FindSystemFunction<int(WINAPI*)(int, UINT)>(L"user32.dll", "GetSystemMetricsForDpi");
    return kMetricForDpi != nullptr ? kMetricForDpi(metric, dotsPerInch) : GetSystemMetrics(metric);
}

void TakeOverScaling(HWND dialog) {
    // DIALOG_DPI_CHANGE_BEHAVIORS: DDC_DISABLE_ALL, as value and as mask.
    constexpr int kDisableAll = 1;
    static const auto kSetBehavior =
        FindSystemFunction<BOOL(WINAPI*)(HWND, int, int)>(L"user32.dll", "SetDialogDpiChangeBehavior");
    if (kSetBehavior != nullptr) {
        kSetBehavior(dialog, kDisableAll, kDisableAll);
    }
}

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

void PlaceHiddenWindow(HWND window, const RECT& restored, const std::function<UINT()>& dotsPerInch) {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    placement.rcNormalPosition = restored;
    placement.showCmd = SW_HIDE;
    const UINT before = dotsPerInch();
    SetWindowPlacement(window, &placement);
    if (dotsPerInch() != before) {
        SetWindowPlacement(window, &placement);
    }
}

void ShowNeverMaximised(HWND window) {
    ShowWindow(window, SW_SHOWNORMAL);
    if (IsZoomed(window) != FALSE) {
        ShowWindow(window, SW_RESTORE);
    }
}

}  // namespace corvane::toolkit
