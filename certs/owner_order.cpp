#include "certs/owner_order.h"

#include <algorithm>
#include <string>

namespace corvane {

namespace {

struct KeyedRow {
    std::wstring_view key;
    bool lacksField = false;
    std::size_t row = 0;
    std::size_t position = 0;  ///< Before sorting.
};

}  // namespace

std::optional<std::wstring_view> OwnerSortKey(std::wstring_view owner, std::wstring_view fieldKey) {
    std::wstring start = L",";
    start += fieldKey;
    start += L'=';
    const std::wstring_view ownerStart = std::wstring_view(start).substr(1);
    if (owner.starts_with(ownerStart)) {
        return owner.substr(ownerStart.size());
    }
    const std::size_t found = owner.find(start);
    return found == std::wstring_view::npos ? std::nullopt
                                            : std::optional(owner.substr(found + start.size()));
}

void SortOwnerRows(std::vector<std::size_t>& rows, const std::vector<std::wstring_view>& owners,
                   std::wstring_view fieldKey, SortDirection direction) {
    std::vector<KeyedRow> keyed;
    keyed.reserve(rows.size());
    for (const std::size_t row : rows) {
        const std::optional<std::wstring_view> key = OwnerSortKey(owners[row], fieldKey);
        keyed.push_back({key.value_or(owners[row]), !key, row, keyed.size()});
    }
    const bool isDescending = direction == SortDirection::kDescending;
    std::sort(keyed.begin(), keyed.end(), [isDescending](const KeyedRow& left, const KeyedRow& right) {
        if (left.lacksField != right.lacksField) {
            return right.lacksField;
        }
        const int order = left.key.compare(right.key);
        if (order != 0) {
            return isDescending ? order > 0 : order < 0;
        }
        return left.position < right.position;
    });
    std::transform(keyed.begin(), keyed.end(), rows.begin(), [](const KeyedRow& row) { return row.row; });
}

}  // namespace corvane
