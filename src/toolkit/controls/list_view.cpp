#include "toolkit/controls/list_view.h"

namespace corvane::toolkit {

namespace {

/// The messages take texts that they only read through a pointer without const.
wchar_t* Unconst(const std::wstring& text) {
    return const_cast<wchar_t*>(text.c_str());
}

}  // namespace

void ListView::AddExtendedStyles(DWORD styles) const {
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, styles, static_cast<LPARAM>(styles));
}

void ListView::InsertColumn(int position, const std::wstring& title) const {
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.fmt = LVCFMT_LEFT;
    column.pszText = Unconst(title);
    Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&column));
}

void ListView::InsertColumn(int position, const std::wstring& title, int widthPixels) const {
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH;
    column.fmt = LVCFMT_LEFT;
    column.cx = widthPixels;
    column.pszText = Unconst(title);
    Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&column));
}

void ListView::SetColumnWidth(int column, int widthPixels) const {
    if (ColumnWidth(column) != widthPixels) {
        Send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), widthPixels);
    }
}

int ListView::ColumnWidth(int column) const {
    return static_cast<int>(Send(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
}

int ListView::ClientWidth() const {
    RECT client = {};
    GetClientRect(control_, &client);
    return client.right;
}

void ListView::LayOutColumns(const std::function<void(int clientWidth)>& setWidths) const {
    constexpr int kPasses = 3;
    int width = -1;
    for (int pass = 0; pass < kPasses && ClientWidth() != width; ++pass) {
        width = ClientWidth();
        // The list arranges itself anew after each column, and all other columns with it. Its scroll bars
        // are up to date only when it may draw again.
        const RedrawLock locked(*this);
        setWidths(width);
    }
}

void ListView::MarkHeading(int column, HeadingMark mark) const {
    const auto header = reinterpret_cast<HWND>(Send(LVM_GETHEADER));
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
    const int shown = item.fmt;
    item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
    if (mark != HeadingMark::kNone) {
        item.fmt |= mark == HeadingMark::kUp ? HDF_SORTUP : HDF_SORTDOWN;
    }
    if (item.fmt != shown) {
        SendMessageW(header, HDM_SETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
    }
}

int ListView::RowCount() const {
    return static_cast<int>(Send(LVM_GETITEMCOUNT));
}

void ListView::AppendRow(const std::wstring& text) const {
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.iItem = RowCount();
    item.pszText = Unconst(text);
    Send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

void ListView::AppendRowsOnRequest(std::size_t count) const {
    const int first = RowCount();
    Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(first) + count);
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.pszText = LPSTR_TEXTCALLBACKW;
    for (std::size_t row = 0; row < count; ++row) {
        item.iItem = first + static_cast<int>(row);
        Send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
}

void ListView::DeleteRow(int row) const {
    Send(LVM_DELETEITEM, static_cast<WPARAM>(row));
}

void ListView::DeleteAllRows() const {
    Send(LVM_DELETEALLITEMS);
}

void ListView::SetRowText(int row, const std::wstring& text) const {
    LVITEMW item = {};
    item.pszText = Unconst(text);
    Send(LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

std::wstring ListView::RowText(int row) const {
    std::wstring text(256, L'\0');
    for (;;) {
        LVITEMW item = {};
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        const auto length = static_cast<std::size_t>(
            Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item)));
        if (length + 1 < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(text.size() * 2);
    }
}

int ListView::FindRow(const std::wstring& text) const {
    LVFINDINFOW find = {};
    find.flags = LVFI_STRING;
    find.psz = text.c_str();
    int row = -1;
    do {
        row =
            static_cast<int>(Send(LVM_FINDITEMW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&find)));
        // The list's own search takes upper and lower case alike.
    } while (row >= 0 && RowText(row) != text);
    return row;
}

int ListView::FirstSelectedRow() const {
    return static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), MAKELPARAM(LVNI_SELECTED, 0)));
}

std::vector<std::size_t> ListView::SelectedRows() const {
    std::vector<std::size_t> rows;
    for (int row = FirstSelectedRow(); row >= 0;
         row = static_cast<int>(
             Send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), MAKELPARAM(LVNI_SELECTED, 0)))) {
        rows.push_back(static_cast<std::size_t>(row));
    }
    return rows;
}

void ListView::SelectOnly(int row) const {
    if (row < 0 || row >= RowCount()) {
        return;
    }
    SetState(-1, 0, LVIS_SELECTED);
    SetState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    // Extending the selection with Shift starts here.
    Send(LVM_SETSELECTIONMARK, 0, row);
}

void ListView::AddToSelection(int row) const {
    SetState(row, LVIS_SELECTED, LVIS_SELECTED);
}

void ListView::RemoveFromSelection(int row) const {
    SetState(row, 0, LVIS_SELECTED);
}

void ListView::MarkFocus(int row) const {
    SetState(row, LVIS_FOCUSED, LVIS_FOCUSED);
}

int ListView::FocusedRow() const {
    return static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), MAKELPARAM(LVNI_FOCUSED, 0)));
}

void ListView::ScrollIntoView(int row) const {
    if (row >= 0 && row < RowCount()) {
        Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    }
}

void ListView::Focus() const {
    SetFocus(control_);
}

void ListView::SetChecked(int row, bool isChecked) const {
    SetState(row, INDEXTOSTATEIMAGEMASK(isChecked ? 2U : 1U), LVIS_STATEIMAGEMASK);
}

void ListView::MakeCheckBoxesAgain() const {
    if (control_ == nullptr) {
        return;
    }
    const RedrawLock locked(*this);
    std::vector<bool> checked;
    for (int row = 0, count = RowCount(); row < count; ++row) {
        checked.push_back(CheckState(row) == 1);
    }
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, 0);
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    // Every row is unchecked by now.
    for (std::size_t row = 0; row < checked.size(); ++row) {
        SetChecked(static_cast<int>(row), checked[row]);
    }
}

int ListView::CheckState(int row) const {
    const LRESULT state = Send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK);
    constexpr int kStateImageShift = 12;
    return static_cast<int>(state >> kStateImageShift) - 1;
}

void ListView::SetState(int row, UINT state, UINT mask) const {
    LVITEMW item = {};
    item.state = state;
    item.stateMask = mask;
    Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

int ListView::TopRow() const {
    return static_cast<int>(Send(LVM_GETTOPINDEX));
}

void ListView::ScrollTo(int topRow) const {
    if (RowCount() == 0) {
        return;
    }
    RECT row = {};
    row.left = LVIR_BOUNDS;
    Send(LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
    Send(LVM_SCROLL, 0, static_cast<LPARAM>(topRow - TopRow()) * (row.bottom - row.top));
}

ListView::RedrawLock::RedrawLock(const ListView& list) : control_(list.control_) {
    SendMessageW(control_, WM_SETREDRAW, FALSE, 0);
}

ListView::RedrawLock::~RedrawLock() {
    SendMessageW(control_, WM_SETREDRAW, TRUE, 0);
    RedrawWindow(control_, nullptr, nullptr, RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
}

}  // namespace corvane::toolkit
