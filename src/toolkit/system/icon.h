#pragma once

#include <windows.h>

#include <memory>

namespace corvane::toolkit {

struct IconDestroyer {
    using pointer = HICON;
    void operator()(HICON icon) const { DestroyIcon(icon); }
};

/// An icon that is destroyed with its owner.
using UniqueIcon = std::unique_ptr<HICON, IconDestroyer>;

/// Loads the icon resource `id` of this program at `sizePixels`, from the picture that fits best
/// (LoadImageW). Empty when there is no such resource.
[[nodiscard]] UniqueIcon LoadIconResource(int id, int sizePixels);

/// Gives a window the icon resource `id` as its large and its small icon, in the sizes that the system has
/// for the window's scale. The two icons are kept by the caller until the window is gone.
void ShowWindowIcons(HWND window, UINT dotsPerInch, int id, UniqueIcon& largeIcon, UniqueIcon& smallIcon);

}  // namespace corvane::toolkit
