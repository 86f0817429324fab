#pragma once

#include <string>

#include "tests/kit/driver/window.h"

namespace corvane::test {

/// Brings an open dialog to screens of smaller and larger scales and back: there no text may be cut off and
/// no controls overlap, and back at its own everything is where it was. A picture at half as much again is
/// kept.
void ExpectScaleChangesKeepPlaces(const Window& dialog, const std::string& name);

/// The same for a dialog that its user can resize: back at its own scale, each size gives the places that it
/// gave before.
void ExpectScaleChangesKeepResizablePlaces(const Window& dialog, const std::string& name);

}  // namespace corvane::test
