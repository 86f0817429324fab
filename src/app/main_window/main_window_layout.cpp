#include "app/main_window/main_window_layout.h"

#include <algorithm>

namespace corvane::app {

Size MinimumTrackingSize(int buttonWidth, int buttonHeight, int scrollBarWidth, int scrollBarArrowHeight) {
    return {.width = 11 * buttonWidth + 2 * scrollBarWidth,
            .height = 2 * (scrollBarArrowHeight + 5 * buttonHeight)};
}

Point MinimisedIconPosition(const Size& client, const Size& icon) {
    return {.x = (client.width - icon.width + 1) / 2, .y = (client.height - icon.height + 1) / 2};
}

std::optional<MainCommand> FindMainCommand(int id) {
    const auto* const route =
        std::find_if(kCommandRoutes.begin(), kCommandRoutes.end(),
                     [id](const CommandRoute& candidate) { return candidate.id == id; });
    return route == kCommandRoutes.end() ? std::nullopt : std::optional(route->command);
}

}  // namespace corvane::app
