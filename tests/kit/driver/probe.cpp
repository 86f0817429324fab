#include "tests/kit/driver/probe.h"

#include <algorithm>
#include <bit>
#include <memory>
#include <string>
#include <type_traits>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/remote_block.h"

namespace corvane::test {
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

/// Hooks the probe into the thread of a window.
HHOOK Hook(const Window& window) {
    // Stays loaded for the life of the test program; the system unloads it from the driven one.
    static const HMODULE kLibrary = LoadLibraryW(LibraryPath().c_str());
    const FARPROC function = kLibrary == nullptr ? nullptr : GetProcAddress(kLibrary, kProbeHook);
    if (function == nullptr) {
        throw Failure(L"The probe library is missing: " + LibraryPath());
    }
    const HHOOK hook =
        SetWindowsHookExW(WH_CALLWNDPROC, std::bit_cast<HOOKPROC>(function), kLibrary, window.ThreadId());
    if (hook == nullptr) {
        throw Failure(L"The probe could not be hooked into the program of " + window.Name() + L".");
    }
    return hook;
}

/// Asks the probe, which is hooked in.
ProbeRequest Ask(const Window& window, const ProbeRequest& question) {
    RemoteBlock block(window.Handle(), sizeof question);
    block.Put(question);
    window.Send(RegisterWindowMessageW(kProbeMessageName), 0, block.Parameter());
    const auto answer = block.Get<ProbeRequest>();
    if (answer.isAnswered == 0) {
        throw Failure(L"The probe gave no answer about " + window.Name() + L".");
    }
    return answer;
}

}  // namespace

ProbeRequest Probe(const Window& window, const ProbeRequest& question) {
    const std::unique_ptr<HHOOK, HookRemover> hook(Hook(window));
    return Ask(window, question);
}

int PointerOf(const Window& window) {
    ProbeRequest question{};
    question.question = ProbeQuestion::kPointer;
    return Probe(window, question).systemPointer;
}

MessageWatch::MessageWatch(const Window& window, std::initializer_list<UINT> messages)
    : window_(window), hook_(Hook(window)) {
    ProbeRequest question{};
    question.question = ProbeQuestion::kWatch;
    std::copy(messages.begin(), messages.end(), question.watched.begin());
    // A watch that cannot begin must not stay hooked in.
    std::unique_ptr<HHOOK, HookRemover> hook(hook_);
    static_cast<void>(Ask(window, question));
    static_cast<void>(hook.release());
}

MessageWatch::~MessageWatch() {
    UnhookWindowsHookEx(hook_);
}

std::vector<ProbeMessage> MessageWatch::Sent() const {
    ProbeRequest question{};
    question.question = ProbeQuestion::kWatched;
    const ProbeRequest answer = Ask(window_, question);
    return {answer.messages.begin(),
            answer.messages.begin() + static_cast<std::ptrdiff_t>(answer.messageCount)};
}

}  // namespace corvane::test
