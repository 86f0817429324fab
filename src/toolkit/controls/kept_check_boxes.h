#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <functional>
#include <vector>

namespace corvane::toolkit {

/// The check boxes of a list view that holds no rows of its own (LVS_OWNERDATA). Such a control draws check
/// boxes and asks for their marks, but does not keep them, and so a click or the space bar would change
/// nothing. Here they do, and other programs read and set the marks with the same messages as those of any
/// list view.
///
/// The mouse on a box is dealt with here alone, so that no press turns a mark twice: it is turned where the
/// button is let go on the box that it went down on. A double click on a box turns the mark twice, and the
/// control does not notify of it.
class KeptCheckBoxes {
  public:
    /// Where the marks are kept; rows count from 0.
    struct Marks {
        std::function<bool(std::size_t row)> isChecked;
        std::function<void(std::size_t row, bool isChecked)> check;
    };

    explicit KeptCheckBoxes(Marks marks) : marks_(std::move(marks)) {}
    KeptCheckBoxes(const KeptCheckBoxes&) = delete;
    KeptCheckBoxes& operator=(const KeptCheckBoxes&) = delete;
    KeptCheckBoxes(KeptCheckBoxes&&) = delete;
    KeptCheckBoxes& operator=(KeptCheckBoxes&&) = delete;
    ~KeptCheckBoxes();

    /// Gives the control its check boxes, until the control or this object is gone.
    void Attach(HWND list);
    /// Makes the boxes anew, in the size that the control gives them in its present scale. The marks stay.
    void MakeAnew();
    /// Answers the control's question for a row (LVN_GETDISPINFO) as far as it is about its mark.
    void AnswerDisplayRequest(LVITEMW& item) const;

  private:
    static LRESULT CALLBACK Procedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR subclass, DWORD_PTR self);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    [[nodiscard]] int RowCount() const;
    [[nodiscard]] bool HasRow(int row) const { return row >= 0 && row < RowCount(); }
    [[nodiscard]] int RowOfBoxAt(LPARAM point) const;
    [[nodiscard]] int NextRow(int after, UINT flag) const;
    [[nodiscard]] bool IsChecked(int row) const { return marks_.isChecked(static_cast<std::size_t>(row)); }
    [[nodiscard]] UINT StateImage(int row) const;
    LRESULT SetState(int row, const LVITEMW& item);
    LRESULT GetItem(UINT message, WPARAM wParam, LVITEMW& item) const;
    void Put(int row, bool isChecked);
    [[nodiscard]] std::vector<std::size_t> RowsOfTheSpaceBar() const;

    Marks marks_;
    HWND list_ = nullptr;
    /// The row on whose box the mouse button went down, -1 where it is not down on any.
    int pressedRow_ = -1;
};

}  // namespace corvane::toolkit
