#include "certificates/signer_lists/signer_list_view.h"

#include "toolkit/dialog/window_geometry.h"

namespace corvane::certificates {

namespace {

constexpr int kNameColumn = 0;
constexpr int kSignersColumn = 1;

}  // namespace

void SignerListView::Attach(HWND control) {
    list_.Attach(control);
    list_.AddExtendedStyles(LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP);
    list_.InsertColumn(kNameColumn, L"List name");
    list_.InsertColumn(kSignersColumn, L"Signers");
}

void SignerListView::LayOutColumns(UINT dotsPerInch) const {
    // The name takes a third. Room for the scroll bar is left from the beginning, so that nothing moves when
    // it comes.
    const bool hasScrollBar = (GetWindowLongPtrW(list_.Window(), GWL_STYLE) & WS_VSCROLL) != 0;
    const int scrollBarWidth = toolkit::SystemMetric(SM_CXVSCROLL, dotsPerInch);
    const int width = list_.ClientWidth() - (hasScrollBar ? 0 : scrollBarWidth);
    list_.SetColumnWidth(kNameColumn, width / 3);
    list_.SetColumnWidth(kSignersColumn, width - width / 3);
}

void SignerListView::Update() const {
    const toolkit::ListView::RedrawLock locked(list_);
    list_.AppendRowsOnRequest(form_.Lists().size() - static_cast<std::size_t>(list_.RowCount()));
}

void SignerListView::Delete(const std::vector<std::size_t>& rows) const {
    const toolkit::ListView::RedrawLock locked(list_);
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        list_.DeleteRow(static_cast<int>(*row));
    }
}

void SignerListView::AnswerDisplayRequest(NMLVDISPINFOW& request) {
    if ((request.item.mask & LVIF_TEXT) == 0 || request.item.iItem < 0) {
        return;
    }
    std::wstring& answer = answers_[nextAnswer_];
    nextAnswer_ = (nextAnswer_ + 1) % answers_.size();
    answer = CellText(static_cast<std::size_t>(request.item.iItem), request.item.iSubItem);
    request.item.pszText = answer.data();
}

std::wstring SignerListView::CellText(std::size_t row, int column) const {
    if (row >= form_.Lists().size()) {
        return {};
    }
    return column == kNameColumn ? form_.NameCell(row) : form_.SignersCell(row);
}

}  // namespace corvane::certificates
