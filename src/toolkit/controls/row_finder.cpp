#include "toolkit/controls/row_finder.h"

#include <utility>

#include "toolkit/controls/row_search.h"

namespace corvane::toolkit {

namespace {

bool IsFound(std::wstring_view text, std::wstring_view wanted, bool isBeginningEnough) {
    if (isBeginningEnough) {
        text = text.substr(0, wanted.size());
    }
    return CompareStringOrdinal(text.data(), static_cast<int>(text.size()), wanted.data(),
                                static_cast<int>(wanted.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace

RowFinder::~RowFinder() {
    if (list_ != nullptr) {
        RemoveWindowSubclass(list_, &Procedure, 0);
    }
}

void RowFinder::Attach(HWND list) {
    list_ = list;
    SetWindowSubclass(list, &Procedure, 0, reinterpret_cast<DWORD_PTR>(this));
}

int RowFinder::Find(const NMLVFINDITEMW& question) const {
    const std::optional<RowSearch> search =
        RowSearchFor({.flags = question.lvfi.flags, .start = question.iStart, .after = after_});
    if (!search || question.lvfi.psz == nullptr) {
        return -1;
    }
    const std::wstring_view wanted = question.lvfi.psz;
    return FirstRowFound(rows_.count(), search->start, search->wraps, [&](std::size_t row) {
        return IsFound(rows_.text(row), wanted, search->isBeginningEnough);
    });
}

LRESULT CALLBACK RowFinder::Procedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR /*subclass*/, DWORD_PTR self) {
    auto* const finder = reinterpret_cast<RowFinder*>(self);
    const auto handOn = [&] { return DefSubclassProc(list, message, wParam, lParam); };
    switch (message) {
        case WM_CHAR: {
            const bool before = std::exchange(finder->isTyping_, true);
            const LRESULT result = handOn();
            finder->isTyping_ = before;
            return result;
        }
        case LVM_FINDITEMA:
        case LVM_FINDITEMW: {
            // A control that searches for typed letters by a message to itself is still typed into.
            if (finder->isTyping_) {
                return handOn();
            }
            const std::optional<int> before = std::exchange(finder->after_, static_cast<int>(wParam));
            const LRESULT result = handOn();
            finder->after_ = before;
            return result;
        }
        case WM_NCDESTROY:
            RemoveWindowSubclass(list, &Procedure, 0);
            finder->list_ = nullptr;
            return handOn();
        default:
            return handOn();
    }
}

}  // namespace corvane::toolkit
