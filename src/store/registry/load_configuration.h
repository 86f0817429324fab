#pragma once

#include "reporting/error_reporter.h"
#include "store/records.h"
#include "store/registry/registry_access.h"
#include "toolkit/system/window_handle.h"

namespace corvane::store {

/// Reads the whole configuration of the current user into `state`, which starts afresh: the catalogue of CS
/// profile names, the global settings and the profiles with their rules. Where the program key has no
/// profile yet, a profile "default" is written first. The dirty flag is false afterwards.
///
/// Returns false after a failure to open, create or enumerate a key: it is reported to `owner`, and the
/// caller ends the program. A value that cannot be read is reported and keeps its default.
/// Throws std::invalid_argument where there is neither a profile nor a CS profile for a first one; nothing of
/// the profile "default" is written then.
[[nodiscard]] bool LoadConfiguration(ConfigurationState& state, RegistryAccess& registry,
                                     reporting::ErrorReporter& reporter, toolkit::WindowHandle owner);

/// Tells whether a stored rectangle is put back at start: only with both its top and its left non-zero. A
/// window placed exactly at an edge of the screen is deliberately not restored.
[[nodiscard]] bool ShouldRestoreWindow(const WindowRectangle& stored);

/// Orders the names of a profile's rule keys by their numbers: the decimal number behind a name's last
/// blank, of the whole name where it has none, 0 where there is none. Names of equal numbers keep their
/// order.
///
/// The outcome is that of n - 2 passes of adjacent exchanges over n names, deliberately one pass short: fewer
/// than three names stay as they are, and a last name whose number is smaller than every other one comes
/// second. So existing configurations keep the order of rules that their users know.
void OrderRuleKeys(TextList& names);

}  // namespace corvane::store
