#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "certificates/selection/selection_form.h"
#include "toolkit/controls/kept_check_boxes.h"
#include "toolkit/controls/list_view.h"
#include "toolkit/controls/row_finder.h"

namespace corvane::certificates {

/// A list of certificate owners with check boxes, in one column. The control holds no rows (LVS_OWNERDATA):
/// it asks for the text and the check mark of a row when it draws it, so that 20,000 owners are listed,
/// filtered and sorted in the time that it takes to draw those in view.
class OwnerListView {
  public:
    /// What the list shows at the moment, and where a row goes that is checked or unchecked.
    struct Source {
        std::function<std::size_t()> count;
        std::function<OwnerRow(std::size_t row)> row;
        std::function<void(std::size_t row, bool isChecked)> check;
    };

    /// What the user would miss after the rows have changed: the owners that are selected, the one with the
    /// focus mark, and how far the list is scrolled.
    struct Place {
        store::TextList selectedOwners;
        std::optional<std::wstring> focusedOwner;
        int topRow = 0;
    };

    explicit OwnerListView(Source source);

    /// Takes over the control and makes its column.
    void Attach(HWND control, const std::wstring& heading);

    /// To be asked for before the source changes.
    [[nodiscard]] Place CurrentPlace() const;
    /// Shows the rows that the source has now, and of `place` what is still there.
    void Show(const Place& place, SortMark mark);
    /// Makes the column as wide as the client area.
    void FitColumn() const;
    /// Fits check boxes and column to the list's present scale.
    void Rescale();

    /// Answers the control's question for a row (LVN_GETDISPINFO) or a search for one (LVN_ODFINDITEM). True
    /// when it was one of them; `result` is then the answer.
    bool Answer(NMHDR& header, LRESULT& result);

    [[nodiscard]] const toolkit::ListView& Control() const { return list_; }

  private:
    void AnswerDisplayRequest(LVITEMW& item);
    [[nodiscard]] std::wstring_view OwnerAt(std::size_t row) const { return source_.row(row).owner; }
    [[nodiscard]] std::vector<std::size_t> SelectedRows() const;
    void RestoreMarks(const Place& place) const;

    Source source_;
    toolkit::ListView list_;
    toolkit::KeptCheckBoxes checkBoxes_;
    toolkit::RowFinder finder_;
    // An answered text must outlive the next two questions.
    std::array<std::wstring, 4> answers_;
    std::size_t nextAnswer_ = 0;
};

}  // namespace corvane::certificates
