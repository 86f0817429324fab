#pragma once

#include "app/reporting/error_reporter.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// Tells whether a window may close: at once without unsaved changes, else only if the user answers the
/// question whether they may be lost with Yes.
[[nodiscard]] bool MayLeave(bool isDirty, ErrorReporter& reporter, toolkit::WindowHandle owner);

}  // namespace corvane
