#include "tests/kit/samples/worked_example.h"

#include <windows.h>

#include <array>
#include <string>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/program.h"
#include "tests/kit/driver/waiting.h"

namespace corvane::test {

namespace {

DWORD RunToItsEnd(std::wstring commandLine) {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                        nullptr, &start, &process)) {
        throw Failure(L"It could not be started (system code " + std::to_wstring(GetLastError()) + L"): " +
                      commandLine);
    }
    CloseHandle(process.hThread);
    const UniqueHandle running(process.hProcess);
    DWORD code = 1;
    if (WaitForSingleObject(running.get(), kLimitMilliseconds) == WAIT_OBJECT_0) {
        GetExitCodeProcess(running.get(), &code);
    }
    return code;
}

}  // namespace

void ImportWorkedExample() {
    std::array<wchar_t, 1024> file{};
    if (GetEnvironmentVariableW(L"CORVANE_WORKED_EXAMPLE", file.data(), static_cast<DWORD>(file.size())) ==
        0) {
        throw Failure(L"CORVANE_WORKED_EXAMPLE names no file.");
    }
    std::wstring path = file.data();
    if (path.front() == L'/') {
        // A cross-built test sees the building machine's files through drive Z.
        path.insert(0, L"Z:");
    }
    if (RunToItsEnd(L"reg.exe import \"" + path + L"\"") != 0) {
        throw Failure(L"The worked example could not be imported from " + path + L".");
    }
}

}  // namespace corvane::test
