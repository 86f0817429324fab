#pragma once

#include "toolkit/system/input_gate.h"

namespace corvane::test {

/// A gate that shuts nobody out and tells whether it is shut.
class RecordingInputGate : public toolkit::InputGate {
  public:
    void Shut() override { ++depth_; }
    void Open() override { --depth_; }

    [[nodiscard]] bool IsShut() const { return depth_ > 0; }
    /// Shut and opened equally often so far.
    [[nodiscard]] bool IsBalanced() const { return depth_ == 0; }

  private:
    int depth_ = 0;
};

}  // namespace corvane::test
