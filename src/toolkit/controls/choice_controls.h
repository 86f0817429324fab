#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace corvane::toolkit {

/// A combo box control. Entries count from 0; -1 stands for none.
class ComboBox {
  public:
    /// Speaks to the given control; it belongs to its dialog.
    explicit ComboBox(HWND control) : control_(control) {}

    /// Puts these entries in place of those it has. Nothing is selected then; the text of an editable one
    /// stays.
    void Fill(const std::vector<std::wstring>& entries) const;
    [[nodiscard]] std::vector<std::wstring> Entries() const;
    [[nodiscard]] std::wstring Entry(int index) const;
    void Select(int index) const;
    [[nodiscard]] int Selected() const;
    /// Opens its list.
    void DropDown() const;
    void Focus() const;

  private:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(control_, message, wParam, lParam);
    }

    HWND control_;
};

/// A list box with one selection. Entries count from 0; -1 stands for none. One that has a horizontal scroll
/// bar (WS_HSCROLL) shows it while an entry is wider than the list.
class ListBox {
  public:
    /// Speaks to the given control; it belongs to its dialog.
    explicit ListBox(HWND control) : control_(control) {}

    /// Adds an entry: at its place in a list that sorts, else at the end.
    void Add(const std::wstring& entry) const;
    void Delete(int index) const;
    /// Puts these entries in place of those it has. Nothing is selected then.
    void Fill(const std::vector<std::wstring>& entries) const;
    /// Fits the horizontal scroll bar to the entries; for a list that came to another font.
    void FitScrollBar() const;
    [[nodiscard]] int Count() const;
    [[nodiscard]] std::wstring Entry(int index) const;
    [[nodiscard]] std::vector<std::wstring> Entries() const;
    /// The entry that shows exactly this text, upper and lower case alike (LB_FINDSTRINGEXACT), or -1.
    [[nodiscard]] int Find(const std::wstring& text) const;
    [[nodiscard]] int Selected() const;
    void Select(int index) const;

  private:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(control_, message, wParam, lParam);
    }

    HWND control_;
};

}  // namespace corvane::toolkit
