#include "toolkit/combo_box.h"

#include <algorithm>

namespace toolkit {

void ComboBox::Fill(const std::vector<std::wstring>& entries) const {
    const bool isEditable = (GetWindowLongPtrW(control_, GWL_STYLE) & 3) != CBS_DROPDOWNLIST;
    std::wstring text;
    if (isEditable) {
        text.resize(static_cast<std::size_t>(GetWindowTextLengthW(control_)) + 1);
        text.resize(
            static_cast<std::size_t>(GetWindowTextW(control_, text.data(), static_cast<int>(text.size()))));
    }
    Send(WM_SETREDRAW, FALSE);
    // Emptying the list empties the text too.
    Send(CB_RESETCONTENT);
    for (const std::wstring& entry : entries) {
        Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
    }
    Send(WM_SETREDRAW, TRUE);
    if (isEditable) {
        SetWindowTextW(control_, text.c_str());
    }
    InvalidateRect(control_, nullptr, TRUE);
}

std::vector<std::wstring> ComboBox::Entries() const {
    std::vector<std::wstring> entries;
    const int count = static_cast<int>(Send(CB_GETCOUNT));
    entries.reserve(static_cast<std::size_t>(std::max(count, 0)));
    for (int index = 0; index < count; ++index) {
        entries.push_back(Entry(index));
    }
    return entries;
}

std::wstring ComboBox::Entry(int index) const {
    const LRESULT length = Send(CB_GETLBTEXTLEN, static_cast<WPARAM>(index));
    if (length <= 0) {
        return {};
    }
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const LRESULT copied =
        Send(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.resize(copied > 0 ? static_cast<std::size_t>(copied) : 0);
    return text;
}

void ComboBox::Select(int index) const {
    Send(CB_SETCURSEL, static_cast<WPARAM>(index));
}

int ComboBox::Selected() const {
    return static_cast<int>(Send(CB_GETCURSEL));
}

void ComboBox::DropDown() const {
    Send(CB_SHOWDROPDOWN, TRUE);
}

void ComboBox::Focus() const {
    SetFocus(control_);
}

}  // namespace toolkit
