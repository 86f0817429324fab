#include "tests/kit/scriptable_library/held_call.h"

#include <array>

#include "res/ids.h"
#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/waiting.h"

namespace corvane::test {

HeldCall::HeldCall(LibraryScriptWriter& script, const std::string& function, unsigned number,
                   Meanwhile meanwhile) {
    const std::string name = "corvane_held_" + std::to_string(GetCurrentProcessId()) + "_" + function + "_" +
                             std::to_string(number);
    event_.reset(CreateEventA(nullptr, TRUE, FALSE, name.c_str()));
    ResetEvent(event_.get());
    if (meanwhile == Meanwhile::kHandlesMessages) {
        script.Pump(function, number, name);
    } else {
        script.Hold(function, number, name);
    }
}

std::wstring StoredText(const Window& window) {
    std::array<wchar_t, 1024> text{};
    InternalGetWindowText(window.Handle(), text.data(), static_cast<int>(text.size()));
    return text.data();
}

Window WaitForWaitWindow(const Program& program) {
    Window found;
    static_cast<void>(WaitUntil([&] {
        for (const Window& window : program.TopLevelWindows()) {
            if (window.HasControl(IDC_WAIT_TEXT)) {
                found = window;
            }
        }
        return found.Handle() != nullptr || !program.IsRunning();
    }));
    if (found.Handle() == nullptr) {
        throw Failure(L"The wait window was expected, and did not come.");
    }
    return found;
}

}  // namespace corvane::test
