#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>

/// A window for list views that are measured, with report lists like those of the dialogs in it.
class ListWindow {
  public:
    ListWindow();
    ~ListWindow() { DestroyWindow(window_); }
    ListWindow(const ListWindow&) = delete;
    ListWindow& operator=(const ListWindow&) = delete;
    ListWindow(ListWindow&&) = delete;
    ListWindow& operator=(ListWindow&&) = delete;

    /// Makes a list, which belongs to the window.
    [[nodiscard]] HWND MakeList() const;
    /// What the lists tell and ask goes there.
    void AnswerWith(std::function<void(NMHDR&)> answer) { answer_ = std::move(answer); }

  private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window_ = nullptr;
    std::function<void(NMHDR&)> answer_;
};
