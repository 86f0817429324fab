#include "config/rule_key_order.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "toolkit/format_text.h"

namespace corvane {

namespace {

struct NumberedName {
    std::int32_t number = 0;
    std::wstring name;
};

std::int32_t NumberOf(std::wstring_view name) {
    const std::size_t blank = name.rfind(L' ');
    return toolkit::ParseDecimal(blank == std::wstring_view::npos ? name : name.substr(blank + 1));
}

}  // namespace

void OrderRuleKeys(TextList& names) {
    if (names.size() < 3) {
        return;
    }
    const std::int32_t lastNumber = NumberOf(names.back());
    std::vector<NumberedName> ordered;
    for (std::wstring& name : names) {
        const std::int32_t number = NumberOf(name);
        ordered.push_back({number, std::move(name)});
    }
    const bool lastIsSmallest =
        std::all_of(ordered.begin(), ordered.end() - 1,
                    [lastNumber](const NumberedName& other) { return lastNumber < other.number; });
    std::stable_sort(ordered.begin(), ordered.end(), [](const NumberedName& left, const NumberedName& right) {
        return left.number < right.number;
    });
    // Each pass moves a name by at most one place to the left, and n - 2 passes order all others: only a
    // last name that belongs first is left short of its place, by one. Deliberately so, see the header.
    if (lastIsSmallest) {
        std::swap(ordered[0], ordered[1]);
    }
    std::transform(ordered.begin(), ordered.end(), names.begin(),
                   [](NumberedName& entry) { return std::move(entry.name); });
}

}  // namespace corvane
