#include "bench/program_measure.h"

#include <windows.h>

#include <psapi.h>

#include <stdexcept>
#include <string>

#include "bench/ratio.h"

namespace {

constexpr double kPatienceMilliseconds = 60000;

class Process {
  public:
    explicit Process(std::wstring commandLine) {
        STARTUPINFOW startup = {};
        startup.cb = sizeof startup;
        if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                           &startup, &information_) == FALSE) {
            throw std::runtime_error("a program to be measured does not start (system code " +
                                     std::to_string(GetLastError()) + ")");
        }
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    Process(Process&&) = delete;
    Process& operator=(Process&&) = delete;
    ~Process() {
        TerminateProcess(information_.hProcess, 0);
        WaitForSingleObject(information_.hProcess, INFINITE);
        CloseHandle(information_.hThread);
        CloseHandle(information_.hProcess);
    }

    [[nodiscard]] HANDLE Handle() const { return information_.hProcess; }
    [[nodiscard]] DWORD Id() const { return information_.dwProcessId; }

  private:
    PROCESS_INFORMATION information_ = {};
};

struct WindowSearch {
    DWORD processId;
    HWND found;
};

BOOL CALLBACK IsWindowOfProcess(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<WindowSearch*>(parameter);
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    if (processId == search.processId && IsWindowVisible(window) != FALSE) {
        search.found = window;
        return FALSE;
    }
    return TRUE;
}

HWND VisibleWindow(DWORD processId) {
    WindowSearch search = {.processId = processId, .found = nullptr};
    EnumWindows(&IsWindowOfProcess, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

BOOL CALLBACK AddResourceSize(HMODULE module, LPCWSTR type, LPWSTR name, LONG_PTR parameter) {
    const HRSRC resource = FindResourceW(module, name, type);
    *reinterpret_cast<std::size_t*>(parameter) += SizeofResource(module, resource);
    return TRUE;
}

}  // namespace

ProgramRun MeasureProgram(const std::wstring& path) {
    ProgramRun run;
    HWND window = nullptr;
    const auto begin = GetTickCount64();
    std::wstring commandLine = L"\"" + path + L"\"";
    LARGE_INTEGER frequency = {};
    LARGE_INTEGER start = {};
    LARGE_INTEGER end = {};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    const Process process(commandLine);
    while (window == nullptr) {
        window = VisibleWindow(process.Id());
        if (static_cast<double>(GetTickCount64() - begin) > kPatienceMilliseconds) {
            throw std::runtime_error("a program to be measured shows no window");
        }
    }
    QueryPerformanceCounter(&end);
    run.millisecondsToWindow =
        1000.0 * static_cast<double>(end.QuadPart - start.QuadPart) / static_cast<double>(frequency.QuadPart);
    // Answered when everything that the window had to do before, drawing included, is done.
    WaitForInputIdle(process.Handle(), static_cast<DWORD>(kPatienceMilliseconds));
    SendMessageW(window, WM_NULL, 0, 0);
    PROCESS_MEMORY_COUNTERS counters = {};
    GetProcessMemoryInfo(process.Handle(), &counters, sizeof counters);
    run.peakWorkingSet = counters.PeakWorkingSetSize;
    return run;
}

std::size_t SizeWithoutPictures(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA file = {};
    if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &file) == FALSE) {
        throw std::runtime_error("a program to be measured is not there");
    }
    const HMODULE module =
        LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
    std::size_t pictures = 0;
    for (const LPWSTR type : {RT_ICON, RT_GROUP_ICON, RT_BITMAP}) {
        EnumResourceNamesW(module, type, &AddResourceSize, reinterpret_cast<LONG_PTR>(&pictures));
    }
    FreeLibrary(module);
    return file.nFileSizeLow - pictures;
}

double MeasureCommand(const std::wstring& commandLine) {
    return MillisecondsOf([&commandLine] {
        const Process process(commandLine);
        WaitForSingleObject(process.Handle(), INFINITE);
    });
}
