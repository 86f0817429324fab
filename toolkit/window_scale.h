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

}  // namespace toolkit
