#include "toolkit/dialog/user_command.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace corvane::toolkit {

namespace {

constexpr UINT kUserNotifications[] = {
    NM_CLICK,
    NM_DBLCLK,
    NM_RETURN,
    NM_RCLICK,
    NM_RDBLCLK,
    NM_KEYDOWN,
    NM_CHAR,
    NM_LDOWN,
    NM_RDOWN,
    LVN_KEYDOWN,
    LVN_COLUMNCLICK,
    LVN_ITEMACTIVATE,
    LVN_BEGINDRAG,
    LVN_BEGINRDRAG,
    LVN_BEGINLABELEDITA,
    LVN_BEGINLABELEDITW,
    LVN_ENDLABELEDITA,
    LVN_ENDLABELEDITW,
    LVN_LINKCLICK,
    HDN_ITEMCLICKA,
    HDN_ITEMCLICKW,
    HDN_ITEMDBLCLICKA,
    HDN_ITEMDBLCLICKW,
    HDN_DIVIDERDBLCLICKA,
    HDN_DIVIDERDBLCLICKW,
    BCN_DROPDOWN,
};

struct MessageRange {
    UINT first;
    UINT last;
};

constexpr std::array kInputRanges = {
    MessageRange{WM_KEYFIRST, WM_KEYLAST},
    MessageRange{WM_MOUSEFIRST, WM_MOUSELAST},
    MessageRange{WM_NCMOUSEMOVE, WM_NCXBUTTONDBLCLK},
};

bool IsCommandOfUser(UINT notificationCode, bool isFromControl) {
    // Of all controls only edits have codes from EN_SETFOCUS on, and none of them is more than news.
    return !isFromControl || notificationCode < EN_SETFOCUS;
}

bool IsUserNotification(UINT code) {
    return std::find(std::begin(kUserNotifications), std::end(kUserNotifications), code) !=
           std::end(kUserNotifications);
}

}  // namespace

bool IsUserCommand(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            return IsCommandOfUser(HIWORD(wParam), lParam != 0);
        case WM_NOTIFY:
            return IsUserNotification(reinterpret_cast<const NMHDR*>(lParam)->code);
        case WM_SYSCOMMAND:
        case WM_CLOSE:
            return true;
        default:
            return false;
    }
}

bool IsUserInput(UINT message) {
    return message == BM_CLICK ||
           std::any_of(kInputRanges.begin(), kInputRanges.end(), [message](const MessageRange& range) {
               return message >= range.first && message <= range.last;
           });
}

void DiscardUserInput() {
    for (const MessageRange& range : kInputRanges) {
        MSG message = {};
        while (PeekMessageW(&message, nullptr, range.first, range.last, PM_REMOVE) != FALSE) {
            if (message.message == WM_QUIT) {
                // It comes whatever is asked for, and is for the message loop.
                PostQuitMessage(static_cast<int>(message.wParam));
                return;
            }
        }
    }
}

}  // namespace corvane::toolkit
