#pragma once

#include <string>
#include <vector>

#include "tests/kit/driver/window.h"

namespace corvane::test {

/// A list view of another process, in report style.
class ListView : public Window {
  public:
    explicit ListView(const Window& window) : Window(window) {}

    [[nodiscard]] int RowCount() const;
    [[nodiscard]] std::wstring Cell(int row, int column) const;
    /// The cells of a row, as many as there are columns.
    [[nodiscard]] std::vector<std::wstring> Row(int row) const;
    /// The cells of one column, from the first row to the last.
    [[nodiscard]] std::vector<std::wstring> Column(int column) const;

    [[nodiscard]] int ColumnCount() const;
    [[nodiscard]] int ColumnWidth(int column) const;
    /// The headings as they stand from left to right.
    [[nodiscard]] std::vector<std::wstring> Headings() const;
    [[nodiscard]] DWORD ExtendedListStyle() const;

    [[nodiscard]] std::vector<int> SelectedRows() const;
    [[nodiscard]] int FocusedRow() const;
    [[nodiscard]] bool IsChecked(int row) const;
    [[nodiscard]] std::vector<bool> Checks() const;
    [[nodiscard]] int TopRow() const;
    /// True when the row lies wholly in the visible part.
    [[nodiscard]] bool IsInView(int row) const;

    /// Selects exactly these rows.
    void Select(const std::vector<int>& rows) const;
    void SetChecked(int row, bool checked) const;

    /// The rectangle of a cell in client pixels, its visible part; the list is scrolled to it.
    [[nodiscard]] RECT CellBounds(int row, int column) const;
    [[nodiscard]] POINT CellCentre(int row, int column) const;
    /// A point below the last row; throws where the rows fill the list.
    [[nodiscard]] POINT PointBelowRows() const;
    /// The middle of a row's check box.
    [[nodiscard]] POINT CheckBoxCentre(int row) const;

    void WaitForRowCount(int count) const;
    void WaitForSelection(const std::vector<int>& rows) const;
    void WaitForColumn(int column, const std::vector<std::wstring>& cells) const;

  private:
    void SetState(int row, UINT state, UINT mask) const;
};

}  // namespace corvane::test
