#include "tests/driver/program.h"

#include <commctrl.h>

#include "tests/driver/failure.h"
#include "tests/driver/waiting.h"

namespace driver {
namespace {

/// A cross-built test sees the building machine's files through drive Z.
std::wstring WindowsPath(std::wstring path) {
    if (!path.empty() && path.front() == L'/') {
        path.insert(0, L"Z:");
    }
    for (wchar_t& character : path) {
        if (character == L'/') {
            character = L'\\';
        }
    }
    return path;
}

/// Under Wine one start in some thousands ends as an internal error, before anything of the program has run;
/// the next one goes well.
bool StartProcess(const std::wstring& file, PROCESS_INFORMATION& process) {
    for (int attempt = 0; attempt < 3; ++attempt) {
        std::wstring commandLine = L"\"" + file + L"\"";
        STARTUPINFOW start{};
        start.cb = sizeof start;
        if (CreateProcessW(file.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                           &start, &process)) {
            return true;
        }
        if (GetLastError() != ERROR_INTERNAL_ERROR) {
            return false;
        }
    }
    return false;
}

}  // namespace

Program::Program(const std::wstring& path) {
    const std::wstring file = WindowsPath(path);
    PROCESS_INFORMATION process{};
    if (!StartProcess(file, process)) {
        throw Failure(L"The program could not be started (system code " + std::to_wstring(GetLastError()) +
                      L"): " + file);
    }
    CloseHandle(process.hThread);
    process_.reset(process.hProcess);
    processId_ = process.dwProcessId;
}

Program::~Program() {
    if (IsRunning()) {
        TerminateProcess(process_.get(), 1);
        WaitForSingleObject(process_.get(), kLimitMilliseconds);
    }
}

bool Program::IsRunning() const {
    return WaitForSingleObject(process_.get(), 0) == WAIT_TIMEOUT;
}

std::wstring Program::HowItEnded() const {
    DWORD code = 0;
    GetExitCodeProcess(process_.get(), &code);
    return L"the program has ended with code " + std::to_wstring(code) + L".";
}

DWORD Program::WaitForEnd() const {
    if (WaitForSingleObject(process_.get(), kLimitMilliseconds) != WAIT_OBJECT_0) {
        std::wstring open;
        for (const Window& window : TopLevelWindows()) {
            open += L" " + window.Name();
        }
        throw Failure(L"The program was expected to end, and still runs; its windows are:" + open + L".");
    }
    DWORD code = 0;
    GetExitCodeProcess(process_.get(), &code);
    return code;
}

std::vector<Window> Program::TopLevelWindows() const {
    struct Search {
        DWORD processId;
        std::vector<Window> found;
    } search{processId_, {}};
    EnumWindows(
        [](HWND candidate, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            DWORD processId = 0;
            GetWindowThreadProcessId(candidate, &processId);
            const Window window(candidate);
            if (processId == wanted.processId && window.IsVisible() && !window.IsOfClass(TOOLTIPS_CLASSW)) {
                wanted.found.push_back(window);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

Window Program::FindWindowOf(const Window& owner) const {
    for (const Window& window : TopLevelWindows()) {
        if (window.Owner() == owner && window.IsEnabled()) {
            return window;
        }
    }
    return {};
}

Window Program::WaitForWindow(const Window& owner) const {
    Window found;
    static_cast<void>(WaitUntil([&] {
        found = FindWindowOf(owner);
        return found.Handle() != nullptr || !IsRunning();
    }));
    if (found.Handle() == nullptr) {
        throw Failure(L"A window of the program was expected (" +
                      (owner.Handle() == nullptr ? L"without owner" : L"owned by " + owner.Name()) +
                      (IsRunning() ? L"), and none came." : L"), but " + HowItEnded()));
    }
    return found;
}

Window Program::WaitForAnyWindow() const {
    Window found;
    static_cast<void>(WaitUntil([&] {
        for (const Window& window : TopLevelWindows()) {
            if (window.IsEnabled()) {
                found = window;
            }
        }
        return found.Handle() != nullptr || !IsRunning();
    }));
    if (found.Handle() == nullptr) {
        throw Failure(L"A window of the program was expected, " +
                      (IsRunning() ? L"and none came." : L"but " + HowItEnded()));
    }
    return found;
}

Window Program::WaitForDialog(const Window& owner) const {
    const Window window = WaitForWindow(owner);
    if (MessageBoxWindow::Is(window)) {
        throw Failure(L"A dialog was expected, and a message box came: \"" +
                      MessageBoxWindow(window).View().text + L"\".");
    }
    return window;
}

MessageBoxWindow Program::WaitForMessageBox(const Window& owner) const {
    const Window window = WaitForWindow(owner);
    if (!MessageBoxWindow::Is(window)) {
        throw Failure(L"A message box was expected, and there came " + window.Name() + L".");
    }
    return MessageBoxWindow(window);
}

}  // namespace driver
