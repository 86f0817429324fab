#pragma once

#include <windows.h>

#include <functional>

namespace corvane::toolkit {

/// The dots per inch that the window is shown with; the system's where Windows keeps only one figure for
/// all screens (GetDpiForWindow, else GetDeviceCaps).
[[nodiscard]] UINT WindowDotsPerInch(HWND window);

/// A system metric in pixels for windows of the given dots per inch (GetSystemMetricsForDpi, else
/// GetSystemMetrics).
[[nodiscard]] int SystemMetric(int metric, UINT dotsPerInch);

/// Keeps the dialog manager from scaling the dialog by itself when it comes to a screen of another scale,
/// because the dialog class does it and knows what follows from it (SetDialogDpiChangeBehavior; nothing
/// where Windows lacks it).
void TakeOverScaling(HWND dialog);

/// The control's rectangle in the client area of its dialog, in pixels.
[[nodiscard]] RECT PlaceOf(HWND control);

/// Puts a window in the middle of its owner, but wholly on the owner's screen where it fits there.
void CenterOver(HWND window, HWND owner);

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

}  // namespace corvane::toolkit
