#pragma once

#include "reporting/error_reporter.h"
#include "toolkit/system/window_handle.h"

namespace corvane::reporting {

/// What Windows tells its user who shuts it down while something is not stored yet.
inline constexpr wchar_t kUnsavedChangesReason[] = L"Some changes has not been saved.";

/// The reason of a window against the end of the session: the one above where something would be lost, else
/// none.
[[nodiscard]] constexpr const wchar_t* ReasonAgainstEnd(bool hasUnsavedChanges) {
    return hasUnsavedChanges ? kUnsavedChangesReason : nullptr;
}

/// Tells whether a window may close: at once without unsaved changes, else only if the user answers the
/// question whether they may be lost with Yes.
[[nodiscard]] bool MayLeave(bool isDirty, ErrorReporter& reporter, toolkit::WindowHandle owner);

}  // namespace corvane::reporting
