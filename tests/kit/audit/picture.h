#pragma once

#include <cstddef>
#include <string>

#include "tests/kit/driver/window.h"

namespace corvane::test {

/// Keeps a picture of the window with its frame, as it stands on the screen, under
/// "<folder of pictures>/<name>_<dpi>.png". The folder is what CORVANE_PICTURES names. Nothing at a scale of
/// which no pictures are kept.
void KeepPicture(const Window& window, const std::string& name);

/// The same of a window whose program is busy: nothing is asked of it, and what it has painted is what there
/// is.
void KeepPictureAsPainted(const Window& window, const std::string& name);

/// Colour of one point of the screen.
[[nodiscard]] COLORREF ScreenColour(POINT point);

/// Whether pictures are kept of the scale that the screen has: those of a few show what there is to see.
[[nodiscard]] bool IsPictureScale();

/// How many points of a rectangle of the screen have this colour.
[[nodiscard]] std::ptrdiff_t CountPoints(const RECT& place, COLORREF colour);

/// Dots per inch of the screen.
[[nodiscard]] int ScreenDpi();

}  // namespace corvane::test
