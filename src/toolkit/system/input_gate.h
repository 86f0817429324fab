#pragma once

namespace corvane::toolkit {

/// Keeps the user out while a call has the thread to itself for long: windows that do not answer must not
/// collect clicks that act on what was never seen, and a call that handles messages must not start anything
/// in the middle of itself.
class InputGate {
  public:
    virtual ~InputGate() = default;

    /// From here on no window of the thread takes input or commands. Shutting nests.
    virtual void Shut() = 0;

    /// Called once for each Shut. With the last one the windows take input again; what the user did
    /// meanwhile is lost.
    virtual void Open() = 0;

  protected:
    InputGate() = default;
    InputGate(const InputGate&) = default;
    InputGate& operator=(const InputGate&) = default;
    InputGate(InputGate&&) = default;
    InputGate& operator=(InputGate&&) = default;
};

/// Shuts a gate for as long as this object lives.
class ShutInput {
  public:
    explicit ShutInput(InputGate& gate) : gate_(gate) { gate_.Shut(); }
    ShutInput(const ShutInput&) = delete;
    ShutInput& operator=(const ShutInput&) = delete;
    ShutInput(ShutInput&&) = delete;
    ShutInput& operator=(ShutInput&&) = delete;
    ~ShutInput() { gate_.Open(); }

  private:
    InputGate& gate_;
};

}  // namespace corvane::toolkit
