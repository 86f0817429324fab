#include "tests/kit/driver/list_view.h"

#include <commctrl.h>

#include <algorithm>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/remote_block.h"
#include "tests/kit/driver/waiting.h"

namespace corvane::test {
namespace {

constexpr std::size_t kTextRoomChars = 2048;

std::wstring Listed(const std::vector<std::wstring>& cells) {
    std::wstring text;
    for (const std::wstring& cell : cells) {
        text += (text.empty() ? L"\"" : L", \"") + cell + L"\"";
    }
    return text;
}

}  // namespace

int ListView::RowCount() const {
    return static_cast<int>(Send(LVM_GETITEMCOUNT));
}

std::wstring ListView::Cell(int row, int column) const {
    RemoteBlock block(Handle(), sizeof(LVITEMW) + kTextRoomChars * sizeof(wchar_t));
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = static_cast<wchar_t*>(block.Address(sizeof item));
    item.cchTextMax = static_cast<int>(kTextRoomChars);
    block.Put(item);
    Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), block.Parameter());
    // The list may point to a text of its own instead of filling the room.
    const auto answer = block.Get<LVITEMW>();
    if (answer.pszText != item.pszText) {
        throw Failure(L"The text of row " + std::to_wstring(row) + L" was not copied by " + Name() + L".");
    }
    return block.Text(sizeof item, kTextRoomChars);
}

std::vector<std::wstring> ListView::Row(int row) const {
    std::vector<std::wstring> cells;
    const int columns = ColumnCount();
    for (int column = 0; column < columns; ++column) {
        cells.push_back(Cell(row, column));
    }
    return cells;
}

std::vector<std::wstring> ListView::Column(int column) const {
    std::vector<std::wstring> cells;
    const int rows = RowCount();
    for (int row = 0; row < rows; ++row) {
        cells.push_back(Cell(row, column));
    }
    return cells;
}

int ListView::ColumnCount() const {
    const Window header(reinterpret_cast<HWND>(Send(LVM_GETHEADER)));
    return static_cast<int>(header.Send(HDM_GETITEMCOUNT));
}

int ListView::ColumnWidth(int column) const {
    return static_cast<int>(Send(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
}

std::vector<std::wstring> ListView::Headings() const {
    std::vector<std::wstring> headings;
    const int columns = ColumnCount();
    RemoteBlock block(Handle(), sizeof(LVCOLUMNW) + kTextRoomChars * sizeof(wchar_t));
    for (int position = 0; position < columns; ++position) {
        const Window header(reinterpret_cast<HWND>(Send(LVM_GETHEADER)));
        const LRESULT column = header.Send(HDM_ORDERTOINDEX, static_cast<WPARAM>(position));
        LVCOLUMNW record{};
        record.mask = LVCF_TEXT;
        record.pszText = static_cast<wchar_t*>(block.Address(sizeof record));
        record.cchTextMax = static_cast<int>(kTextRoomChars);
        block.Put(record);
        block.Put(L'\0', sizeof record);
        if (!Send(LVM_GETCOLUMNW, static_cast<WPARAM>(column), block.Parameter())) {
            throw Failure(L"Column " + std::to_wstring(column) + L" was wanted of " + Name() + L".");
        }
        headings.push_back(block.Text(sizeof record, kTextRoomChars));
    }
    return headings;
}

DWORD ListView::ExtendedListStyle() const {
    return static_cast<DWORD>(Send(LVM_GETEXTENDEDLISTVIEWSTYLE));
}

std::vector<int> ListView::SelectedRows() const {
    std::vector<int> rows;
    for (auto row = static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED)); row >= 0;
         row = static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED))) {
        rows.push_back(row);
    }
    return rows;
}

int ListView::FocusedRow() const {
    return static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
}

bool ListView::IsChecked(int row) const {
    const auto state =
        static_cast<UINT>(Send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK));
    return (state >> 12) == 2;
}

std::vector<bool> ListView::Checks() const {
    std::vector<bool> checks;
    const int rows = RowCount();
    for (int row = 0; row < rows; ++row) {
        checks.push_back(IsChecked(row));
    }
    return checks;
}

int ListView::TopRow() const {
    return static_cast<int>(Send(LVM_GETTOPINDEX));
}

