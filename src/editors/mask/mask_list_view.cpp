#include "editors/mask/mask_list_view.h"

#include "editors/mask/mask_list.h"

namespace corvane::editors {

void MaskListView::Attach(HWND control, int scrollBarWidth) {
    list_.Attach(control);
    list_.AddExtendedStyles(LVS_EX_FULLROWSELECT);
    list_.InsertColumn(0, kMaskColumnTitle);
    list_.SetColumnWidth(0, OpeningMaskColumnWidth(list_.ClientWidth(), scrollBarWidth));
}

void MaskListView::Show(const store::TextList& masks) const {
    const toolkit::ListView::RedrawLock locked(list_);
    list_.DeleteAllRows();
    for (const std::wstring& mask : masks) {
        list_.AppendRow(mask);
    }
}

void MaskListView::ShowChanged(const store::TextList& masks,
                               const std::vector<std::size_t>& selectedRows) const {
    const int topRow = list_.TopRow();
    // A column that is wider than what a new vertical scroll bar leaves would bring a horizontal one too.
    list_.SetColumnWidth(0, 0);
    Show(masks);
    for (const std::size_t row : selectedRows) {
        list_.AddToSelection(static_cast<int>(row));
    }
    FitColumn();
    list_.ScrollTo(topRow);
}

void MaskListView::FitColumn() const {
    list_.SetColumnWidth(0, list_.ClientWidth());
}

}  // namespace corvane::editors
