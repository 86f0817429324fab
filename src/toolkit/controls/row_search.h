#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>

namespace corvane::toolkit {

/// What a list view that holds no rows of its own asks its owner to find. `flags` are the control's (LVFI_*),
/// `start` is the row that the control names.
struct SearchRequest {
    unsigned flags = 0;
    int start = 0;
    /// For a search by message the row to begin after, -1 for the first row; nothing for typed letters.
    std::optional<int> after;
};

/// How the rows are to be looked at for a text.
struct RowSearch {
    int start = 0;
    bool isBeginningEnough = false;
    bool wraps = false;
};

/// Nothing where the search is for something else than a text.
///
/// A search by message means what its flags say. Typed letters begin a text and go on at the top behind the
/// last row, whatever their flags say: some controls send them as if the whole text were wanted, and without
/// a wrap.
[[nodiscard]] constexpr std::optional<RowSearch> RowSearchFor(const SearchRequest& request) {
    constexpr unsigned kByParameter = 0x1;
    constexpr unsigned kByText = 0x2;
    constexpr unsigned kBySubstring = 0x4;  // Another name for the beginning.
    constexpr unsigned kByBeginning = 0x8;
    constexpr unsigned kWraps = 0x20;  // By itself, too, asks for a text.
    constexpr unsigned kByPosition = 0x40;
    if ((request.flags & (kByParameter | kByPosition)) != 0) {
        return std::nullopt;
    }
    if (!request.after) {
        return RowSearch{.start = request.start, .isBeginningEnough = true, .wraps = true};
    }
    if ((request.flags & (kByText | kBySubstring | kByBeginning | kWraps)) == 0) {
        return std::nullopt;
    }
    // Some controls name the row to begin after, others the one behind it.
    const bool isNamedTheRowBefore = request.start == *request.after;
    return RowSearch{.start = request.start + (isNamedTheRowBefore ? 1 : 0),
                     .isBeginningEnough = (request.flags & (kBySubstring | kByBeginning)) != 0,
                     .wraps = (request.flags & kWraps) != 0};
}

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

}  // namespace corvane::toolkit
