#pragma once

#include <optional>

#include "config/records.h"
#include "editors/editor_services.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// Lets the user create or change one rule of `profile`; a rule without an operation is a new one.
/// `maskSuggestions` are offered for its masks. Returns the new rule, or none when the user cancels.
[[nodiscard]] std::optional<Rule> EditRule(toolkit::WindowHandle owner, const Profile& profile,
                                           const TextList& maskSuggestions, const Rule& rule,
                                           const EditorServices& services);

}  // namespace corvane
