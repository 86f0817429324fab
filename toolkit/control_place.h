#pragma once

#include <windows.h>

namespace toolkit {

/// By how many pixels a control moves and grows.
struct PlaceChange {
    int moveX = 0;
    int moveY = 0;
    int growX = 0;
    int growY = 0;
};

/// Moves and grows a control within its dialog.
void ChangePlace(HWND control, const PlaceChange& change);

/// The control's rectangle in the client area of its dialog, in pixels.
[[nodiscard]] RECT PlaceOf(HWND control);

/// Puts a window in the middle of its owner, but wholly on the owner's screen where it fits there.
void CenterOver(HWND window, HWND owner);

}  // namespace toolkit
