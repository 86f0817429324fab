#include "toolkit/system/application.h"

#include <windows.h>

namespace corvane::toolkit {

namespace {

constexpr int kExitCodeOfFailure = 1;

}  // namespace

int Application::Run() {
    const auto orLastWord = [this](auto&& step) {
        try {
            step();
        } catch (const std::exception& exception) {
            TellLastWord(exception.what());
            exitCode_ = kExitCodeOfFailure;
        } catch (...) {
            TellLastWord("An unknown error occurred.");
            exitCode_ = kExitCodeOfFailure;
        }
    };
    orLastWord([this] {
        if (!InitInstance()) {
            exitCode_ = kExitCodeOfFailure;
        }
    });
    orLastWord([this] { exitCode_ = ExitInstance(); });
    return exitCode_;
}

bool Application::InitInstance() {
    return true;
}

int Application::ExitInstance() {
    return exitCode_;
}

void Application::TellLastWord(const std::string& reason) const {
    const std::wstring text =
        L"The program cannot go on and will be closed.\r\n" + std::wstring(reason.begin(), reason.end());
    MessageBoxW(nullptr, text.c_str(), Title().c_str(), MB_ICONERROR | MB_OK);
}

bool NamedMutex::Exists(const std::wstring& name) {
    const HANDLE existing = OpenMutexW(MUTEX_ALL_ACCESS, FALSE, name.c_str());
    if (existing == nullptr) {
        // One that this program may not touch is there all the same, such as that of a copy with more rights.
        return GetLastError() == ERROR_ACCESS_DENIED;
    }
    CloseHandle(existing);
    return true;
}

NamedMutex::NamedMutex(const std::wstring& name) : handle_(CreateMutexW(nullptr, TRUE, name.c_str())) {
    if (handle_ == nullptr) {
        failureCode_ = GetLastError();
    }
}

NamedMutex::~NamedMutex() {
    if (handle_ != nullptr) {
        // Fails harmlessly where another copy, started at the same instant, owns it.
        ReleaseMutex(handle_);
        CloseHandle(handle_);
    }
}

}  // namespace corvane::toolkit
