#include "toolkit/controls/tool_tip.h"

#include <commctrl.h>

namespace corvane::toolkit {

void ToolTip::Create(HWND dialog) {
    dialog_ = dialog;
    window_ = CreateWindowExW(
        WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, dialog, nullptr, GetModuleHandleW(nullptr), nullptr);
}

void ToolTip::Add(HWND control, const wchar_t* text) const {
    Send(TTM_ADDTOOLW, control, text);
}

void ToolTip::SetText(HWND control, const wchar_t* text) const {
    Send(TTM_UPDATETIPTEXTW, control, text);
}

void ToolTip::Send(UINT message, HWND control, const wchar_t* text) const {
    TTTOOLINFOW tool = {};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND;
    tool.hwnd = dialog_;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    // The control copies the text; its structure only has no const.
    tool.lpszText = const_cast<wchar_t*>(text);
    SendMessageW(window_, message, 0, reinterpret_cast<LPARAM>(&tool));
}

void ToolTip::Activate(bool isActive) const {
    SendMessageW(window_, TTM_ACTIVATE, isActive ? TRUE : FALSE, 0);
}

void ToolTip::Relay(const MSG& message) const {
    if (window_ != nullptr) {
        MSG copy = message;
        SendMessageW(window_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copy));
    }
}

}  // namespace corvane::toolkit
