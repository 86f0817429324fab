#include "certificates/session/wait_window.h"

namespace corvane::certificates {

ScreenPoint WaitWindowPlace(const store::WindowRectangle& parent, const store::WindowRectangle& window) {
    const std::int32_t width = window.right - window.left;
    const std::int32_t height = window.bottom - window.top;
    return {.left = parent.left + (parent.right - parent.left) / 2 - width / 2,
            .top = parent.top + (parent.bottom - parent.top) / 2 - height / 2};
}

}  // namespace corvane::certificates
