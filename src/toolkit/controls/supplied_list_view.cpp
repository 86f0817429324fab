#include "toolkit/controls/supplied_list_view.h"

namespace corvane::toolkit {

namespace {

/// Sets a flag for as long as it lives.
class FlagWhile {
  public:
    explicit FlagWhile(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
    FlagWhile(const FlagWhile&) = delete;
    FlagWhile& operator=(const FlagWhile&) = delete;
    FlagWhile(FlagWhile&&) = delete;
    FlagWhile& operator=(FlagWhile&&) = delete;
    ~FlagWhile() { flag_ = before_; }

  private:
    bool& flag_;
    bool before_;
};

bool IsTickOf(const NMLISTVIEW& change) {
    return change.iItem >= 0 && (change.uChanged & LVIF_STATE) != 0 &&
           ((change.uOldState ^ change.uNewState) & LVIS_STATEIMAGEMASK) != 0;
}

}  // namespace

void SuppliedListView::Update() {
    const FlagWhile showing(isShowingTicks_);
    const auto count = static_cast<int>(rows_.RowCount());
    if (count == 0) {
        DeleteAllRows();
    }
    while (RowCount() > count) {
        DeleteRow(RowCount() - 1);
    }
    const int kept = RowCount();
    AppendRowsOnRequest(static_cast<std::size_t>(count - kept));
    if ((Send(LVM_GETEXTENDEDLISTVIEWSTYLE) & LVS_EX_CHECKBOXES) == 0) {
        return;
    }
    // New rows come without a tick.
    shownTicks_.resize(static_cast<std::size_t>(kept));
    shownTicks_.resize(static_cast<std::size_t>(count));
    for (std::size_t row = 0; row < shownTicks_.size(); ++row) {
        const bool isTicked = rows_.IsTicked(row);
        if (isTicked != shownTicks_[row]) {
            shownTicks_[row] = isTicked;
            SetChecked(static_cast<int>(row), isTicked);
        }
    }
}

void SuppliedListView::MakeCheckBoxesAgain() {
    const FlagWhile showing(isShowingTicks_);
    ListView::MakeCheckBoxesAgain();
}

bool SuppliedListView::Answer(NMHDR& header) {
    if (header.code == LVN_GETDISPINFOW) {
        AnswerTextRequest(reinterpret_cast<NMLVDISPINFOW&>(header).item);
        return true;
    }
    if (header.code == LVN_ITEMCHANGED && !isShowingTicks_) {
        const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
        if (IsTickOf(change)) {
            const auto row = static_cast<std::size_t>(change.iItem);
            const bool isTicked = (change.uNewState & LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2U);
            if (row < shownTicks_.size()) {
                shownTicks_[row] = isTicked;
            }
            rows_.Tick(row, isTicked);
            // Not every version of the control tells screen readers. To be told twice does no harm: they
            // ask for the state then, and it is the same.
            NotifyWinEvent(EVENT_OBJECT_STATECHANGE, Window(), OBJID_CLIENT, change.iItem + 1);
        }
    }
    return false;
}

void SuppliedListView::AnswerTextRequest(LVITEMW& item) {
    if ((item.mask & LVIF_TEXT) == 0 || item.iItem < 0 || item.iSubItem < 0) {
        return;
    }
    std::wstring& answer = answers_[nextAnswer_];
    nextAnswer_ = (nextAnswer_ + 1) % answers_.size();
    answer = rows_.CellText(static_cast<std::size_t>(item.iItem), static_cast<std::size_t>(item.iSubItem));
    item.pszText = answer.data();
}

}  // namespace corvane::toolkit
