#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

namespace corvane::test {

struct HandleCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using UniqueHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleCloser>;

/// Starts a program file as a process that the calling thread debugs, and no other; its two handles are the
/// caller's. Gives the system's code.
using ProcessStart = std::function<DWORD(const std::wstring& file, PROCESS_INFORMATION& process)>;

/// A process that is watched from its first instruction to its last, as a debugger does it: a crash inside a
/// window procedure may be swallowed by the system, and then nothing but its first chance tells of it.
class WatchedProcess {
  public:
    /// Starts a program file; a start that the system fails by itself is repeated. Throws Failure.
    explicit WatchedProcess(const std::wstring& file);
    /// The same with a start of the caller's.
    WatchedProcess(const std::wstring& file, const ProcessStart& start);
    /// Ends the process if it still runs.
    ~WatchedProcess();
    WatchedProcess(const WatchedProcess&) = delete;
    WatchedProcess& operator=(const WatchedProcess&) = delete;
    WatchedProcess(WatchedProcess&&) = delete;
    WatchedProcess& operator=(WatchedProcess&&) = delete;

    [[nodiscard]] DWORD Id() const { return id_; }
    [[nodiscard]] bool IsRunning() const { return !HasEndedWithin(0); }
    [[nodiscard]] bool HasEndedWithin(DWORD milliseconds) const;
    /// STILL_ACTIVE while it runs.
    [[nodiscard]] DWORD ExitCode() const;
    void End() const;
    /// What the processor or the heap has objected to so far, each in words, whether or not the program or
    /// the system handled it. Thrown C++ exceptions are none of these.
    [[nodiscard]] std::vector<std::wstring> Crashes() const;

  private:
    /// Only the thread that starts a process hears of what happens in it.
    void StartAndWatch(const std::wstring& file, const ProcessStart& start, HANDLE isStarted);
    /// Handles the events of the process until it has ended.
    void Watch();
    /// Tells the system how to go on.
    [[nodiscard]] DWORD Note(const DEBUG_EVENT& event);

    UniqueHandle process_;
    DWORD id_ = 0;
    DWORD startCode_ = 0;
    bool isFirstBreakpointPassed_ = false;
    mutable std::mutex mutex_;
    std::vector<std::wstring> crashes_;
    std::thread watcher_;
};

}  // namespace corvane::test
