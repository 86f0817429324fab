#pragma once

#include "tests/kit/driver/probe_protocol.h"
#include "tests/kit/driver/window.h"

namespace corvane::test {

/// An icon as it is shown.
struct IconView {
    bool isThere = false;
    int width = 0;   ///< pixels
    int height = 0;  ///< pixels
    /// The picture is that of the resource that was asked for.
    bool showsResource = false;
    /// Number of the system's own icon (32513 error, 32514 question, 32515 warning, 32516 information), or 0.
    int systemIcon = 0;
};

/// The icon of a control or a window, compared with the program's icon resource `resource` (0: none).
[[nodiscard]] IconView IconOf(const Window& window, IconPlace place, int resource = 0);

}  // namespace corvane::test