bool ListView::IsInView(int row) const {
    const int top = TopRow();
    return row >= top && row < top + static_cast<int>(Send(LVM_GETCOUNTPERPAGE));
}

void ListView::SetState(int row, UINT state, UINT mask) const {
    RemoteBlock block(Handle(), sizeof(LVITEMW));
    LVITEMW item{};
    item.state = state;
    item.stateMask = mask;
    block.Put(item);
    if (!Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), block.Parameter())) {
        throw Failure(L"Row " + std::to_wstring(row) + L" was wanted in " + Name() + L", which has " +
                      std::to_wstring(RowCount()) + L" rows.");
    }
}

void ListView::Select(const std::vector<int>& rows) const {
    SetState(-1, 0, LVIS_SELECTED);
    for (const int row : rows) {
        SetState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    }
    WaitForSelection(rows);
}

void ListView::SetChecked(int row, bool checked) const {
    SetState(row, static_cast<UINT>(INDEXTOSTATEIMAGEMASK(checked ? 2 : 1)), LVIS_STATEIMAGEMASK);
}

RECT ListView::CellBounds(int row, int column) const {
    Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    RemoteBlock block(Handle(), sizeof(RECT));
    // Of the first column the cell alone, not the whole row, is the label; its check box lies before it.
    RECT bounds{};
    bounds.top = column;
    bounds.left = column == 0 ? LVIR_LABEL : LVIR_BOUNDS;
    block.Put(bounds);
    const bool known = Send(LVM_GETSUBITEMRECT, static_cast<WPARAM>(row), block.Parameter()) != 0;
    bounds = block.Get<RECT>();
    if (!known) {
        throw Failure(L"The place of row " + std::to_wstring(row) + L" was wanted of " + Name() + L".");
    }
    RECT client{};
    GetClientRect(Handle(), &client);
    RECT visible{};
    if (!IntersectRect(&visible, &bounds, &client)) {
        throw Failure(L"Column " + std::to_wstring(column) + L" lies outside the visible part of " + Name() +
                      L".");
    }
    return visible;
}

POINT ListView::CellCentre(int row, int column) const {
    const RECT bounds = CellBounds(row, column);
    return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
}

POINT ListView::CheckBoxCentre(int row) const {
    const RECT label = CellBounds(row, 0);
    return {label.left / 2, (label.top + label.bottom) / 2};
}

POINT ListView::PointBelowRows() const {
    const int rows = RowCount();
    LONG bottom = 0;
    if (rows == 0) {
        RECT header{};
        GetClientRect(reinterpret_cast<HWND>(Send(LVM_GETHEADER)), &header);
        bottom = header.bottom;
    } else {
        bottom = CellBounds(rows - 1, 0).bottom;
    }
    const SIZE client = ClientSize();
    if (client.cy - bottom < 8) {
        throw Failure(L"A free place below the rows was wanted in " + Name() + L", and there is none.");
    }
    return {client.cx / 2, (bottom + client.cy) / 2};
}

void ListView::WaitForRowCount(int count) const {
    if (!WaitUntil([&] { return RowCount() == count; })) {
        throw Failure(std::to_wstring(count) + L" rows were expected in " + Name() + L"; it has " +
                      std::to_wstring(RowCount()) + L".");
    }
}

void ListView::WaitForSelection(const std::vector<int>& rows) const {
    if (!WaitUntil([&] { return SelectedRows() == rows; })) {
        std::wstring expected;
        for (const int row : rows) {
            expected += L" " + std::to_wstring(row);
        }
        std::wstring found;
        for (const int row : SelectedRows()) {
            found += L" " + std::to_wstring(row);
        }
        throw Failure(L"The selected rows" + expected + L" were expected in " + Name() + L"; selected are" +
                      (found.empty() ? L" none" : found) + L".");
    }
}

void ListView::WaitForColumn(int column, const std::vector<std::wstring>& cells) const {
    if (!WaitUntil([&] { return Column(column) == cells; })) {
        throw Failure(L"Column " + std::to_wstring(column) + L" of " + Name() + L" was expected to read " +
                      Listed(cells) + L"; it reads " + Listed(Column(column)) + L".");
    }
}

}  // namespace corvane::test
