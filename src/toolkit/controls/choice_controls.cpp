#include "toolkit/controls/choice_controls.h"

#include <algorithm>

namespace corvane::toolkit {

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

namespace {

constexpr WPARAM kTextIndent = 4;  // pixels

}  // namespace

void ListBox::Add(const std::wstring& entry) const {
    Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
    FitScrollBar();
}

void ListBox::Delete(int index) const {
    Send(LB_DELETESTRING, static_cast<WPARAM>(index));
    FitScrollBar();
}

void ListBox::Fill(const std::vector<std::wstring>& entries) const {
    Send(WM_SETREDRAW, FALSE);
    Send(LB_RESETCONTENT);
    for (const std::wstring& entry : entries) {
        Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
    }
    Send(WM_SETREDRAW, TRUE);
    FitScrollBar();
    InvalidateRect(control_, nullptr, TRUE);
}

void ListBox::FitScrollBar() const {
    const HDC context = GetDC(control_);
    const auto font = reinterpret_cast<HGDIOBJ>(Send(WM_GETFONT));
    const HGDIOBJ before = font != nullptr ? SelectObject(context, font) : nullptr;
    LONG widest = 0;
    for (const std::wstring& entry : Entries()) {
        SIZE size = {};
        GetTextExtentPoint32W(context, entry.c_str(), static_cast<int>(entry.size()), &size);
        widest = std::max(widest, size.cx);
    }
    if (before != nullptr) {
        SelectObject(context, before);
    }
    ReleaseDC(control_, context);
    // The list draws a text a little way in from its edge.
    Send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest) + kTextIndent);
}

int ListBox::Count() const {
    return static_cast<int>(Send(LB_GETCOUNT));
}

std::wstring ListBox::Entry(int index) const {
    const LRESULT length = Send(LB_GETTEXTLEN, static_cast<WPARAM>(index));
    if (length <= 0) {
        return {};
    }
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const LRESULT copied =
        Send(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.resize(copied > 0 ? static_cast<std::size_t>(copied) : 0);
    return text;
}

std::vector<std::wstring> ListBox::Entries() const {
    std::vector<std::wstring> entries;
    const int count = Count();
    entries.reserve(static_cast<std::size_t>(std::max(count, 0)));
    for (int index = 0; index < count; ++index) {
        entries.push_back(Entry(index));
    }
    return entries;
}

int ListBox::Find(const std::wstring& text) const {
    return static_cast<int>(
        Send(LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str())));
}

int ListBox::Selected() const {
    return static_cast<int>(Send(LB_GETCURSEL));
}

void ListBox::Select(int index) const {
    Send(LB_SETCURSEL, static_cast<WPARAM>(index));
}

}  // namespace corvane::toolkit
