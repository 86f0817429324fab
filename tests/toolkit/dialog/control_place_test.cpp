#include "toolkit/dialog/window_geometry.h"

#include <gtest/gtest.h>

#include "tests/toolkit/test_dialog.h"
#include "tests/toolkit/test_window.h"

namespace corvane::test {
namespace {

void ExpectRectangle(const RECT& got, const RECT& expected) {
    EXPECT_EQ(got.left, expected.left);
    EXPECT_EQ(got.top, expected.top);
    EXPECT_EQ(got.right, expected.right);
    EXPECT_EQ(got.bottom, expected.bottom);
}

RECT FrameOf(HWND window) {
    RECT frame = {};
    GetWindowRect(window, &frame);
    return frame;
}

TEST(PlaceOf, IsTheRectangleInTheClientArea) {
    TestDialog dialog;
    ASSERT_TRUE(dialog.CreateModeless());
    const HWND edit = dialog.Control(IDC_TEXT_EDIT);
    MoveWindow(edit, 11, 22, 130, 24, FALSE);
    ExpectRectangle(toolkit::PlaceOf(edit), {11, 22, 141, 46});
}

TEST(CenterOver, PutsTheWindowInTheMiddleOfItsOwner) {
    const TestWindow owner;
    const TestWindow window;
    SetWindowPos(owner.Handle(), nullptr, 200, 150, 600, 500, SWP_NOZORDER | SWP_NOACTIVATE);
    SetWindowPos(window.Handle(), nullptr, 0, 0, 300, 200, SWP_NOZORDER | SWP_NOACTIVATE);
    toolkit::CenterOver(window.Handle(), owner.Handle());
    ExpectRectangle(FrameOf(window.Handle()), {350, 300, 650, 500});
}

TEST(CenterOver, KeepsTheWindowOnTheScreen) {
    const TestWindow owner;
    const TestWindow window;
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(owner.Handle(), MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT screen = monitor.rcWork;
    SetWindowPos(window.Handle(), nullptr, 0, 0, 300, 200, SWP_NOZORDER | SWP_NOACTIVATE);
    SetWindowPos(owner.Handle(), nullptr, screen.right - 100, screen.bottom - 80, 150, 120,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    toolkit::CenterOver(window.Handle(), owner.Handle());
    ExpectRectangle(FrameOf(window.Handle()),
                    {screen.right - 300, screen.bottom - 200, screen.right, screen.bottom});
    SetWindowPos(owner.Handle(), nullptr, screen.left, screen.top, 150, 120, SWP_NOZORDER | SWP_NOACTIVATE);
    toolkit::CenterOver(window.Handle(), owner.Handle());
    ExpectRectangle(FrameOf(window.Handle()), {screen.left, screen.top, screen.left + 300, screen.top + 200});
}

TEST(RunModal, OpensInTheMiddleOfItsOwner) {
    const TestWindow owner;
    SetWindowPos(owner.Handle(), nullptr, 200, 150, 900, 800, SWP_NOZORDER | SWP_NOACTIVATE);
    TestDialog dialog(IDD_HIDDEN_FORM, owner.Handle());
    dialog.onInit = [&] {
        const RECT frame = FrameOf(dialog.Window());
        EXPECT_NEAR(frame.left + frame.right, 1300, 1);
        EXPECT_NEAR(frame.top + frame.bottom, 1100, 1);
        dialog.EndModal(IDOK);
        return true;
    };
    dialog.RunModal();
}

}  // namespace
}  // namespace corvane::test
