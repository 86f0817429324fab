#include "toolkit/window_scale.h"

#include "toolkit/system_function.h"

namespace toolkit {

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

}  // namespace toolkit
