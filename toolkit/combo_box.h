#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace toolkit {

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

}  // namespace toolkit
