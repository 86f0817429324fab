#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "store/records.h"
#include "toolkit/text/system_text.h"

namespace corvane::app {

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
[[nodiscard]] std::wstring RuleCellText(const store::Rule& rule, std::size_t position, std::size_t column);

/// What a rule carries beyond its folders, as short as a cell needs it.
[[nodiscard]] std::wstring ExtraText(const store::Rule& rule);

/// The title of the profile list's only column.
inline constexpr wchar_t kProfileColumnTitle[] = L"Profiles";

/// The titles of the rule list's columns in the order in which they are inserted, each at position 0, so
/// that the last one stands leftmost.
[[nodiscard]] store::TextList RuleColumnInsertionOrder();

/// The title of the column at position `column`, from 0 at the left, out of the titles in insertion order.
/// A column that is none throws std::invalid_argument.
[[nodiscard]] std::wstring ColumnTitle(const store::TextList& columnNames, std::size_t column);

/// The widths of the rule list's columns, in pixels.
struct RuleColumnWidths {
    int number = 0;  ///< The leftmost column.
    int other = 0;   ///< Each of the eight others.

    bool operator==(const RuleColumnWidths&) const = default;
};

/// Shares the client width of the rule list out among its columns; all in pixels. The first time there is
/// no vertical scroll bar yet, so room is left for one.
[[nodiscard]] RuleColumnWidths LayOutRuleColumns(int listClientWidth, int scrollBarWidth, bool isFirstTime);

/// The same for the profile list's only column.
[[nodiscard]] int LayOutProfileColumn(int listClientWidth, int scrollBarWidth, bool isFirstTime);

/// The positions of the rules that the rule list shows, ascending: one row each, in this order.
///
/// A rule without an operation is never shown. With a search text only those rules are shown whose
/// description contains it, upper and lower case being alike as the system has it for all of Unicode.
/// Quick enough to run at every keystroke over ten thousand rules: each description is upper-cased at most
/// once, the search text once for all.
[[nodiscard]] std::vector<std::size_t> ListedRules(const std::vector<store::Rule>& rules,
                                                   const std::wstring& searchText,
                                                   const toolkit::SystemText& text);

}  // namespace corvane::app
