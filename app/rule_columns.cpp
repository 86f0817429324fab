#include "app/rule_columns.h"

#include <algorithm>
#include <stdexcept>

#include "app/rule_row.h"

namespace corvane {

TextList RuleColumnInsertionOrder() {
    return {L"Extra", L"CS profile",  L"Masks", L"Error folder", L"Output folder", L"Input folder",
            L"Rules", L"Description", L""};
}

std::wstring ColumnTitle(const TextList& columnNames, std::size_t column) {
    if (column >= kRuleColumnCount || columnNames.size() != kRuleColumnCount) {
        throw std::invalid_argument("The rule list has no such column.");
    }
    return columnNames[kRuleColumnCount - 1 - column];
}

RuleColumnWidths LayOutRuleColumns(int listClientWidth, int scrollBarWidth, bool isFirstTime) {
    constexpr int kOtherColumns = static_cast<int>(kRuleColumnCount) - 1;
    const int width = isFirstTime ? listClientWidth - scrollBarWidth : listClientWidth;
    const int numberWidth = 3 * scrollBarWidth;
    // A list narrower than the number column has no room for the others; a negative width would not hide
    // them, but ask the list to fit them to their texts.
    return {.number = numberWidth, .other = std::max(0, (width - numberWidth) / kOtherColumns)};
}

int LayOutProfileColumn(int listClientWidth, int scrollBarWidth, bool isFirstTime) {
    return std::max(0, isFirstTime ? listClientWidth - scrollBarWidth : listClientWidth);
}

}  // namespace corvane
