#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "config/records.h"
#include "toolkit/system_text.h"

namespace corvane {

/// The positions of the rules that the rule list shows, ascending: one row each, in this order.
///
/// A rule without an operation is never shown. With a search text only those rules are shown whose
/// description contains it, upper and lower case being alike as the system has it for all of Unicode.
/// Quick enough to run at every keystroke over ten thousand rules: each description is upper-cased at most
/// once, the search text once for all.
[[nodiscard]] std::vector<std::size_t> ListedRules(const std::vector<Rule>& rules,
                                                   const std::wstring& searchText,
                                                   const toolkit::SystemText& text);

}  // namespace corvane
