#include "editors/mask/mask_list.h"

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <utility>

#include "editors/mask/mask_form.h"
#include "reporting/message_styles.h"
#include "toolkit/text/format_text.h"

namespace corvane::editors {

namespace {

void RequireMask(const store::TextList& masks, std::size_t row) {
    if (row >= masks.size()) {
        throw std::invalid_argument("The rule has no mask for this row.");
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

bool DeleteMasks(store::TextList& masks, const std::vector<std::size_t>& selectedRows,
                 reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog) {
    if (selectedRows.empty()) {
        return false;
    }
    if (std::adjacent_find(selectedRows.begin(), selectedRows.end(), std::greater_equal<>()) !=
        selectedRows.end()) {
        throw std::invalid_argument("The rows to delete are not in ascending order.");
    }
    RequireMask(masks, selectedRows.back());
    const std::wstring question =
        toolkit::FormatText(L"Delete %d mask(s)?", {static_cast<std::int64_t>(selectedRows.size())});
    if (reporter.ShowMessage(dialog, question, reporting::kConfirmationStyle) != reporting::kAnswerYes) {
        return false;
    }
    // From the highest row down, so that the lower ones stay valid.
    std::for_each(selectedRows.rbegin(), selectedRows.rend(), [&masks](std::size_t row) {
        masks.erase(masks.begin() + static_cast<std::ptrdiff_t>(row));
    });
    return true;
}

void ShowMask(const store::TextList& masks, std::size_t row, toolkit::MessagePresenter& messages,
              toolkit::WindowHandle dialog) {
    RequireMask(masks, row);
    messages.Show(dialog, masks[row], kMaskTitle, reporting::kInformationStyle);
}

int OpeningMaskColumnWidth(int clientWidth, int scrollBarWidth) {
    return std::max(clientWidth - scrollBarWidth, 0);
}

}  // namespace corvane::editors
