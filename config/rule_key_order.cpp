#include "config/rule_key_order.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "toolkit/format_text.h"

namespace corvane {

namespace {

/// The usual name, a blank and a few digits, is read from its end in one go; any other one by the rules.
std::int32_t NumberOf(std::wstring_view name) {
    constexpr std::size_t kDigitsThatFit = 9;
    std::int32_t number = 0;
    std::int32_t factor = 1;
    std::size_t start = name.size();
    while (start > 0 && name.size() - start < kDigitsThatFit && name[start - 1] >= L'0' &&
           name[start - 1] <= L'9') {
        --start;
        number += (name[start] - L'0') * factor;
        factor *= 10;
    }
    if (start > 0 && start < name.size() && name[start - 1] == L' ') {
        return number;
    }
    const std::size_t blank = name.rfind(L' ');
    return toolkit::ParseDecimal(blank == std::wstring_view::npos ? name : name.substr(blank + 1));
}

/// The positions of the numbers in ascending order; equal numbers keep theirs.
std::vector<std::uint32_t> OrderedPositions(const std::vector<std::int32_t>& numbers) {
    std::vector<std::uint32_t> order(numbers.size());
    const auto [lowest, highest] = std::minmax_element(numbers.begin(), numbers.end());
    const std::int64_t base = *lowest;
    const auto range = static_cast<std::size_t>(*highest - base);
    if (range > 2 * numbers.size()) {
        std::iota(order.begin(), order.end(), std::uint32_t{0});
        std::sort(order.begin(), order.end(), [&numbers](std::uint32_t left, std::uint32_t right) {
            return numbers[left] != numbers[right] ? numbers[left] < numbers[right] : left < right;
        });
        return order;
    }
    // Rules are numbered one after the other, so that as a rule each number has a place of its own: how many
    // numbers are smaller than it.
    std::vector<std::uint32_t> places(range + 2);
    for (const std::int32_t number : numbers) {
        ++places[static_cast<std::size_t>(number - base) + 1];
    }
    std::partial_sum(places.begin(), places.end(), places.begin());
    for (std::uint32_t position = 0; position < numbers.size(); ++position) {
        order[places[static_cast<std::size_t>(numbers[position] - base)]++] = position;
    }
    return order;
}

/// Puts every name into the place that `order` gives it, along the cycles in which they change places.
void Rearrange(TextList& names, std::vector<std::uint32_t>& order) {
    for (std::uint32_t first = 0; first < order.size(); ++first) {
        if (order[first] == first) {
            continue;
        }
        std::wstring displaced = std::move(names[first]);
        std::uint32_t place = first;
        while (order[place] != first) {
            const std::uint32_t next = order[place];
            names[place] = std::move(names[next]);
            order[place] = place;
            place = next;
        }
        names[place] = std::move(displaced);
        order[place] = place;
    }
}

}  // namespace

void OrderRuleKeys(TextList& names) {
    constexpr std::size_t kFewestToOrder = 3;
    if (names.size() < kFewestToOrder) {
        return;
    }
    std::vector<std::int32_t> numbers(names.size());
    std::transform(names.begin(), names.end(), numbers.begin(), NumberOf);
    if (std::is_sorted(numbers.begin(), numbers.end())) {
        return;
    }
    std::vector<std::uint32_t> order = OrderedPositions(numbers);
    // Each pass moves a name by at most one place to the left, and n - 2 passes order all others: only a
    // last name that belongs first is left short of its place, by one. Deliberately so, see the header.
    const bool lastNameIsSmallest = order[0] == names.size() - 1;
    if (lastNameIsSmallest) {
        std::swap(order[0], order[1]);
    }
    Rearrange(names, order);
}

}  // namespace corvane
