// The mask commands of the rule editor.

#include <algorithm>
#include <utility>

#include "editors/mask/mask_dialog.h"
#include "editors/mask/mask_list.h"
#include "editors/rule/rule_editor_dialog.h"

namespace corvane::editors {

bool CAddRule::OnNotify(NMHDR& header, LRESULT& result) {
    if (header.hwndFrom != maskList_.Control().Window()) {
        return reporting::ProductDialog::OnNotify(header, result);
    }
    switch (header.code) {
        case NM_DBLCLK:
            if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0) {
                EditSelectedMask();
            }
            return true;
        case NM_RCLICK: {
            const int row = reinterpret_cast<const NMITEMACTIVATE&>(header).iItem;
            if (row >= 0) {
                Show(MaskDetails(form_.result.masks, static_cast<std::size_t>(row)));
            }
            return true;
        }
        case LVN_KEYDOWN:
            if (reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey == VK_DELETE) {
                DeleteSelectedMasks();
            }
            return true;
        default:
            return false;
    }
}

std::optional<std::wstring> CAddRule::AskForMask(const std::wstring& initialText) {
    AddMask dialog(Window(), {.suggestions = maskSuggestions_, .text = initialText}, services_.reporter);
    return dialog.RunModal() == IDOK ? std::optional(dialog.Mask()) : std::nullopt;
}

void CAddRule::AddMaskToRule() {
    std::optional<std::wstring> mask = AskForMask({});
    if (mask) {
        AppendMask(form_.result.masks, std::move(*mask));
        maskList_.ShowChanged(form_.result.masks, maskList_.Control().SelectedRows());
        maskList_.Control().ScrollIntoView(maskList_.Control().RowCount() - 1);
    }
}

void CAddRule::EditSelectedMask() {
    const std::vector<std::size_t> selected = maskList_.Control().SelectedRows();
    const std::optional<std::size_t> row = MaskRowToEdit(selected);
    std::optional<std::wstring> mask = row ? AskForMask(form_.result.masks.at(*row)) : std::nullopt;
    if (mask) {
        ReplaceMask(form_.result.masks, *row, std::move(*mask));
        maskList_.ShowChanged(form_.result.masks, selected);
        maskList_.Control().MarkFocus(static_cast<int>(*row));
    }
}

void CAddRule::DeleteSelectedMasks() {
    const std::vector<std::size_t> selected = maskList_.Control().SelectedRows();
    const std::optional<reporting::Question> question = MaskDeletionQuestion(form_.result.masks, selected);
    if (question && IsAgreed(*question)) {
        DeleteMasks(form_.result.masks, selected);
        maskList_.ShowChanged(form_.result.masks, {});
        // The arrow keys go on from where the first of them stood.
        maskList_.Control().MarkFocus(
            std::min(static_cast<int>(selected.front()), maskList_.Control().RowCount() - 1));
    }
}

}  // namespace corvane::editors
