#pragma once

#include <cstdint>
#include <string>

#include "toolkit/window_handle.h"

namespace toolkit {

/// Shows message boxes, and knows whether a window still lives.
class MessagePresenter {
  public:
    virtual ~MessagePresenter() = default;

    /// Shows the system's message box and returns its answer (1 OK, 2 Cancel, 6 Yes, 7 No).
    /// `style` is the style word of MessageBoxW; `owner` may be null.
    virtual int Show(WindowHandle owner, const std::wstring& text, const std::wstring& title,
                     std::uint32_t style) = 0;

    /// Tells whether `window` is a live window at this moment (IsWindow). Null is none.
    [[nodiscard]] virtual bool IsLive(WindowHandle window) const = 0;

  protected:
    MessagePresenter() = default;
    MessagePresenter(const MessagePresenter&) = default;
    MessagePresenter& operator=(const MessagePresenter&) = default;
    MessagePresenter(MessagePresenter&&) = default;
    MessagePresenter& operator=(MessagePresenter&&) = default;
};

}  // namespace toolkit
