#pragma once

#include <optional>

#include "app/services.h"
#include "config/records.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// Lets the user edit the file name extensions of the settings. Returns the settings with the new
/// extensions, or none when the user cancels.
[[nodiscard]] std::optional<AppSettings> EditConfigurations(toolkit::WindowHandle owner,
                                                            const AppSettings& settings,
                                                            const Services& services);

}  // namespace corvane
