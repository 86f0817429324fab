#include "toolkit/window_scale.h"

#include <initializer_list>

#include "toolkit/control_place.h"
#include "toolkit/system_function.h"

namespace toolkit {

namespace {

void ScaleRectangle(RECT& rectangle, UINT from, UINT to) {
    for (LONG* edge : {&rectangle.left, &rectangle.top, &rectangle.right, &rectangle.bottom}) {
        *edge = MulDiv(*edge, static_cast<int>(to), static_cast<int>(from));
    }
}

}  // namespace

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

HFONT ScaledFont(HFONT font, UINT from, UINT to) {
    LOGFONTW description = {};
    if (font == nullptr || GetObjectW(font, sizeof description, &description) == 0) {
        return nullptr;
    }
    description.lfHeight = MulDiv(description.lfHeight, static_cast<int>(to), static_cast<int>(from));
    description.lfWidth = 0;
    return CreateFontIndirectW(&description);
}

void RescaleControls(HWND dialog, HFONT font, UINT from, UINT to) {
    for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        RECT place = PlaceOf(child);
        ScaleRectangle(place, from, to);
        if (font != nullptr) {
            SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        }
        SetWindowPos(child, nullptr, place.left, place.top, place.right - place.left,
                     place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

}  // namespace toolkit
