#include "certificates/selection/owner_list_view.h"

#include <windowsx.h>

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace corvane::certificates {

namespace {

constexpr toolkit::HeadingMark HeadingMarkFor(SortMark mark) {
    switch (mark) {
        case SortMark::kUp:
            return toolkit::HeadingMark::kUp;
        case SortMark::kDown:
            return toolkit::HeadingMark::kDown;
        default:
            return toolkit::HeadingMark::kNone;
    }
}

bool IsOnCheckBox(HWND list, LPARAM point) {
    LVHITTESTINFO hit = {};
    hit.pt = {GET_X_LPARAM(point), GET_Y_LPARAM(point)};
    SendMessageW(list, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return (hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON;
}

}  // namespace

OwnerListView::~OwnerListView() {
    if (IsWindow(list_.Window()) != FALSE) {
        RemoveWindowSubclass(list_.Window(), &Procedure, 0);
    }
}

void OwnerListView::Attach(HWND control, const std::wstring& heading) {
    list_.Attach(control);
    list_.AddExtendedStyles(LVS_EX_FULLROWSELECT | LVS_EX_CHECKBOXES | LVS_EX_LABELTIP);
    list_.InsertColumn(0, heading);
    SetWindowSubclass(control, &Procedure, 0, reinterpret_cast<DWORD_PTR>(this));
    Show({});
}

LRESULT CALLBACK OwnerListView::Procedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                          UINT_PTR /*subclass*/, DWORD_PTR self) {
    auto* const view = reinterpret_cast<OwnerListView*>(self);
    switch (message) {
        case WM_KEYDOWN:
            if (wParam == VK_SPACE) {
                return view->PressSpace(wParam, lParam);
            }
            break;
        case WM_LBUTTONDBLCLK:
            // Somebody who clicks a box twice means the box, not the details of its row.
            if (IsOnCheckBox(list, lParam)) {
                return DefSubclassProc(list, WM_LBUTTONDOWN, wParam, lParam);
            }
            break;
        case WM_NCDESTROY:
            RemoveWindowSubclass(list, &Procedure, 0);
            view->list_.Attach(nullptr);
            break;
        default:
            break;
    }
    return DefSubclassProc(list, message, wParam, lParam);
}

// Not every version of the control has the key tick more than the row with the focus, and the others lose
// their selection with it.
LRESULT OwnerListView::PressSpace(WPARAM wParam, LPARAM lParam) const {
    const HWND window = list_.Window();
    const int focused = list_.FocusedRow();
    const int before = list_.CheckState(focused);
    const std::vector<std::size_t> selected = SelectedRows();
    const LRESULT result = DefSubclassProc(window, WM_KEYDOWN, wParam, lParam);
    const int after = list_.CheckState(focused);
    if (after != before &&
        std::binary_search(selected.begin(), selected.end(), static_cast<std::size_t>(focused))) {
        for (const std::size_t row : selected) {
            list_.SetChecked(static_cast<int>(row), after == 1);
        }
    }
    return result;
}

void OwnerListView::Change(const std::function<void()>& change) {
    const Place place = CurrentPlace();
    change();
    Show(place);
}

OwnerListView::Place OwnerListView::CurrentPlace() const {
    Place place;
    for (const std::size_t row : SelectedRows()) {
        place.selectedOwners.emplace_back(owners_.Row(row).owner);
    }
    const int focused = list_.FocusedRow();
    if (focused >= 0) {
        place.focusedOwner = owners_.Row(static_cast<std::size_t>(focused)).owner;
    }
    place.topRow = list_.TopRow();
    return place;
}

void OwnerListView::Show(const Place& place) {
    {
        const toolkit::ListView::RedrawLock locked(list_);
        const auto count = static_cast<int>(owners_.RowCount());
        // The row with the focus mark must not go: where arrow keys go on from would go with it.
        if (count > 0 && list_.FocusedRow() >= count) {
            list_.MarkFocus(count - 1);
        }
        list_.Update();
        RestoreMarks(place);
    }
    list_.MarkHeading(0, HeadingMarkFor(owners_.Mark()));
    FitColumn();
    // Not before: a list that does not draw itself may not scroll either.
    list_.ScrollTo(place.topRow);
}

// The control knows at once how many rows are selected, but looks at all of them to tell which.
std::vector<std::size_t> OwnerListView::SelectedRows() const {
    return ListView_GetSelectedCount(list_.Window()) == 0 ? std::vector<std::size_t>() : list_.SelectedRows();
}

void OwnerListView::RestoreMarks(const Place& place) const {
    const std::vector<std::size_t> selectedRows = SelectedRows();
    if (selectedRows.empty() && place.selectedOwners.empty() && !place.focusedOwner) {
        return;
    }
    const std::unordered_set<std::wstring_view> selected(place.selectedOwners.begin(),
                                                         place.selectedOwners.end());
    auto nextSelected = selectedRows.begin();
    for (std::size_t row = 0, count = owners_.RowCount(); row < count; ++row) {
        const std::wstring_view owner = owners_.Row(row).owner;
        const bool isSelected = nextSelected != selectedRows.end() && *nextSelected == row;
        if (isSelected) {
            ++nextSelected;
        }
        const bool isToBeSelected = selected.contains(owner);
        if (isToBeSelected && !isSelected) {
            list_.AddToSelection(static_cast<int>(row));
        } else if (isSelected && !isToBeSelected) {
            list_.RemoveFromSelection(static_cast<int>(row));
        }
        if (place.focusedOwner && owner == *place.focusedOwner) {
            list_.MarkFocus(static_cast<int>(row));
        }
    }
}

void OwnerListView::Rescale() {
    list_.MakeCheckBoxesAgain();
    FitColumn();
}

void OwnerListView::FitColumn() const {
    // Twice at most: at its old width the column may have called for a scroll bar that goes with the new one.
    for (int pass = 0; pass < 2 && list_.ColumnWidth(0) != list_.ClientWidth(); ++pass) {
        list_.SetColumnWidth(0, list_.ClientWidth());
    }
}

bool OwnerListView::Answer(NMHDR& header) {
    if (header.code == LVN_COLUMNCLICK) {
        Change([this] { owners_.ClickHeader(); });
        return true;
    }
    return list_.Answer(header);
}

}  // namespace corvane::certificates
