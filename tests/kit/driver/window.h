#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace corvane::test {

/// A window of another process, seen and used through messages as an automation tool would. Copies are the
/// same window; nothing is owned. Whatever takes too long or is not there throws Failure with the control's
/// name in it.
class Window {
  public:
    Window() = default;
    explicit Window(HWND handle) : handle_(handle) {}

    bool operator==(const Window&) const = default;

    [[nodiscard]] HWND Handle() const { return handle_; }
    [[nodiscard]] bool IsLive() const { return IsWindow(handle_) != FALSE; }
    /// Shown, and so are its parents.
    [[nodiscard]] bool IsVisible() const { return IsWindowVisible(handle_) != FALSE; }
    [[nodiscard]] bool IsEnabled() const { return IsWindowEnabled(handle_) != FALSE; }
    [[nodiscard]] bool IsMinimised() const { return IsIconic(handle_) != FALSE; }
    [[nodiscard]] int Id() const { return GetDlgCtrlID(handle_); }
    [[nodiscard]] DWORD Style() const;
    [[nodiscard]] DWORD ExtendedStyle() const;
    [[nodiscard]] DWORD ThreadId() const { return GetWindowThreadProcessId(handle_, nullptr); }
    [[nodiscard]] std::wstring ClassName() const;
    /// True for the class of that name, upper and lower case alike.
    [[nodiscard]] bool IsOfClass(const wchar_t* name) const;
    [[nodiscard]] std::wstring Text() const;
    /// "Button 1023 "Add rule" of "QENT ..."", for messages.
    [[nodiscard]] std::wstring Name() const;

    /// Outer rectangle in screen pixels.
    [[nodiscard]] RECT Bounds() const;
    /// Outer rectangle in the client pixels of the parent.
    [[nodiscard]] RECT BoundsInParent() const;
    [[nodiscard]] SIZE ClientSize() const;
    /// The client area in screen pixels.
    [[nodiscard]] RECT ClientBounds() const;
    /// The smallest size that the window lets its user give it (WM_GETMINMAXINFO), in pixels.
    [[nodiscard]] POINT SmallestTrackingSize() const;
    /// The rectangle that the window has, or gets back when it is restored (GetWindowPlacement).
    [[nodiscard]] RECT RestoredBounds() const;

    [[nodiscard]] bool HasControl(int id) const { return GetDlgItem(handle_, id) != nullptr; }
    [[nodiscard]] Window Control(int id) const;
    /// The direct children, in the order of the Tab key.
    [[nodiscard]] std::vector<Window> Children() const;
    [[nodiscard]] Window Owner() const { return Window(GetWindow(handle_, GW_OWNER)); }
    /// The window of the same thread that has the keyboard focus.
    [[nodiscard]] Window FocusOfThread() const;
    [[nodiscard]] bool HasFocus() const { return FocusOfThread().Handle() == handle_; }

    /// Sends a message and gives its answer.
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void Post(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    /// Presses a button and comes back when its command is through.
    void Click() const { Send(BM_CLICK); }
    /// Presses a button and comes back at once; for commands that show a dialog.
    void PostClick() const { Post(BM_CLICK); }
    /// Runs the command of a menu item and comes back when it is through.
    void SendMenuCommand(int id) const { Send(WM_COMMAND, MAKEWPARAM(id, 0)); }
    void PostMenuCommand(int id) const { Post(WM_COMMAND, MAKEWPARAM(id, 0)); }
    void SetText(const std::wstring& text) const;
    /// Types characters, one after the other.
    void Type(const std::wstring& text) const;
    /// Presses and releases a key, in the order of the queue.
    void PostKey(WPARAM virtualKey) const;
    /// Clicks at a point of the client area, in the order of the queue.
    void PostLeftClick(POINT point) const;
    void PostLeftDoubleClick(POINT point) const;
    void PostRightClick(POINT point) const;

    void WaitUntilGone() const;
    void WaitUntilEnabled() const;
    void WaitForText(const std::wstring& text) const;
    void WaitForFocus() const;

  private:
    HWND handle_ = nullptr;
};

/// Sees the screen in real pixels, as the driven program does; called once, before any window is looked at.
void UseScreenPixels();

}  // namespace corvane::test
