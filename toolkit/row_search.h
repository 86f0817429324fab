#pragma once

#include <algorithm>
#include <cstddef>

namespace toolkit {

/// The first of `count` rows that `isFound(row)` holds for, looked for from row `start` on, and where the
/// search wraps, then among those before it; -1 where there is none. That is how a list view asks its owner.
template <typename IsFound>
[[nodiscard]] int FirstRowFound(std::size_t count, int start, bool wraps, IsFound isFound) {
    const std::size_t first = start > 0 ? static_cast<std::size_t>(start) : 0;
    const std::size_t passed = wraps ? std::min(first, count) : 0;
    for (std::size_t row = first; row < count; ++row) {
        if (isFound(row)) {
            return static_cast<int>(row);
        }
    }
    for (std::size_t row = 0; row < passed; ++row) {
        if (isFound(row)) {
            return static_cast<int>(row);
        }
    }
    return -1;
}

}  // namespace toolkit
