#pragma once

#include <windows.h>

#include <functional>

namespace toolkit {

/// Gives a hidden window the rectangle that it has while restored, frame included, in pixels
/// (SetWindowPlacement). `dotsPerInch` tells the scale that the window has at the moment.
///
/// On the way to a screen of another scale the system has the window scaled, and the rectangle, which was
/// measured on that screen, with it; then it is given once more, or the window would grow at every start.
void PlaceHiddenWindow(HWND window, const RECT& restored, const std::function<UINT()>& dotsPerInch);

/// Shows a window for the first time, in its restored size or minimised, whatever its shortcut says: the
/// system puts what the shortcut says in the place of a program's first SW_SHOWNORMAL, and a window without
/// a maximise box could not be brought back from being maximised.
void ShowNeverMaximised(HWND window);

}  // namespace toolkit
