#include "toolkit/system/icon.h"

#include <utility>

#include "toolkit/dialog/window_geometry.h"

namespace corvane::toolkit {

UniqueIcon LoadIconResource(int id, int sizePixels) {
    return UniqueIcon(static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(id),
                                                    IMAGE_ICON, sizePixels, sizePixels, LR_DEFAULTCOLOR)));
}

void ShowWindowIcons(HWND window, UINT dotsPerInch, int id, UniqueIcon& largeIcon, UniqueIcon& smallIcon) {
    UniqueIcon newLarge = LoadIconResource(id, SystemMetric(SM_CXICON, dotsPerInch));
    UniqueIcon newSmall = LoadIconResource(id, SystemMetric(SM_CXSMICON, dotsPerInch));
    // The small one first: to a large icon alone the system makes a small one of its own.
    SendMessageW(window, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(newSmall.get()));
    SendMessageW(window, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(newLarge.get()));
    // Only now may the icons shown until here go.
    largeIcon = std::move(newLarge);
    smallIcon = std::move(newSmall);
}

}  // namespace corvane::toolkit
