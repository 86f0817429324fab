#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "reporting/refusal.h"
#include "store/records.h"

namespace corvane::editors {

// What the commands of the rule editor's mask list do to the rule's masks. Rows are positions among the
// masks; selected rows stand in ascending order. A row beyond the masks is a fault of the caller and throws
// std::invalid_argument, with nothing changed. After every change the list is to be filled again.

/// The heading of the list's one column.
inline constexpr wchar_t kMaskColumnTitle[] = L"Masks";

/// Appends a mask. One that is there already is there twice then.
void AppendMask(store::TextList& masks, std::wstring mask);

/// The row that the Edit button edits: the first selected one, none without a selection.
[[nodiscard]] std::optional<std::size_t> MaskRowToEdit(const std::vector<std::size_t>& selectedRows);

/// Puts an edited mask in the place of the row's.
void ReplaceMask(store::TextList& masks, std::size_t row, std::wstring mask);

/// What is asked before the selected masks are removed; none without a selection, when there is nothing to
/// remove.
[[nodiscard]] std::optional<reporting::Question> MaskDeletionQuestion(
    const store::TextList& masks, const std::vector<std::size_t>& selectedRows);

/// Removes the selected masks.
void DeleteMasks(store::TextList& masks, const std::vector<std::size_t>& selectedRows);

/// The information box with the full text of the row's mask.
[[nodiscard]] reporting::Information MaskDetails(const store::TextList& masks, std::size_t row);

/// The width of the column, in pixels, when the editor opens: room is left for a vertical scroll bar.
[[nodiscard]] int OpeningMaskColumnWidth(int clientWidth, int scrollBarWidth);

}  // namespace corvane::editors
