#pragma once

#include <string>
#include <vector>

#include "tests/kit/driver/window.h"

namespace corvane::test {

/// One item of a menu, as it was when it was looked at.
struct MenuItem {
    int depth = 0;  ///< 0 for the bar itself, or for the system menu's items.
    int id = 0;     ///< 0 for a pop-up or a separator.
    std::wstring text;
    bool isSeparator = false;
    bool isEnabled = false;
    /// Drawn grey, as a disabled item of a menu that was loaded or changed the usual way is.
    bool isGrey = false;

    bool operator==(const MenuItem&) const = default;
};

/// The items of the window's menu bar with their pop-ups, depth first.
[[nodiscard]] std::vector<MenuItem> MenuBarOf(const Window& window);
/// The items of the window's system menu.
[[nodiscard]] std::vector<MenuItem> SystemMenuOf(const Window& window);
/// The item with that command; throws Failure where there is none.
[[nodiscard]] MenuItem MenuItemOf(const Window& window, int id);

}  // namespace corvane::test
