#pragma once

#include <map>
#include <string>

#include "tests/driver/window.h"

namespace driver {

/// The texts of the tooltip control that belongs to `dialog`, by the id of the control they explain.
/// Throws Failure where the dialog has no tooltip control.
[[nodiscard]] std::map<int, std::wstring> ToolTipTexts(const Window& dialog);

}  // namespace driver
