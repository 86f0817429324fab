#pragma once

#include <cstddef>
#include <string>

#include "config/records.h"

namespace corvane {

/// The title of the profile list's only column.
inline constexpr wchar_t kProfileColumnTitle[] = L"Profiles";

/// The titles of the rule list's columns in the order in which they are inserted, each at position 0, so
/// that the last one stands leftmost.
[[nodiscard]] TextList RuleColumnInsertionOrder();

/// The title of the column at position `column`, from 0 at the left, out of the titles in insertion order.
/// A column that is none throws std::invalid_argument.
[[nodiscard]] std::wstring ColumnTitle(const TextList& columnNames, std::size_t column);

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

}  // namespace corvane
