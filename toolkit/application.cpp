#include "toolkit/application.h"

#include <windows.h>

namespace toolkit {

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

}  // namespace toolkit
