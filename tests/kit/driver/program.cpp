#include "tests/kit/driver/program.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/waiting.h"

namespace corvane::test {
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

/// What a user who wants to be rid of a window does about it: a question about unsaved changes is answered
/// with Yes, any other box is refused, and everything else has a close box.
void Dismiss(const Window& window, bool isLeaving) {
    if (MessageBoxWindow::Is(window)) {
        const std::array<int, 4> answers =
            isLeaving ? std::array{IDYES, IDOK, IDCANCEL, IDNO} : std::array{IDCANCEL, IDNO, IDOK, IDYES};
        for (const int answer : answers) {
            if (window.HasControl(answer)) {
                PostMessageW(GetDlgItem(window.Handle(), answer), BM_CLICK, 0, 0);
                return;
            }
        }
    }
    PostMessageW(window.Handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
}

}  // namespace

Program::Program(const std::wstring& path) : process_(WindowsPath(path)) {}

Program::~Program() {
    Leave();
    if (IsRunning()) {
        ADD_FAILURE() << "the program could not be left; its windows are:" << Utf8(OpenWindows());
        process_.End();
    } else if (process_.ExitCode() != expectedExitCode_) {
        ADD_FAILURE() << Utf8(HowItEnded());
    }
    for (const std::wstring& crash : process_.Crashes()) {
        ADD_FAILURE() << "the program crashed: " << Utf8(crash);
    }
}

void Program::Leave() const {
    // How long a window may take to close before the one below it is tried: the wait window cannot be closed.
    constexpr ULONGLONG kPatienceMilliseconds = 1000;
    bool isLeaving = false;
    std::vector<Window> tried;
    ULONGLONG lastTry = 0;
    static_cast<void>(WaitUntil([&] {
        const ULONGLONG now = GetTickCount64();
        const std::vector<Window> windows = EnabledWindows();
        if (now - lastTry > kPatienceMilliseconds && tried.size() >= windows.size()) {
            tried.clear();
        }
        for (const Window& window : windows) {
            if (std::find(tried.begin(), tried.end(), window) == tried.end()) {
                isLeaving = isLeaving || (window.Owner() == Window() && !MessageBoxWindow::Is(window));
                Dismiss(window, isLeaving);
                tried.push_back(window);
                lastTry = now;
                break;
            }
            if (now - lastTry <= kPatienceMilliseconds) {
                break;
            }
        }
        return !IsRunning();
    }));
}

std::vector<Window> Program::EnabledWindows() const {
    std::vector<Window> windows = TopLevelWindows();
    std::erase_if(windows, [](const Window& window) { return !window.IsEnabled(); });
    return windows;
}

std::wstring Program::HowItEnded() const {
    return L"the program has ended with code " + std::to_wstring(process_.ExitCode()) + L".";
}

std::wstring Program::OpenWindows() const {
    std::wstring names;
    for (const Window& window : TopLevelWindows()) {
        names += L" " + window.Name();
    }
    return names;
}

DWORD Program::WaitForEnd() const {
    if (!process_.HasEndedWithin(kLimitMilliseconds)) {
        throw Failure(L"The program was expected to end, and still runs; its windows are:" + OpenWindows() +
                      L".");
    }
    return process_.ExitCode();
}

std::vector<Window> Program::TopLevelWindows() const {
    struct Search {
        DWORD processId;
        std::vector<Window> found;
    } search{process_.Id(), {}};
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

}  // namespace corvane::test
