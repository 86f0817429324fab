#pragma once

#include <vector>

#include "config/records.h"

namespace corvane {

/// The masks that the rule editor offers, none of them twice: those of the profile's rules, rule by rule,
/// each at the place of its last occurrence; then one for each extension of signed, detached, encrypted,
/// encoded, hash and verification files and for each additional extension. Archives are not offered.
[[nodiscard]] TextList BuildMaskSuggestions(const AppSettings& settings, const std::vector<Rule>& rules);

}  // namespace corvane
