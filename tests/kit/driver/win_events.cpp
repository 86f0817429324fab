#include "tests/kit/driver/win_events.h"

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/waiting.h"

namespace corvane::test {
namespace {

// The platform gives a listener nothing to be known by.
thread_local WinEvents* listener = nullptr;

}  // namespace

WinEvents::WinEvents(const Window& window, DWORD event) : window_(window) {
    DWORD processId = 0;
    GetWindowThreadProcessId(window.Handle(), &processId);
    // Wine lets a thread of another process be listened to only with all the others of it.
    hook_.reset(SetWinEventHook(event, event, nullptr, &Hear, processId, 0, WINEVENT_OUTOFCONTEXT));
    if (!hook_) {
        throw Failure(L"What " + window.Name() + L" announces cannot be heard.");
    }
    listener = this;
}

WinEvents::~WinEvents() {
    listener = nullptr;
}

void WinEvents::WaitForCount(std::size_t count) const {
    if (!WaitUntil([&] { return children_.size() >= count; })) {
        throw Failure(std::to_wstring(count) + L" announcements were expected of " + window_.Name() +
                      L", and there came " + std::to_wstring(children_.size()) + L".");
    }
}

void CALLBACK WinEvents::Hear(HWINEVENTHOOK /*hook*/, DWORD /*event*/, HWND window, LONG object, LONG child,
                              DWORD /*threadId*/, DWORD /*milliseconds*/) {
    if (listener != nullptr && window == listener->window_.Handle() && object == OBJID_CLIENT) {
        listener->children_.push_back(child);
    }
}

}  // namespace corvane::test
