#include "toolkit/dialog/window_geometry.h"

#include <gtest/gtest.h>

#include <utility>

#include "tests/toolkit/test_dialog.h"
#include "tests/toolkit/test_window.h"

namespace corvane::test {
namespace {

RECT RestoredRectangle(HWND window) {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    return placement.rcNormalPosition;
}

void ExpectRectangle(const RECT& found, const RECT& expected) {
    EXPECT_TRUE(EqualRect(&found, &expected))
        << found.left << ", " << found.top << ", " << found.right << ", " << found.bottom;
}

TEST(PlaceHiddenWindow, GivesTheRestoredRectangleAndShowsNothing) {
    TestDialog dialog;
    ASSERT_TRUE(dialog.CreateModeless());
    const RECT wanted = {120, 130, 620, 530};
    toolkit::PlaceHiddenWindow(dialog.Window(), wanted, [&dialog] { return dialog.DotsPerInch(); });
    ExpectRectangle(RestoredRectangle(dialog.Window()), wanted);
    EXPECT_FALSE(IsWindowVisible(dialog.Window()));
}

// What Windows does when the rectangle lies on a screen of another scale.
TEST(PlaceHiddenWindow, GivesItAgainWhenTheWindowWasScaledOnItsWay) {
    TestDialog dialog;
    ASSERT_TRUE(dialog.CreateModeless());
    const UINT scaled = dialog.DotsPerInch() * 3 / 2;
    bool hasCrossed = false;
    const MessageWatcher crossing(dialog.Window(), [&](UINT message) {
        if (message == WM_WINDOWPOSCHANGED && !std::exchange(hasCrossed, true)) {
            const RECT suggested = {120, 130, 870, 730};
            SendMessageW(dialog.Window(), WM_DPICHANGED, MAKEWPARAM(scaled, scaled),
                         reinterpret_cast<LPARAM>(&suggested));
        }
    });
    const RECT wanted = {120, 130, 620, 530};
    toolkit::PlaceHiddenWindow(dialog.Window(), wanted, [&dialog] { return dialog.DotsPerInch(); });
    ASSERT_EQ(dialog.DotsPerInch(), scaled);
    ExpectRectangle(RestoredRectangle(dialog.Window()), wanted);
}

TEST(ShowNeverMaximised, ShowsTheWindowInItsSize) {
    TestDialog dialog;
    ASSERT_TRUE(dialog.CreateModeless());
    const RECT before = RestoredRectangle(dialog.Window());
    toolkit::ShowNeverMaximised(dialog.Window());
    EXPECT_TRUE(IsWindowVisible(dialog.Window()));
    ExpectRectangle(RestoredRectangle(dialog.Window()), before);
}

// What Windows does with the first window of a program whose shortcut says "Run maximised".
TEST(ShowNeverMaximised, BringsAWindowBackThatComesUpMaximised) {
    TestDialog dialog;
    ASSERT_TRUE(dialog.CreateModeless());
    const RECT before = RestoredRectangle(dialog.Window());
    bool isFirst = true;
    const MessageWatcher shortcut(dialog.Window(), [&](UINT message) {
        if (message == WM_SHOWWINDOW && std::exchange(isFirst, false)) {
            ShowWindow(dialog.Window(), SW_SHOWMAXIMIZED);
        }
    });
    toolkit::ShowNeverMaximised(dialog.Window());
    EXPECT_FALSE(isFirst);
    EXPECT_FALSE(IsZoomed(dialog.Window()));
    EXPECT_TRUE(IsWindowVisible(dialog.Window()));
    RECT place = {};
    GetWindowRect(dialog.Window(), &place);
    ExpectRectangle(place, before);
}

}  // namespace
}  // namespace corvane::test
