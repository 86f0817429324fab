#pragma once

#include "reporting/error_reporter.h"
#include "store/records.h"
#include "store/registry/registry_access.h"
#include "toolkit/system/window_handle.h"

namespace corvane::store {

/// Writes the whole configuration to the program key of the current user, with `restored`, the main window's
/// rectangle when neither minimised nor maximised. Keys of profiles that are no longer there are deleted, the
/// rules of every profile are written afresh. It is no transaction: a failure in between leaves what was
/// written by then.
///
/// Every failure is reported to `owner`. The records in memory stay as they are; only the dirty flag is
/// cleared, once the end is reached. It stays set where the program key cannot be opened or searched, or a
/// removed profile cannot be deleted; after other failures it is deliberately cleared all the same.
void SaveConfiguration(ConfigurationState& state, const WindowRectangle& restored, RegistryAccess& registry,
                       reporting::ErrorReporter& reporter, toolkit::WindowHandle owner);

}  // namespace corvane::store
