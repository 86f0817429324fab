#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace corvane::toolkit {

/// The mark in a column's heading that tells the order of the rows.
enum class HeadingMark { kNone, kUp, kDown };

/// A list view control in report style. Rows and columns count from 0; -1 stands for no row.
class ListView {
  public:
    /// Speaks to the given control from now on; the control belongs to its dialog.
    void Attach(HWND control) { control_ = control; }
    [[nodiscard]] HWND Window() const { return control_; }

    void AddExtendedStyles(DWORD styles) const;
    /// The column gets the control's usual width, which is a narrow one.
    void InsertColumn(int position, const std::wstring& title) const;
    void InsertColumn(int position, const std::wstring& title, int widthPixels) const;
    /// Nothing when the column has this width: setting it makes the control arrange and draw itself anew.
    void SetColumnWidth(int column, int widthPixels) const;
    [[nodiscard]] int ColumnWidth(int column) const;
    [[nodiscard]] int ClientWidth() const;
    /// Lets `setWidths` share the client width, in pixels, out among the columns. Scroll bars that the old
    /// widths or a new size called for may come or go with the new ones, and change what there is to share;
    /// then it is asked again, three times at most.
    void LayOutColumns(const std::function<void(int clientWidth)>& setWidths) const;
    /// Nothing when the heading has this mark, so that it is not drawn again.
    void MarkHeading(int column, HeadingMark mark) const;

    [[nodiscard]] int RowCount() const;
    /// Appends a row that keeps its own text.
    void AppendRow(const std::wstring& text) const;
    /// Appends `count` rows whose texts, those of all columns, are asked for when they are needed
    /// (LVN_GETDISPINFO).
    void AppendRowsOnRequest(std::size_t count) const;
    void DeleteRow(int row) const;
    void DeleteAllRows() const;
    void SetRowText(int row, const std::wstring& text) const;
    [[nodiscard]] std::wstring RowText(int row) const;
    /// The first row whose first column shows exactly this text, or -1.
    [[nodiscard]] int FindRow(const std::wstring& text) const;

    [[nodiscard]] int FirstSelectedRow() const;
    [[nodiscard]] std::vector<std::size_t> SelectedRows() const;
    /// Makes this the only selected row, with the focus mark on it; nothing when there is no such row.
    void SelectOnly(int row) const;
    void AddToSelection(int row) const;
    void RemoveFromSelection(int row) const;
    /// Puts the focus mark on the row, from where arrow keys go on, without selecting it.
    void MarkFocus(int row) const;
    /// The row with the focus mark, or -1.
    [[nodiscard]] int FocusedRow() const;
    void ScrollIntoView(int row) const;
    void Focus() const;

    void SetChecked(int row, bool isChecked) const;
    /// Has the control draw its check boxes for the scale of today (it makes them when it is given the style,
    /// LVS_EX_CHECKBOXES); the rows keep their check marks.
    void MakeCheckBoxesAgain() const;
    /// The state image index of the row minus 1: 0 without, 1 with a check mark, -1 where there is no row.
    [[nodiscard]] int CheckState(int row) const;

    /// Keeps the control from drawing itself for as long as this object lives, so that filling it is not
    /// slowed down a hundredfold.
    class RedrawLock {
      public:
        explicit RedrawLock(const ListView& list);
        RedrawLock(const RedrawLock&) = delete;
        RedrawLock& operator=(const RedrawLock&) = delete;
        RedrawLock(RedrawLock&&) = delete;
        RedrawLock& operator=(RedrawLock&&) = delete;
        ~RedrawLock();

      private:
        HWND control_;
    };

    /// The first row that is shown.
    [[nodiscard]] int TopRow() const;
    /// Scrolls so that this row is the first shown, as far as there are rows. Not while redrawing is locked:
    /// Windows is reported to ignore LVM_SCROLL then.
    void ScrollTo(int topRow) const;

  protected:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(control_, message, wParam, lParam);
    }

  private:
    void SetState(int row, UINT state, UINT mask) const;

    HWND control_ = nullptr;
};

}  // namespace corvane::toolkit
