#include "toolkit/system/message_presenter.h"

#include <windows.h>

#include "toolkit/dialog/modal_state.h"

namespace corvane::toolkit {

int WindowsMessagePresenter::Show(WindowHandle owner, const std::wstring& text, const std::wstring& title,
                                  std::uint32_t style) {
    const ModalState others(owner);
    return MessageBoxW(owner, text.c_str(), title.c_str(), style);
}

bool WindowsMessagePresenter::IsLive(WindowHandle window) const {
    return IsWindow(window) != FALSE;
}

}  // namespace corvane::toolkit
