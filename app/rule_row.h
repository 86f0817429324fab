#pragma once

#include <cstddef>
#include <string>

#include "config/records.h"

namespace corvane {

/// The rule list's columns from left to right.
inline constexpr std::size_t kNumberColumn = 0;
inline constexpr std::size_t kDescriptionColumn = 1;
inline constexpr std::size_t kOperationColumn = 2;
inline constexpr std::size_t kInputFolderColumn = 3;
inline constexpr std::size_t kOutputFolderColumn = 4;
inline constexpr std::size_t kErrorFolderColumn = 5;
inline constexpr std::size_t kMasksColumn = 6;
inline constexpr std::size_t kCsProfileColumn = 7;
inline constexpr std::size_t kExtraColumn = 8;
inline constexpr std::size_t kRuleColumnCount = 9;

/// The text of one cell of the rule list, made when the list asks for it. `position` is the rule's position
/// in its profile, from 0; `column` is one of the columns above, any other throws std::invalid_argument.
[[nodiscard]] std::wstring RuleCellText(const Rule& rule, std::size_t position, std::size_t column);

/// What a rule carries beyond its folders, as short as a cell needs it.
[[nodiscard]] std::wstring ExtraText(const Rule& rule);

}  // namespace corvane
