#pragma once

#include <cstddef>
#include <vector>

#include "store/records.h"
#include "toolkit/controls/list_view.h"

namespace corvane::editors {

/// The rule editor's list of masks: one column, as wide as the list.
class MaskListView {
  public:
    /// Takes over the control and makes its column, which leaves room for a vertical scroll bar of
    /// `scrollBarWidth` pixels.
    void Attach(HWND control, int scrollBarWidth);
    /// Shows the masks of a rule that has just been opened.
    void Show(const store::TextList& masks) const;
    /// Shows the masks after a change, with these rows selected; the scroll position stays.
    void ShowChanged(const store::TextList& masks, const std::vector<std::size_t>& selectedRows) const;
    /// Makes the column as wide as the list.
    void FitColumn() const;

    [[nodiscard]] const toolkit::ListView& Control() const { return list_; }

  private:
    toolkit::ListView list_;
};

}  // namespace corvane::editors
