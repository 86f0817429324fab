#include "tests/driver/probe.h"

#include <memory>
#include <string>
#include <type_traits>

#include "tests/driver/failure.h"
#include "tests/driver/remote_block.h"

namespace driver {
namespace {

std::wstring LibraryPath() {
    std::wstring path(MAX_PATH * 4, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L"\\/") + 1) + kProbeLibrary;
}

struct HookRemover {
    using pointer = HHOOK;
    void operator()(HHOOK hook) const { UnhookWindowsHookEx(hook); }
};

}  // namespace

ProbeRequest Probe(const Window& window, const ProbeRequest& question) {
    // Stays loaded for the life of the test program; the system unloads it from the driven one.
    static const HMODULE kLibrary = LoadLibraryW(LibraryPath().c_str());
    const FARPROC function = kLibrary == nullptr ? nullptr : GetProcAddress(kLibrary, kProbeHook);
    if (function == nullptr) {
        throw Failure(L"The probe library is missing: " + LibraryPath());
    }
    const std::unique_ptr<HHOOK, HookRemover> hook(
        SetWindowsHookExW(WH_CALLWNDPROC, reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(function)),
                          kLibrary, window.ThreadId()));
    if (!hook) {
        throw Failure(L"The probe could not be hooked into the program of " + window.Name() + L".");
    }
    RemoteBlock block(window.Handle(), sizeof question);
    block.Put(question);
    window.Send(RegisterWindowMessageW(kProbeMessageName), 0, block.Parameter());
    const auto answer = block.Get<ProbeRequest>();
    if (answer.isAnswered == 0) {
        throw Failure(L"The probe gave no answer about " + window.Name() + L".");
    }
    return answer;
}

}  // namespace driver
