#pragma once

#include <windows.h>

namespace corvane::toolkit {

/// Shows the hourglass for as long as this object lives, then what was shown before: for work during which
/// this thread answers nobody. A box that is shown meanwhile has its own pointer, because the system asks the
/// window under the mouse.
class WaitCursor {
  public:
    WaitCursor() : before_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    WaitCursor(WaitCursor&&) = delete;
    WaitCursor& operator=(WaitCursor&&) = delete;
    ~WaitCursor() { SetCursor(before_); }

  private:
    HCURSOR before_;
};

}  // namespace corvane::toolkit
