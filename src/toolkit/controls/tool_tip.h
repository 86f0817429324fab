#pragma once

#include <windows.h>

namespace corvane::toolkit {

/// The tooltips of a dialog's controls. The control belongs to the dialog's window and dies with it.
class ToolTip {
  public:
    /// Creates the tooltip control for `dialog`.
    void Create(HWND dialog);
    /// Gives a control of the dialog its text.
    void Add(HWND control, const wchar_t* text) const;
    /// Replaces the text of a control that was added before.
    void SetText(HWND control, const wchar_t* text) const;
    /// Switches all tooltips on or off.
    void Activate(bool isActive) const;
    /// Passes on a message before it is dispatched, so that the control sees the mouse.
    void Relay(const MSG& message) const;

    [[nodiscard]] HWND Window() const { return window_; }

  private:
    void Send(UINT message, HWND control, const wchar_t* text) const;

    HWND dialog_ = nullptr;
    HWND window_ = nullptr;
};

}  // namespace corvane::toolkit
