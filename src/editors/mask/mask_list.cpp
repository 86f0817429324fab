#include "editors/mask/mask_list.h"

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <utility>

#include "editors/mask/mask_form.h"
#include "toolkit/text/format_text.h"

namespace corvane::editors {

namespace {

void RequireMask(const store::TextList& masks, std::size_t row) {
    if (row >= masks.size()) {
        throw std::invalid_argument("The rule has no mask for this row.");
    }
}

void RequireAscendingRows(const store::TextList& masks, const std::vector<std::size_t>& rows) {
    if (std::adjacent_find(rows.begin(), rows.end(), std::greater_equal<>()) != rows.end()) {
        throw std::invalid_argument("The rows to delete are not in ascending order.");
    }
    if (!rows.empty()) {
        RequireMask(masks, rows.back());
    }
}

}  // namespace

void AppendMask(store::TextList& masks, std::wstring mask) {
    masks.push_back(std::move(mask));
}

std::optional<std::size_t> MaskRowToEdit(const std::vector<std::size_t>& selectedRows) {
    return selectedRows.empty() ? std::nullopt : std::optional(selectedRows.front());
}

void ReplaceMask(store::TextList& masks, std::size_t row, std::wstring mask) {
    RequireMask(masks, row);
    masks[row] = std::move(mask);
}

std::optional<reporting::Question> MaskDeletionQuestion(const store::TextList& masks,
                                                        const std::vector<std::size_t>& selectedRows) {
    if (selectedRows.empty()) {
        return std::nullopt;
    }
    RequireAscendingRows(masks, selectedRows);
    return reporting::Question{
        toolkit::FormatText(L"Delete %d mask(s)?", {static_cast<std::int64_t>(selectedRows.size())})};
}

void DeleteMasks(store::TextList& masks, const std::vector<std::size_t>& selectedRows) {
    RequireAscendingRows(masks, selectedRows);
    // From the highest row down, so that the lower ones stay valid.
    std::for_each(selectedRows.rbegin(), selectedRows.rend(), [&masks](std::size_t row) {
        masks.erase(masks.begin() + static_cast<std::ptrdiff_t>(row));
    });
}

reporting::Information MaskDetails(const store::TextList& masks, std::size_t row) {
    RequireMask(masks, row);
    return {.text = masks[row], .title = kMaskTitle};
}

int OpeningMaskColumnWidth(int clientWidth, int scrollBarWidth) {
    return std::max(clientWidth - scrollBarWidth, 0);
}

}  // namespace corvane::editors
