#include "toolkit/input_gate_windows.h"

#include "toolkit/user_command.h"

namespace toolkit {

void WindowsInputGate::Shut() {
    if (depth_++ == 0) {
        state_.emplace();
    }
}

void WindowsInputGate::Open() {
    if (--depth_ == 0) {
        DiscardUserInput();
        state_.reset();
    }
}

}  // namespace toolkit
