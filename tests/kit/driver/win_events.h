#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>
#include <vector>

#include "tests/kit/driver/window.h"

namespace corvane::test {

/// Listens to what a window announces to screen readers. A thread has one of these at a time, and hears while
/// it waits (WaitUntil).
class WinEvents {
  public:
    /// Listens for one event (EVENT_OBJECT_...) of one window. Throws Failure.
    WinEvents(const Window& window, DWORD event);
    ~WinEvents();
    WinEvents(const WinEvents&) = delete;
    WinEvents& operator=(const WinEvents&) = delete;
    WinEvents(WinEvents&&) = delete;
    WinEvents& operator=(WinEvents&&) = delete;

    /// The children that it was announced for, in order; a row of a list is one, counted from 1.
    [[nodiscard]] const std::vector<LONG>& Children() const { return children_; }
    /// Waits until it has been announced this many times.
    void WaitForCount(std::size_t count) const;

  private:
    struct HookRemover {
        void operator()(HWINEVENTHOOK hook) const { UnhookWinEvent(hook); }
    };
    static void CALLBACK Hear(HWINEVENTHOOK hook, DWORD event, HWND window, LONG object, LONG child,
                              DWORD threadId, DWORD milliseconds);

    Window window_;
    std::vector<LONG> children_;
    std::unique_ptr<std::remove_pointer_t<HWINEVENTHOOK>, HookRemover> hook_;
};

}  // namespace corvane::test
