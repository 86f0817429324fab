#include "certificates/selection/owner_list_view.h"

#include <unordered_set>
#include <utility>

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

}  // namespace

OwnerListView::OwnerListView(Source source)
    : source_(std::move(source)),
      checkBoxes_({.isChecked = [this](std::size_t row) { return source_.row(row).isChecked; },
                   .check = source_.check}),
      finder_({.count = source_.count, .text = [this](std::size_t row) { return OwnerAt(row); }}) {}

void OwnerListView::Attach(HWND control, const std::wstring& heading) {
    list_.Attach(control);
    list_.AddExtendedStyles(LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP);
    checkBoxes_.Attach(control);
    finder_.Attach(control);
    list_.InsertColumn(0, heading);
}

OwnerListView::Place OwnerListView::CurrentPlace() const {
    Place place;
    for (const std::size_t row : SelectedRows()) {
        place.selectedOwners.emplace_back(OwnerAt(row));
    }
    const int focused = list_.FocusedRow();
    if (focused >= 0) {
        place.focusedOwner = OwnerAt(static_cast<std::size_t>(focused));
    }
    place.topRow = list_.TopRow();
    return place;
}

void OwnerListView::Show(const Place& place, SortMark mark) {
    {
        const toolkit::ListView::RedrawLock locked(list_);
        const std::size_t count = source_.count();
        // The row with the focus mark must not go: where arrow keys go on from would go with it.
        if (count > 0 && list_.FocusedRow() >= static_cast<int>(count)) {
            list_.MarkFocus(static_cast<int>(count) - 1);
        }
        list_.SetRowCount(count);
        RestoreMarks(place);
    }
    list_.MarkHeading(0, HeadingMarkFor(mark));
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
    for (std::size_t row = 0, count = source_.count(); row < count; ++row) {
        const std::wstring_view owner = OwnerAt(row);
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
    checkBoxes_.MakeAnew();
    FitColumn();
}

void OwnerListView::FitColumn() const {
    // Twice at most: at its old width the column may have called for a scroll bar that goes with the new one.
    for (int pass = 0; pass < 2 && list_.ColumnWidth(0) != list_.ClientWidth(); ++pass) {
        list_.SetColumnWidth(0, list_.ClientWidth());
    }
}

bool OwnerListView::Answer(NMHDR& header, LRESULT& result) {
    if (header.code == LVN_GETDISPINFOW) {
        AnswerDisplayRequest(reinterpret_cast<NMLVDISPINFOW&>(header).item);
        return true;
    }
    if (header.code == LVN_ODFINDITEMW) {
        result = finder_.Find(reinterpret_cast<const NMLVFINDITEMW&>(header));
        return true;
    }
    return false;
}

void OwnerListView::AnswerDisplayRequest(LVITEMW& item) {
    if (item.iItem < 0 || static_cast<std::size_t>(item.iItem) >= source_.count()) {
        return;
    }
    checkBoxes_.AnswerDisplayRequest(item);
    if ((item.mask & LVIF_TEXT) != 0) {
        std::wstring& answer = answers_[nextAnswer_];
        nextAnswer_ = (nextAnswer_ + 1) % answers_.size();
        answer = OwnerAt(static_cast<std::size_t>(item.iItem));
        item.pszText = answer.data();
    }
}

}  // namespace corvane::certificates
