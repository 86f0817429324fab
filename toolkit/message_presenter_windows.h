#pragma once

#include "toolkit/message_presenter.h"

namespace toolkit {

/// The message boxes of Windows (MessageBoxW, IsWindow). A box has the user to itself: the other windows of
/// the thread are disabled meanwhile, without an owner all of them. The answer is 0 where the system cannot
/// make a box.
class WindowsMessagePresenter : public MessagePresenter {
  public:
    int Show(WindowHandle owner, const std::wstring& text, const std::wstring& title,
             std::uint32_t style) override;
    [[nodiscard]] bool IsLive(WindowHandle window) const override;
};

}  // namespace toolkit
