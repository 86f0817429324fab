#pragma once

#include <windows.h>

#include <functional>
#include <vector>

namespace corvane::test {

/// A visible window of the test's own, such as owns a dialog. It keeps the messages that come through its
/// procedure, and can do something on WM_APP.
class TestWindow {
  public:
    TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;
    TestWindow(TestWindow&&) = delete;
    TestWindow& operator=(TestWindow&&) = delete;
    ~TestWindow();

    [[nodiscard]] HWND Handle() const { return handle_; }
    [[nodiscard]] bool HasSeen(UINT message) const;

    std::function<void()> onAppMessage;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR subclass, DWORD_PTR self);

    HWND handle_;
    std::vector<UINT> seen_;
};

/// Calls a function with each message of a window before the window gets it, as long as this object lives.
class MessageWatcher {
  public:
    MessageWatcher(HWND window, std::function<void(UINT message)> watch);
    MessageWatcher(const MessageWatcher&) = delete;
    MessageWatcher& operator=(const MessageWatcher&) = delete;
    MessageWatcher(MessageWatcher&&) = delete;
    MessageWatcher& operator=(MessageWatcher&&) = delete;
    ~MessageWatcher();

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR subclass, DWORD_PTR self);

    HWND window_;
    std::function<void(UINT message)> watch_;
};

}  // namespace corvane::test
