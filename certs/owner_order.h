#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace corvane {

enum class SortDirection { kAscending, kDescending };

/// What an owner is sorted by: the text behind the attribute `fieldKey` and its "=", to the end of the owner
/// text, where the owner begins with the attribute or has it behind a comma. None where it has it nowhere.
[[nodiscard]] std::optional<std::wstring_view> OwnerSortKey(std::wstring_view owner,
                                                            std::wstring_view fieldKey);

/// Sorts rows, each the index of an owner of `owners`, by that key, letter case included. Owners without the
/// attribute come after all others, in both directions, and are sorted by their whole text. Equal ones keep
/// their order.
void SortOwnerRows(std::vector<std::size_t>& rows, const std::vector<std::wstring_view>& owners,
                   std::wstring_view fieldKey, SortDirection direction);

}  // namespace corvane
