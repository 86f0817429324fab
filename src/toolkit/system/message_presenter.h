#pragma once

#include <cstdint>
#include <string>

#include "toolkit/system/window_handle.h"

namespace corvane::toolkit {

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

/// The message boxes of Windows (MessageBoxW, IsWindow). A box has the user to itself: the other windows of
/// the thread are disabled meanwhile, without an owner all of them. The answer is 0 where the system cannot
/// make a box.
class WindowsMessagePresenter : public MessagePresenter {
  public:
    int Show(WindowHandle owner, const std::wstring& text, const std::wstring& title,
             std::uint32_t style) override;
    [[nodiscard]] bool IsLive(WindowHandle window) const override;
};

}  // namespace corvane::toolkit
