#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "store/records.h"

namespace corvane::app {

/// The signature formats that a resigning rule reads and writes, as rows and descriptions show them.
[[nodiscard]] std::wstring SignatureFormatsText(const store::Rule& rule);

/// The name of a rule's archive format; empty where it is none of the two that there are.
[[nodiscard]] std::wstring ArchiveFormatText(const store::Rule& rule);

/// Everything that a rule carries beyond its folders, one item under the other, each with a blank line
/// after it. Empty for a rule that carries nothing else.
[[nodiscard]] std::wstring DescribeRule(const store::Rule& rule);

/// All masks of a rule, each after a line break, so that the text begins with one.
[[nodiscard]] std::wstring DescribeMasks(const store::Rule& rule);

/// The position of the rule that a row shows, from the text of the row's number cell; none if the profile,
/// which has `ruleCount` rules, has no such rule. Unlike a row's own position it is right also while the
/// search hides rules.
[[nodiscard]] std::optional<std::size_t> RulePositionFromNumberCell(const std::wstring& numberCell,
                                                                    std::size_t ruleCount);

}  // namespace corvane::app
