#include "app/rule_list/rule_list_view.h"

#include <algorithm>

#include "app/rule_list/rule_row.h"

namespace corvane::app {

void RuleListView::Attach(HWND control, int scrollBarWidth) {
    list_.Attach(control);
    scrollBarWidth_ = scrollBarWidth;
    laidOutWidth_ = list_.ClientWidth();
    const toolkit::ListView::RedrawLock locked(list_);
    list_.AddExtendedStyles(LVS_EX_FULLROWSELECT | LVS_EX_CHECKBOXES | LVS_EX_LABELTIP);
    const std::vector<int> widths = RuleColumnWidths(laidOutWidth_, scrollBarWidth, true);
    // Each at the left end, so that the last one inserted stands leftmost.
    for (std::size_t column = widths.size(); column-- > 0;) {
        list_.InsertColumn(0, RuleColumnAt(column).title, widths[column]);
    }
}

void RuleListView::LayOutColumns(int scrollBarWidth) {
    scrollBarWidth_ = scrollBarWidth;
    list_.LayOutColumns([this](int clientWidth) {
        laidOutWidth_ = clientWidth;
        const std::vector<int> widths = RuleColumnWidths(clientWidth, scrollBarWidth_, false);
        for (std::size_t column = 0; column < widths.size(); ++column) {
            list_.SetColumnWidth(static_cast<int>(column), widths[column]);
        }
    });
}

void RuleListView::FitColumnsToScrollBar() {
    // Only when one has come or gone: the widths may be the user's own.
    if (list_.ClientWidth() != laidOutWidth_) {
        LayOutColumns(scrollBarWidth_);
    }
}

void RuleListView::Clear() {
    DeleteRows();
    FitColumnsToScrollBar();
}

void RuleListView::DeleteRows() {
    profilePosition_.reset();
    rows_.clear();
    list_.DeleteAllRows();
}

void RuleListView::Fill(std::size_t profilePosition, const std::wstring& searchText,
                        const toolkit::SystemText& text, Keep keep) {
    const int topRow = list_.TopRow();
    std::vector<std::size_t> selectedRules;
    for (const std::size_t row : list_.SelectedRows()) {
        if (row < rows_.size()) {
            selectedRules.push_back(rows_[row]);
        }
    }
    {
        const toolkit::ListView::RedrawLock locked(list_);
        DeleteRows();
        profilePosition_ = profilePosition;
        const std::vector<store::Rule>* const rules = ShownRules();
        if (rules != nullptr) {
            rows_ = ListedRules(*rules, searchText, text);
            list_.Update();
        }
        if (keep == Keep::kScrollAndSelection) {
            Select(selectedRules);
        }
    }
    // With redrawing on again: as long as it is off, a list neither has the scroll bars of its new rows nor,
    // on Windows, does it scroll.
    FitColumnsToScrollBar();
    if (keep != Keep::kNothing) {
        list_.ScrollTo(topRow);
    }
}

void RuleListView::Select(const std::vector<std::size_t>& rulePositions) const {
    for (const std::size_t rule : rulePositions) {
        const auto row = std::lower_bound(rows_.begin(), rows_.end(), rule);
        if (row != rows_.end() && *row == rule) {
            list_.AddToSelection(static_cast<int>(row - rows_.begin()));
        }
    }
}

bool RuleListView::ShowsEveryRuleOf(std::size_t profilePosition) const {
    const std::vector<store::Rule>* const rules = ShownRules();
    return rules != nullptr && profilePosition_ == profilePosition && rows_.size() == rules->size();
}

const std::vector<store::Rule>* RuleListView::ShownRules() const {
    return profilePosition_ && *profilePosition_ < state_.profiles.size()
               ? &state_.profiles[*profilePosition_].rules
               : nullptr;
}

bool RuleListView::IsTicked(std::size_t row) const {
    const std::vector<store::Rule>* const rules = ShownRules();
    return rules != nullptr && row < rows_.size() && rows_[row] < rules->size() &&
           (*rules)[rows_[row]].isOn != 0;
}

std::wstring RuleListView::CellText(std::size_t row, std::size_t column) const {
    const std::vector<store::Rule>* const rules = ShownRules();
    if (rules == nullptr || row >= rows_.size() || rows_[row] >= rules->size() ||
        column >= RuleColumns().size()) {
        return {};
    }
    return RuleColumnAt(column).text((*rules)[rows_[row]], rows_[row]);
}

}  // namespace corvane::app
