#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

namespace corvane::toolkit {

/// Finds rows of a list view that holds none of its own (LVS_OWNERDATA). Such a control asks its owner both
/// when another program searches it by message (LVM_FINDITEM) and when the user types letters, and the
/// question does not tell which; but letters are a beginning, where a message may want the whole text. So
/// the control is watched for what it is about to ask for.
class RowFinder {
  public:
    /// What is searched; rows count from 0.
    struct Rows {
        std::function<std::size_t()> count;
        std::function<std::wstring_view(std::size_t row)> text;
    };

    explicit RowFinder(Rows rows) : rows_(std::move(rows)) {}
    RowFinder(const RowFinder&) = delete;
    RowFinder& operator=(const RowFinder&) = delete;
    RowFinder(RowFinder&&) = delete;
    RowFinder& operator=(RowFinder&&) = delete;
    ~RowFinder();

    /// Watches the control until it or this object is gone.
    void Attach(HWND list);
    /// The answer to the control's question (LVN_ODFINDITEM): the row, or -1. Upper and lower case are alike,
    /// as in every list view.
    [[nodiscard]] int Find(const NMLVFINDITEMW& question) const;

  private:
    static LRESULT CALLBACK Procedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR subclass, DWORD_PTR self);

    Rows rows_;
    HWND list_ = nullptr;
    bool isTyping_ = false;
    std::optional<int> after_;
};

}  // namespace corvane::toolkit
