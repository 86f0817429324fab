#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "certs/recipient_selection_form.h"
#include "toolkit/list_view.h"

namespace corvane {

/// A list of certificate owners with check boxes, in one column. Its rows hold no texts; the control asks for
/// one when it needs it, and a row that stays a row is not made anew, so that a keystroke in the filter of
/// 20,000 owners takes no longer than a blink. The check marks live in the control, where other programs can
/// read and set them.
class OwnerListView {
  public:
    /// What the list shows at the moment.
    struct Source {
        std::function<std::size_t()> count;
        std::function<OwnerRow(std::size_t)> row;
    };

    /// What the user would miss after the rows have changed: the owners that are selected, the one with the
    /// focus mark, and how far the list is scrolled.
    struct Place {
        TextList selectedOwners;
        std::optional<std::wstring> focusedOwner;
        int topRow = 0;
    };

    explicit OwnerListView(Source source) : source_(std::move(source)) {}

    /// Takes over the control and makes its column.
    void Attach(HWND control, const std::wstring& heading);

    /// To be asked for before the source changes.
    [[nodiscard]] Place CurrentPlace() const;
    /// Shows the rows that the source has now, and of `place` what is still there.
    void Show(const Place& place, SortMark mark);
    /// Makes the column as wide as the client area.
    void FitColumn() const;

    /// A row that the user, or another program, checked or unchecked.
    struct CheckChange {
        std::size_t row = 0;
        bool isChecked = false;
    };
    /// The change that a notification tells of (LVN_ITEMCHANGED); none where it is about something else or
    /// comes from Show.
    [[nodiscard]] std::optional<CheckChange> CheckChangeOf(const NMLISTVIEW& notification);
    /// Answers the control's question for a row's text (LVN_GETDISPINFO).
    void AnswerDisplayRequest(NMLVDISPINFOW& request);

    [[nodiscard]] const toolkit::ListView& Control() const { return list_; }

  private:
    /// What a row of the control looks like.
    struct ShownRow {
        bool isChecked = false;
    };

    void MakeRows(std::size_t count);
    void PutChecks();
    [[nodiscard]] std::vector<std::size_t> SelectedRows() const;
    void RestoreMarks(const Place& place) const;

    Source source_;
    toolkit::ListView list_;
    std::vector<ShownRow> shownRows_;
    bool isFilling_ = false;
    // An answered text must outlive the next two questions.
    std::array<std::wstring, 4> answers_;
    std::size_t nextAnswer_ = 0;
};

}  // namespace corvane
