#include "toolkit/list_box.h"

namespace toolkit {

void ListBox::Add(const std::wstring& entry) const {
    Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
}

void ListBox::Delete(int index) const {
    Send(LB_DELETESTRING, static_cast<WPARAM>(index));
}

void ListBox::Clear() const {
    Send(LB_RESETCONTENT);
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
    for (int index = 0; index < Count(); ++index) {
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

}  // namespace toolkit
