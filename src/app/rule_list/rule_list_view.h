#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "store/records.h"
#include "toolkit/controls/list_view.h"
#include "toolkit/text/system_text.h"

namespace corvane::app {

/// The list of the current profile's rules. Its rows hold no texts; the control asks for the text of a cell
/// when it needs it, so filling it with thousands of rules takes no longer than a blink.
class RuleListView {
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
    void MakeCheckBoxesAgain() const { list_.MakeCheckBoxesAgain(); }

    void Clear();
    /// Shows the rules of the profile at this position of the configuration that match the search text.
    void Fill(std::size_t profilePosition, const std::wstring& searchText, const toolkit::SystemText& text,
              Keep keep);
    /// Tells whether the list shows the profile at this position of the configuration, and every rule of it
    /// at the row of its own position.
    [[nodiscard]] bool ShowsEveryRuleOf(std::size_t profilePosition) const;

    /// Answers the control's question for a cell's text (LVN_GETDISPINFO).
    void AnswerDisplayRequest(NMLVDISPINFOW& request);
    [[nodiscard]] std::wstring CellText(std::size_t row, std::size_t column) const;

    [[nodiscard]] toolkit::ListView& Control() { return list_; }
    [[nodiscard]] const toolkit::ListView& Control() const { return list_; }

  private:
    [[nodiscard]] const std::vector<store::Rule>* ShownRules() const;
    void DeleteRows();
    void InsertRows(const std::vector<store::Rule>& rules);
    void FitColumnsToScrollBar();
    void Select(const std::vector<std::size_t>& rulePositions) const;

    const store::ConfigurationState& state_;
    toolkit::ListView list_;
    int scrollBarWidth_ = 0;
    int laidOutWidth_ = 0;                        ///< The client width that the columns share, in pixels.
    std::optional<std::size_t> profilePosition_;  ///< None while no profile is shown.
    std::vector<std::size_t> rows_;               ///< The rule position of each row.
    // An answered text must outlive the next two questions.
    std::array<std::wstring, 4> answers_;
    std::size_t nextAnswer_ = 0;
};

}  // namespace corvane::app
