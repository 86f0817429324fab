#pragma once

#include <string>
#include <vector>

#include "tests/kit/driver/window.h"

namespace corvane::test {

/// Tells a window that it has come from a screen of one scale to one of another, both in dots per inch, as
/// the system does: with its own size scaled from the one to the other. Comes back when the window has dealt
/// with it.
void MoveToScreenOfScale(const Window& window, UINT from, UINT to);

/// Where everything in a dialog is: its own size, and the place of each child in it.
struct DialogPlaces {
    SIZE size;
    std::vector<RECT> children;  ///< In the order of the Tab key.
};

[[nodiscard]] DialogPlaces PlacesIn(const Window& dialog);
/// What is elsewhere now, in words, one for each; empty where everything is in its place.
[[nodiscard]] std::vector<std::wstring> Moved(const Window& dialog, const DialogPlaces& expected);

}  // namespace corvane::test
