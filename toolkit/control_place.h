#pragma once

#include <windows.h>

namespace toolkit {

/// The control's rectangle in the client area of its dialog, in pixels.
[[nodiscard]] RECT PlaceOf(HWND control);

/// Puts a window in the middle of its owner, but wholly on the owner's screen where it fits there.
void CenterOver(HWND window, HWND owner);

}  // namespace toolkit
