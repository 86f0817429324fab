#include "certs/owner_list_view.h"

#include "toolkit/known_texts.h"

namespace corvane {

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

/// Sets a flag for as long as this object lives.
class FlagSetter {
  public:
    explicit FlagSetter(bool& flag) : flag_(flag) { flag_ = true; }
    FlagSetter(const FlagSetter&) = delete;
    FlagSetter& operator=(const FlagSetter&) = delete;
    FlagSetter(FlagSetter&&) = delete;
    FlagSetter& operator=(FlagSetter&&) = delete;
    ~FlagSetter() { flag_ = false; }

  private:
    bool& flag_;
};

}  // namespace

void OwnerListView::Attach(HWND control, const std::wstring& heading) {
    list_.Attach(control);
    list_.AddExtendedStyles(LVS_EX_FULLROWSELECT | LVS_EX_CHECKBOXES | LVS_EX_LABELTIP);
    list_.InsertColumn(0, heading);
}

OwnerListView::Place OwnerListView::CurrentPlace() const {
    Place place;
    for (const std::size_t row : SelectedRows()) {
        place.selectedOwners.emplace_back(source_.row(row).owner);
    }
    const int focused = list_.FocusedRow();
    if (focused >= 0) {
        place.focusedOwner = source_.row(static_cast<std::size_t>(focused)).owner;
    }
    place.topRow = list_.TopRow();
    return place;
}

void OwnerListView::Show(const Place& place, SortMark mark) {
    {
        const toolkit::ListView::RedrawLock locked(list_);
        const FlagSetter filling(isFilling_);
        MakeRows(source_.count());
        PutChecks();
        RestoreMarks(place);
        list_.ScrollTo(place.topRow);
    }
    list_.MarkHeading(0, HeadingMarkFor(mark));
    FitColumn();
}

// Rows are alike but for their checks and marks, so as many as there are stay. Where most would have to go,
// emptying the list is the shorter way: taking rows away one by one costs more than making them.
void OwnerListView::MakeRows(std::size_t count) {
    if (shownRows_.size() > count) {
        const std::size_t surplus = shownRows_.size() - count;
        if (surplus > count) {
            list_.DeleteAllRows();
            shownRows_.clear();
        } else {
            // The control scrolls in milliseconds: not once for each row that goes, because it was shown or
            // because it hands its focus mark on to the one before it, but once for all.
            if (list_.FocusedRow() >= static_cast<int>(count)) {
                list_.MarkFocus(static_cast<int>(count) - 1);
            }
            list_.ScrollTo(0);
            for (std::size_t row = shownRows_.size(); row > count; --row) {
                list_.DeleteRow(static_cast<int>(row) - 1);
            }
        }
    }
    if (shownRows_.size() < count) {
        list_.AppendRowsOnRequest(count - shownRows_.size());
    }
    shownRows_.resize(count);
}

void OwnerListView::PutChecks() {
    for (std::size_t row = 0; row < shownRows_.size(); ++row) {
        const bool isChecked = source_.row(row).isChecked;
        if (isChecked != shownRows_[row].isChecked) {
            list_.SetChecked(static_cast<int>(row), isChecked);
            shownRows_[row].isChecked = isChecked;
        }
    }
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
    toolkit::KnownTexts selected(place.selectedOwners.size());
    for (const std::wstring& owner : place.selectedOwners) {
        selected.Add(owner);
    }
    auto nextSelected = selectedRows.begin();
    for (std::size_t row = 0; row < shownRows_.size(); ++row) {
        const std::wstring_view owner = source_.row(row).owner;
        const bool isSelected = nextSelected != selectedRows.end() && *nextSelected == row;
        if (isSelected) {
            ++nextSelected;
        }
        const bool isToBeSelected = selected.Contains(owner);
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

void OwnerListView::FitColumn() const {
    // Twice at most: at its old width the column may have called for a scroll bar that goes with the new one.
    for (int pass = 0; pass < 2 && list_.ColumnWidth(0) != list_.ClientWidth(); ++pass) {
        list_.SetColumnWidth(0, list_.ClientWidth());
    }
}

std::optional<OwnerListView::CheckChange> OwnerListView::CheckChangeOf(const NMLISTVIEW& notification) {
    const UINT changed = notification.uNewState ^ notification.uOldState;
    if (isFilling_ || (notification.uChanged & LVIF_STATE) == 0 || (changed & LVIS_STATEIMAGEMASK) == 0 ||
        notification.iItem < 0 || static_cast<std::size_t>(notification.iItem) >= shownRows_.size()) {
        return std::nullopt;
    }
    const CheckChange change = {
        .row = static_cast<std::size_t>(notification.iItem),
        .isChecked = (notification.uNewState & LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2U)};
    shownRows_[change.row].isChecked = change.isChecked;
    return change;
}

void OwnerListView::AnswerDisplayRequest(NMLVDISPINFOW& request) {
    if ((request.item.mask & LVIF_TEXT) == 0 || request.item.iItem < 0) {
        return;
    }
    std::wstring& answer = answers_[nextAnswer_];
    nextAnswer_ = (nextAnswer_ + 1) % answers_.size();
    answer = source_.row(static_cast<std::size_t>(request.item.iItem)).owner;
    request.item.pszText = answer.data();
}

}  // namespace corvane
