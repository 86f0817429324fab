#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "app/rule_list/rule_ticks.h"
#include "store/records.h"
#include "toolkit/controls/supplied_list_view.h"
#include "toolkit/text/system_text.h"

namespace corvane::app {

/// The list of the current profile's rules. What the user ticks stays in the control until it is asked for.
class RuleListView final : public CheckBoxes, private toolkit::RowSource {
  public:
    /// What a refill keeps: nothing, the scroll position, or the selected rules too, as far as they are
    /// still listed. The last is only for rules that stayed at their positions.
    enum class Keep { kNothing, kScroll, kScrollAndSelection };

    explicit RuleListView(const store::ConfigurationState& state) : state_(state) {}

    /// Takes over the control, which is empty, and makes its columns. `scrollBarWidth` in pixels.
    void Attach(HWND control, int scrollBarWidth);
    /// Shares its width out among the columns. `scrollBarWidth` in pixels.
    void LayOutColumns(int scrollBarWidth);
    /// Has the check boxes drawn for the scale of today; the check marks stay.
    void MakeCheckBoxesAgain() { list_.MakeCheckBoxesAgain(); }

    void Clear();
    /// Shows the rules of the profile at this position of the configuration that match the search text.
    void Fill(std::size_t profilePosition, const std::wstring& searchText, const toolkit::SystemText& text,
              Keep keep);
    /// Tells whether the list shows the profile at this position of the configuration, and every rule of it
    /// at the row of its own position.
    [[nodiscard]] bool ShowsEveryRuleOf(std::size_t profilePosition) const;

    [[nodiscard]] std::wstring CellText(std::size_t row, std::size_t column) const override;

    [[nodiscard]] int CheckState(std::size_t row) const override {
        return list_.CheckState(static_cast<int>(row));
    }

    [[nodiscard]] toolkit::SuppliedListView& Control() { return list_; }
    [[nodiscard]] const toolkit::ListView& Control() const { return list_; }

  private:
    [[nodiscard]] std::size_t RowCount() const override { return rows_.size(); }
    [[nodiscard]] bool IsTicked(std::size_t row) const override;
    [[nodiscard]] const std::vector<store::Rule>* ShownRules() const;
    void DeleteRows();
    void FitColumnsToScrollBar();
    void Select(const std::vector<std::size_t>& rulePositions) const;

    const store::ConfigurationState& state_;
    toolkit::SuppliedListView list_{*this};
    int scrollBarWidth_ = 0;
    int laidOutWidth_ = 0;                        ///< The client width that the columns share, in pixels.
    std::optional<std::size_t> profilePosition_;  ///< None while no profile is shown.
    std::vector<std::size_t> rows_;               ///< The rule position of each row.
};

}  // namespace corvane::app
