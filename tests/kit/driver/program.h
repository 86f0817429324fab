#pragma once

#include <string>
#include <vector>

#include "tests/kit/driver/message_box.h"
#include "tests/kit/driver/watched_process.h"
#include "tests/kit/driver/window.h"

namespace corvane::test {

/// A running program. Where it still runs when this object goes, it is left as its user would leave it. A
/// program that cannot be left, that crashes or that ends with another exit code than the expected one fails
/// the test that started it.
class Program {
  public:
    /// Starts the program file `path` (a path of the building machine will do). Throws Failure.
    explicit Program(const std::wstring& path);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// 0 unless told.
    void ExpectExitCode(DWORD code) { expectedExitCode_ = code; }
    [[nodiscard]] bool IsRunning() const { return process_.IsRunning(); }
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
    /// For failure messages: the names of the windows that are open.
    [[nodiscard]] std::wstring OpenWindows() const;
    [[nodiscard]] Window FindWindowOf(const Window& owner) const;
    [[nodiscard]] std::vector<Window> EnabledWindows() const;
    /// Closes one window after the other, from the top, and answers what the program asks on the way.
    void Leave() const;

    WatchedProcess process_;
    DWORD expectedExitCode_ = 0;
};

}  // namespace corvane::test
