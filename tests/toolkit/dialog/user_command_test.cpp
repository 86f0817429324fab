#include "toolkit/dialog/user_command.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <vector>

namespace corvane::test {
namespace {

bool IsCommand(WORD id, WORD code, LPARAM control) {
    return toolkit::IsUserCommand(WM_COMMAND, MAKEWPARAM(id, code), control);
}

bool IsNotificationACommand(UINT code) {
    const NMHDR header = {nullptr, 0, code};
    return toolkit::IsUserCommand(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header));
}

TEST(UserCommand, ButtonsMenusAndAcceleratorsAre) {
    constexpr LPARAM kControl = 0x1234;
    EXPECT_TRUE(IsCommand(IDOK, BN_CLICKED, kControl));
    EXPECT_TRUE(IsCommand(IDOK, BN_DBLCLK, kControl));
    EXPECT_TRUE(IsCommand(IDCANCEL, 0, 0)) << "Escape, the close box and menus";
    EXPECT_TRUE(IsCommand(32787, 1, 0)) << "an accelerator key";
    EXPECT_TRUE(IsCommand(1000, EN_CHANGE, 0)) << "a menu item is no edit, whatever its code";
}

TEST(UserCommand, ChoicesInListsAre) {
    constexpr LPARAM kControl = 0x1234;
    for (const WORD code :
         std::vector<WORD>{CBN_SELCHANGE, CBN_DBLCLK, CBN_SELENDOK, LBN_SELCHANGE, LBN_DBLCLK}) {
        EXPECT_TRUE(IsCommand(1001, code, kControl)) << "code " << code;
    }
}

TEST(UserCommand, WhatAnEditTellsIsNone) {
    constexpr LPARAM kControl = 0x1234;
    for (const WORD code : std::vector<WORD>{EN_CHANGE, EN_UPDATE, EN_SETFOCUS, EN_KILLFOCUS, EN_MAXTEXT}) {
        EXPECT_FALSE(IsCommand(1001, code, kControl)) << "code " << code;
    }
}

TEST(UserCommand, ClicksAndKeysInCommonControlsAre) {
    for (const UINT code : std::vector<UINT>{NM_CLICK, NM_DBLCLK, NM_RCLICK, NM_RDBLCLK, NM_RETURN,
                                             LVN_KEYDOWN, LVN_COLUMNCLICK, LVN_ITEMACTIVATE, LVN_BEGINDRAG,
                                             HDN_ITEMCLICKW, HDN_ITEMCLICKA, HDN_ITEMDBLCLICKW}) {
        EXPECT_TRUE(IsNotificationACommand(code)) << "code " << static_cast<int>(code);
    }
}

TEST(UserCommand, WhatCommonControlsAskForOrTellIsNone) {
    for (const UINT code : std::vector<UINT>{
             NM_CUSTOMDRAW, NM_KILLFOCUS, NM_SETFOCUS, NM_HOVER, NM_RELEASEDCAPTURE, LVN_GETDISPINFOW,
             LVN_GETDISPINFOA, LVN_ODFINDITEMW, LVN_ODCACHEHINT, LVN_ITEMCHANGED, LVN_ITEMCHANGING,
             LVN_GETINFOTIPW, TTN_GETDISPINFOW, TTN_SHOW, UDN_DELTAPOS}) {
        EXPECT_FALSE(IsNotificationACommand(code)) << "code " << static_cast<int>(code);
    }
}

TEST(UserCommand, TheSystemMenuAndTheCloseBoxAre) {
    EXPECT_TRUE(toolkit::IsUserCommand(WM_SYSCOMMAND, 16, 0));
    EXPECT_TRUE(toolkit::IsUserCommand(WM_CLOSE, 0, 0));
    for (const UINT message :
         std::vector<UINT>{WM_PAINT, WM_SIZE, WM_QUERYENDSESSION, WM_ENDSESSION, WM_TIMER, WM_ENABLE}) {
        EXPECT_FALSE(toolkit::IsUserCommand(message, 0, 0)) << "message " << message;
    }
}

TEST(UserInput, IsMouseAndKeyboardAndAPostedPress) {
    for (const UINT message :
         std::vector<UINT>{WM_KEYDOWN, WM_KEYUP, WM_CHAR, WM_SYSKEYDOWN, WM_LBUTTONDOWN, WM_LBUTTONDBLCLK,
                           WM_RBUTTONUP, WM_MOUSEMOVE, WM_MOUSEWHEEL, WM_NCLBUTTONDOWN, BM_CLICK}) {
        EXPECT_TRUE(toolkit::IsUserInput(message)) << "message " << message;
    }
    for (const UINT message : std::vector<UINT>{WM_COMMAND, WM_NOTIFY, WM_TIMER, WM_PAINT, WM_QUIT, WM_NULL,
                                                WM_APP, LVM_SETHOVERTIME, BM_SETCHECK, WM_CLOSE}) {
        EXPECT_FALSE(toolkit::IsUserInput(message)) << "message " << message;
    }
}

}  // namespace
}  // namespace corvane::test
