#pragma once

#include <map>
#include <string>

#include "tests/kit/driver/window.h"

namespace corvane::test {

/// The texts of the tooltip control that belongs to `dialog`, by the id of the control they explain.
/// Throws Failure where the dialog has no tooltip control.
[[nodiscard]] std::map<int, std::wstring> ToolTipTexts(const Window& dialog);

/// Rests the mouse on a control of `dialog` until its tip is on the screen, right at the control, and gives
/// the text of the tip; then takes the mouse away. Throws Failure where no tip comes.
[[nodiscard]] std::wstring ToolTipUnderTheMouse(const Window& dialog, const Window& control);

}  // namespace corvane::test
