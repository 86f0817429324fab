// The rule commands of the main window.

#include <algorithm>
#include <optional>
#include <utility>

#include "app/main_window/main_window_dialog.h"
#include "app/main_window/profile_commands.h"
#include "app/rule_list/rule_commands.h"
#include "app/rule_list/rule_description.h"
#include "app/rule_list/rule_row.h"
#include "app/rule_list/rule_ticks.h"
#include "editors/mask/mask_form.h"
#include "editors/rule/rule_editor_dialog.h"
#include "reporting/message_styles.h"
#include "reporting/warning_box.h"
#include "res/ids.h"

namespace corvane::app {

void CCorvaneDlg::RefillRuleList(RuleListView::Keep keep) {
    const store::Profile* const current = store::FindCurrentProfile(state_);
    if (current == nullptr) {
        ruleList_.Clear();
        return;
    }
    ruleList_.Fill(static_cast<std::size_t>(current - state_.profiles.data()), searchText_,
                   services_.reporter.Text(), keep);
}

void CCorvaneDlg::Search() {
    TakeData();
    RefillRuleList(RuleListView::Keep::kScroll);
}

void CCorvaneDlg::SelectRow(int row) {
    ruleList_.Control().Focus();
    ruleList_.Control().SelectOnly(row);
    ruleList_.Control().ScrollIntoView(row);
}

void CCorvaneDlg::AddRule() {
    const store::Profile* const current = store::FindCurrentProfile(state_);
    if (state_.currentProfileName.empty() || current == nullptr) {
        return;
    }
    std::optional<store::Rule> rule =
        editors::EditRule(Window(), *current, editors::BuildMaskSuggestions(state_.settings, current->rules),
                          store::Rule(), services_.editors);
    if (!rule) {
        return;
    }
    AppendRule(state_, std::move(*rule));
    RefillRuleList(RuleListView::Keep::kScrollAndSelection);
    ruleList_.Control().ScrollIntoView(ruleList_.Control().RowCount() - 1);
}

void CCorvaneDlg::EditSelectedRule() {
    const int row = ruleList_.Control().FirstSelectedRow();
    const store::Rule* const selected = RuleAtRow(state_, row);
    const store::Profile* const current = store::FindCurrentProfile(state_);
    if (selected == nullptr || current == nullptr) {
        return;
    }
    std::optional<store::Rule> rule =
        editors::EditRule(Window(), *current, editors::BuildMaskSuggestions(state_.settings, current->rules),
                          *selected, services_.editors);
    if (!rule) {
        return;
    }
    ReplaceRule(state_, row, std::move(*rule));
    RefillRuleList(RuleListView::Keep::kScroll);
    SelectRow(row);
}

void CCorvaneDlg::CopySelectedRule() {
    const std::optional<std::size_t> copy = CopyRule(state_, ruleList_.Control().FirstSelectedRow());
    if (copy) {
        RefillRuleList(RuleListView::Keep::kScroll);
        SelectRow(static_cast<int>(*copy));
    }
}

void CCorvaneDlg::DeleteSelectedRules() {
    const std::vector<std::size_t> asked = ruleList_.Control().SelectedRows();
    if (asked.empty() ||
        services_.reporter.ShowMessage(Window(), DeleteRulesQuestion(asked.size()),
                                       reporting::kConfirmationStyle) != reporting::kAnswerYes) {
        return;
    }
    const std::vector<std::size_t> rows = ruleList_.Control().SelectedRows();
    if (DeleteRules(state_, rows)) {
        RefillRuleList(RuleListView::Keep::kScroll);
        ruleList_.Control().MarkFocus(
            std::min(static_cast<int>(rows.front()), ruleList_.Control().RowCount() - 1));
    }
}

void CCorvaneDlg::MoveSelectedRule(MainCommand command) {
    const int row = ruleList_.Control().FirstSelectedRow();
    const auto rowCount = static_cast<std::size_t>(ruleList_.Control().RowCount());
    std::optional<std::size_t> moved;
    if (command == MainCommand::kMakeFirst) {
        moved = MakeRuleFirst(state_, row);
    } else if (command == MainCommand::kMoveUp) {
        moved = MoveRuleUp(state_, row);
    } else if (command == MainCommand::kMoveDown) {
        moved = MoveRuleDown(state_, row, rowCount);
    } else {
        moved = MakeRuleLast(state_, row);
    }
    if (!moved) {
        return;
    }
    RefillRuleList(RuleListView::Keep::kScroll);
    SelectRow(command == MainCommand::kMakeLast ? ruleList_.Control().RowCount() - 1
                                                : static_cast<int>(*moved));
}

void CCorvaneDlg::DescribeCell(const NMITEMACTIVATE& click) {
    if (click.iItem < 0 || click.iSubItem < 0) {
        return;
    }
    const auto row = static_cast<std::size_t>(click.iItem);
    const auto cell = static_cast<std::size_t>(click.iSubItem);
    const RuleColumn& column = RuleColumnAt(cell);
    const store::Profile* const current = store::FindCurrentProfile(state_);
    std::wstring text = ruleList_.CellText(row, cell);
    if (column.detail != CellDetail::kCell) {
        const std::optional<std::size_t> position =
            current == nullptr
                ? std::nullopt
                : RulePositionFromNumberCell(ruleList_.CellText(row, kNumberColumn), current->rules.size());
        if (!position) {
            return;
        }
        const store::Rule& rule = current->rules[*position];
        if (column.detail == CellDetail::kDescription) {
            reporting::WarningBox box(Window(), false, services_.reporter);
            box.isInfoMode = true;
            box.text = DescribeRule(rule);
            box.title = column.title;
            box.RunModal();
            return;
        }
        text = DescribeMasks(rule);
    }
    Show(reporting::Information{.text = std::move(text), .title = column.title});
}

void CCorvaneDlg::CopyCheckBoxes() {
    TakeData();
    SyncCheckBoxes(state_, ruleList_);
}

void CCorvaneDlg::TakeTicksOfShownRules() {
    const store::Profile* const current = store::FindCurrentProfile(state_);
    if (state_.currentProfileName.empty() || current == nullptr) {
        return;
    }
    // While the search hides rules, rows do not stand for the rules that they show, and the boxes wait until
    // the list loses the focus. After a profile was deleted the list shows nothing at all.
    const auto position = static_cast<std::size_t>(current - state_.profiles.data());
    if (ruleList_.ShowsEveryRuleOf(position)) {
        TakeTicks(state_, position, ruleList_);
    }
}

}  // namespace corvane::app
