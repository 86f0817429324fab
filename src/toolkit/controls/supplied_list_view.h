#pragma once

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "toolkit/controls/list_view.h"

namespace corvane::toolkit {

/// What a list shows. Rows and columns count from 0.
class RowSource {
  public:
    virtual ~RowSource() = default;

    [[nodiscard]] virtual std::size_t RowCount() const = 0;
    /// The text of a cell; empty for one that is not there.
    [[nodiscard]] virtual std::wstring CellText(std::size_t row, std::size_t column) const = 0;
    /// Whether the row's check box is to be ticked. Only a list with check boxes asks.
    [[nodiscard]] virtual bool IsTicked(std::size_t /*row*/) const { return false; }
    /// The user or another program has ticked or unticked a row.
    virtual void Tick(std::size_t /*row*/, bool /*isTicked*/) {}

  protected:
    RowSource() = default;
    RowSource(const RowSource&) = default;
    RowSource& operator=(const RowSource&) = default;
    RowSource(RowSource&&) = default;
    RowSource& operator=(RowSource&&) = default;
};

/// A list view whose texts are supplied when it needs them, to draw a cell or to search for one, so that
/// filling it with thousands of rows takes no longer than a blink. The rows, their check boxes, selection and
/// search are the control's own: it answers other programs and screen readers as any list does.
class SuppliedListView : public ListView {
  public:
    /// `rows` must outlive the list.
    explicit SuppliedListView(RowSource& rows) : rows_(rows) {}
    SuppliedListView(const SuppliedListView&) = delete;
    SuppliedListView& operator=(const SuppliedListView&) = delete;
    SuppliedListView(SuppliedListView&&) = delete;
    SuppliedListView& operator=(SuppliedListView&&) = delete;
    ~SuppliedListView() = default;

    /// Shows as many rows as the source has now, ticked as it says. Rows are added and taken away at the end;
    /// selection, focus mark and scroll position stay where they are, as far as there are rows. To be called
    /// with redrawing locked, and whenever the source has changed.
    void Update();
    /// As for any list view; the source does not hear of it.
    void MakeCheckBoxesAgain();

    /// Takes a notification of the control: answers its question for a text (LVN_GETDISPINFO), and tells the
    /// source and screen readers of a tick (LVN_ITEMCHANGED). Returns whether it was such a question; of all
    /// else others may want to hear too.
    bool Answer(NMHDR& header);

  private:
    void AnswerTextRequest(LVITEMW& item);

    RowSource& rows_;
    /// The control notifies of ticks that are only shown, too.
    bool isShowingTicks_ = false;
    /// The ticks as the control has them: to ask it for each row takes longer than all else.
    std::vector<bool> shownTicks_;
    // An answered text must outlive the next two questions.
    std::array<std::wstring, 4> answers_;
    std::size_t nextAnswer_ = 0;
};

}  // namespace corvane::toolkit
