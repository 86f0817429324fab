#pragma once

#include <windows.h>

#include <optional>
#include <vector>

#include "toolkit/system/input_gate.h"

namespace corvane::toolkit {

/// Keeps every window of the calling thread from taking input for as long as it lives, so that whatever runs
/// meanwhile has the user to itself: a modal window, owner or not, or a call that looks at messages. Windows
/// made later take input as usual. Nests, inner ones going first.
///
/// Its end enables exactly the windows that it disabled and that still live. Where the program was left
/// without an active window or without a focus, the former ones are that again.
class ModalState {
  public:
    /// Disables the enabled windows of the thread (EnumThreadWindows, EnableWindow). The one that `exempt` is
    /// in is left alone; a modal window of the system disables its owner itself, and enables it in time only
    /// then. Tooltips, drop-down lists and hidden helpers are left alone, too.
    explicit ModalState(HWND exempt = nullptr);
    ModalState(const ModalState&) = delete;
    ModalState& operator=(const ModalState&) = delete;
    ModalState(ModalState&&) = delete;
    ModalState& operator=(ModalState&&) = delete;
    ~ModalState();

    /// The window that the user was in at the beginning: the thread's active one, else its topmost visible
    /// one; null where there is none. It may have died since.
    [[nodiscard]] HWND WindowInUse() const { return inUse_; }

  private:
    void GiveBackActivation() const;

    HWND active_;
    HWND focus_;
    bool wasForeground_;
    HWND inUse_;
    std::vector<HWND> disabled_;
};

/// Shuts the windows of the calling thread. Shut and Open are called on the thread that owns them.
class WindowsInputGate : public InputGate {
  public:
    void Shut() override;
    void Open() override;

  private:
    int depth_ = 0;
    std::optional<ModalState> state_;
};

}  // namespace corvane::toolkit
