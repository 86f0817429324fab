#pragma once

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/driver/message_box.h"
#include "tests/driver/window.h"

namespace driver {

struct HandleCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using UniqueHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleCloser>;

/// A running program. It is ended with this object if it still runs then.
class Program {
  public:
    /// Starts the program file `path` (a path of the building machine will do). Throws Failure.
    explicit Program(const std::wstring& path);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    [[nodiscard]] bool IsRunning() const;
    /// Waits for the end and gives the exit code.
    DWORD WaitForEnd() const;

    /// All visible top-level windows of the program but tooltips.
    [[nodiscard]] std::vector<Window> TopLevelWindows() const;

    /// Waits for a visible, enabled window of the program that has this owner (none: an empty Window).
    [[nodiscard]] Window WaitForWindow(const Window& owner) const;
    /// Waits for a visible, enabled window of the program, whoever owns it.
    [[nodiscard]] Window WaitForAnyWindow() const;
    /// Waits for a dialog with this owner that is no message box.
    [[nodiscard]] Window WaitForDialog(const Window& owner) const;
    /// Waits for a message box with this owner.
    [[nodiscard]] MessageBoxWindow WaitForMessageBox(const Window& owner) const;

  private:
    /// For failure messages: that the program has ended, and with which code.
    [[nodiscard]] std::wstring HowItEnded() const;
    [[nodiscard]] Window FindWindowOf(const Window& owner) const;

    UniqueHandle process_;
    DWORD processId_ = 0;
};

}  // namespace driver
