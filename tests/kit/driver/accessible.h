#pragma once

#include <windows.h>

#include <string>

#include "tests/kit/driver/window.h"

namespace corvane::test {

/// What a screen reader hears of a control, through the platform's accessibility interface (IAccessible).
struct AccessibleView {
    std::wstring name;
    LONG role = 0;   ///< ROLE_SYSTEM_...
    LONG state = 0;  ///< STATE_SYSTEM_...
};

/// Throws Failure where the platform knows no such object.
[[nodiscard]] AccessibleView AccessibleOf(const Window& control);

}  // namespace corvane::test
