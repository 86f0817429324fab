#include "tests/kit/driver/watched_process.h"

#include <array>
#include <cstdio>
#include <cwchar>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/waiting.h"

namespace corvane::test {
namespace {

/// Gives the system's code. Under Wine a start may end as an internal error before anything of the program
/// has run (tests/kit/harness/world.sh tells why); the next one goes well. Each that is repeated is reported,
/// for tests/kit/harness/wine_run counts them.
DWORD StartProcess(const std::wstring& file, PROCESS_INFORMATION& process) {
    DWORD code = ERROR_SUCCESS;
    for (int attempt = 1; attempt <= 3; ++attempt) {
        std::wstring commandLine = L"\"" + file + L"\"";
        STARTUPINFOW start{};
        start.cb = sizeof start;
        if (CreateProcessW(file.c_str(), commandLine.data(), nullptr, nullptr, FALSE, DEBUG_ONLY_THIS_PROCESS,
                           nullptr, nullptr, &start, &process)) {
            return ERROR_SUCCESS;
        }
        code = GetLastError();
        if (code != ERROR_INTERNAL_ERROR) {
            break;
        }
        std::fprintf(stderr, "A start is repeated: %s (attempt %d)\n", Utf8(file).c_str(), attempt);
    }
    return code;
}

/// What the system raises by itself has a code of its own; a C++ exception has one of its compiler.
bool IsCrash(DWORD exceptionCode) {
    constexpr DWORD kSystemError = 0xC;
    return exceptionCode >> 28 == kSystemError;
}

std::wstring InWords(const EXCEPTION_RECORD& record) {
    std::array<wchar_t, 64> words{};
    std::swprintf(words.data(), words.size(), L"exception 0x%lX at address %p", record.ExceptionCode,
                  record.ExceptionAddress);
    return words.data();
}

}  // namespace

WatchedProcess::WatchedProcess(const std::wstring& file) : WatchedProcess(file, StartProcess) {}

WatchedProcess::WatchedProcess(const std::wstring& file, const ProcessStart& start) {
    const UniqueHandle isStarted(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    watcher_ = std::thread(
        [this, &file, &start, started = isStarted.get()] { StartAndWatch(file, start, started); });
    WaitForSingleObject(isStarted.get(), INFINITE);
    if (!process_) {
        watcher_.join();
        throw Failure(L"The program could not be started (system code " + std::to_wstring(startCode_) +
                      L"): " + file);
    }
}

WatchedProcess::~WatchedProcess() {
    End();
    watcher_.join();
}

bool WatchedProcess::HasEndedWithin(DWORD milliseconds) const {
    return WaitForSingleObject(process_.get(), milliseconds) == WAIT_OBJECT_0;
}

DWORD WatchedProcess::ExitCode() const {
    DWORD code = 0;
    GetExitCodeProcess(process_.get(), &code);
    return code;
}

void WatchedProcess::End() const {
    if (IsRunning()) {
        TerminateProcess(process_.get(), 1);
        static_cast<void>(HasEndedWithin(kLimitMilliseconds));
    }
}

std::vector<std::wstring> WatchedProcess::Crashes() const {
    const std::scoped_lock lock(mutex_);
    return crashes_;
}

void WatchedProcess::StartAndWatch(const std::wstring& file, const ProcessStart& start, HANDLE isStarted) {
    PROCESS_INFORMATION process{};
    startCode_ = start(file, process);
    const bool isRunning = startCode_ == ERROR_SUCCESS;
    if (isRunning) {
        CloseHandle(process.hThread);
        process_.reset(process.hProcess);
        id_ = process.dwProcessId;
    }
    // From here on the file's name and the function may be gone.
    SetEvent(isStarted);
    if (isRunning) {
        Watch();
    }
}

void WatchedProcess::Watch() {
    constexpr DWORD kPauseMilliseconds = 10;
    DEBUG_EVENT event{};
    // A start that failed leaves events of a process of its own, the end of it among them.
    const auto hasEnded = [&] {
        return event.dwDebugEventCode == EXIT_PROCESS_DEBUG_EVENT && event.dwProcessId == id_;
    };
    do {
        if (!WaitForDebugEvent(&event, INFINITE)) {
            // Wine fails here now and then without a reason. The watched program would end with this thread.
            std::fprintf(stderr, "Waiting for a debug event failed (system code %lu)\n", GetLastError());
            if (HasEndedWithin(kPauseMilliseconds)) {
                return;
            }
            event = {};
            continue;
        }
        ContinueDebugEvent(event.dwProcessId, event.dwThreadId, Note(event));
    } while (!hasEnded());
}

DWORD WatchedProcess::Note(const DEBUG_EVENT& event) {
    switch (event.dwDebugEventCode) {
        case CREATE_PROCESS_DEBUG_EVENT:
            CloseHandle(event.u.CreateProcessInfo.hFile);
            break;
        case LOAD_DLL_DEBUG_EVENT:
            CloseHandle(event.u.LoadDll.hFile);
            break;
        case EXCEPTION_DEBUG_EVENT: {
            const EXCEPTION_RECORD& record = event.u.Exception.ExceptionRecord;
            // The system stops every process that is watched, when it has been set up.
            if (record.ExceptionCode == EXCEPTION_BREAKPOINT && !isFirstBreakpointPassed_) {
                isFirstBreakpointPassed_ = true;
                return DBG_CONTINUE;
            }
            if (event.u.Exception.dwFirstChance != 0 && IsCrash(record.ExceptionCode)) {
                const std::scoped_lock lock(mutex_);
                crashes_.push_back(InWords(record));
            }
            return DBG_EXCEPTION_NOT_HANDLED;
        }
        default:
            break;
    }
    return DBG_CONTINUE;
}

}  // namespace corvane::test
