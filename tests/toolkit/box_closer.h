#pragma once

#include <windows.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace corvane::test {

/// What a message box showed.
struct ShownBox {
    std::wstring title;
    std::wstring text;
};

/// Reads every message box that the thread it was made in shows, and closes it with OK, from a thread of its
/// own.
class BoxCloser {
  public:
    /// `look` gets each box before it is closed, on the other thread.
    explicit BoxCloser(std::function<void(HWND box)> look = nullptr);
    BoxCloser(const BoxCloser&) = delete;
    BoxCloser& operator=(const BoxCloser&) = delete;
    BoxCloser(BoxCloser&&) = delete;
    BoxCloser& operator=(BoxCloser&&) = delete;
    ~BoxCloser();

    /// Stops looking, and gives what was shown until now.
    [[nodiscard]] std::vector<ShownBox> Boxes();

  private:
    void Watch(DWORD threadId);

    std::function<void(HWND box)> look_;
    std::vector<ShownBox> boxes_;
    std::atomic<bool> isDone_{false};
    std::thread watcher_;
};

}  // namespace corvane::test
