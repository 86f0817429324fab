#pragma once

#include <optional>

#include "toolkit/input_gate.h"
#include "toolkit/modal_state.h"

namespace toolkit {

/// Shuts the windows of the calling thread. Shut and Open are called on the thread that owns them.
class WindowsInputGate : public InputGate {
  public:
    void Shut() override;
    void Open() override;

  private:
    int depth_ = 0;
    std::optional<ModalState> state_;
};

}  // namespace toolkit
