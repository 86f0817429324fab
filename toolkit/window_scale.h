#pragma once

#include <windows.h>

namespace toolkit {

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

/// Makes a font like the given one, scaled from one dots-per-inch figure to another. It belongs to the
/// caller; null when there is none to begin with.
[[nodiscard]] HFONT ScaledFont(HFONT font, UINT from, UINT to);

/// Scales every child of `dialog` from one dots-per-inch figure to another and gives it `font`, which must
/// outlive the controls; with null each keeps its own.
void RescaleControls(HWND dialog, HFONT font, UINT from, UINT to);

}  // namespace toolkit
