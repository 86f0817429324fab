#pragma once

#include "app/services.h"
#include "store/records.h"
#include "toolkit/system/window_handle.h"

namespace corvane::app {

/// Writes the rules of the current profile to a file that the user chooses; `owner` is the main window.
void ExportProfileRules(const store::ConfigurationState& state, toolkit::WindowHandle owner,
                        const Services& services);

/// Appends the rules of a file that the user chooses to the current profile and sets the dirty flag. Returns
/// whether the rule list has to be filled again; false when the user cancelled, the file could not be read
/// or holds no record, and then nothing has changed.
[[nodiscard]] bool ImportProfileRules(store::ConfigurationState& state, toolkit::WindowHandle owner,
                                      const Services& services);

}  // namespace corvane::app
