#pragma once

namespace corvane {

/// What Windows tells its user who shuts it down while something is not stored yet.
inline constexpr wchar_t kUnsavedChangesReason[] = L"Some changes has not been saved.";

/// The reason of a window against the end of the session: the one above where something would be lost, else
/// none.
[[nodiscard]] constexpr const wchar_t* ReasonAgainstEnd(bool hasUnsavedChanges) {
    return hasUnsavedChanges ? kUnsavedChangesReason : nullptr;
}

}  // namespace corvane
