#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "store/records.h"
#include "toolkit/text/system_text.h"

namespace corvane::app {

/// What a right click on a cell of a column shows.
enum class CellDetail { kCell, kMasks, kDescription };

/// One column of the rule list.
struct RuleColumn {
    const wchar_t* title = L"";
    /// The text of its cell; `position` is the rule's position in its profile, from 0.
    std::wstring (*text)(const store::Rule& rule, std::size_t position) = nullptr;
    int scrollBarWidths = 0;  ///< Its width in widths of a scroll bar; 0 for a share of what such ones leave.
    CellDetail detail = CellDetail::kCell;
};

/// The columns from left to right.
[[nodiscard]] std::span<const RuleColumn> RuleColumns();

/// The leftmost column, which counts the rules from 1.
inline constexpr std::size_t kNumberColumn = 0;

/// The column at a position, from 0 at the left. A position that is none throws std::invalid_argument.
[[nodiscard]] const RuleColumn& RuleColumnAt(std::size_t column);

/// What a rule carries beyond its folders, as short as a cell needs it.
[[nodiscard]] std::wstring ExtraText(const store::Rule& rule);

/// The title of the profile list's only column.
inline constexpr wchar_t kProfileColumnTitle[] = L"Profiles";

/// Shares the client width of the rule list out among its columns; all in pixels, from left to right. The
/// first time there is no vertical scroll bar yet, so room is left for one.
[[nodiscard]] std::vector<int> RuleColumnWidths(int listClientWidth, int scrollBarWidth, bool isFirstTime);

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
