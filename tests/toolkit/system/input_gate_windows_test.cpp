#include "toolkit/dialog/modal_state.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <vector>

#include "tests/toolkit/test_dialog.h"
#include "tests/toolkit/test_window.h"

namespace corvane::test {
namespace {

// What is left in the queue of the thread, of the given window.
std::vector<UINT> LeftFor(HWND window) {
    std::vector<UINT> left;
    for (MSG message = {}; PeekMessageW(&message, window, 0, 0, PM_REMOVE) != FALSE;) {
        if (message.message == WM_PAINT) {
            // It stays until it is carried out.
            DispatchMessageW(&message);
            continue;
        }
        left.push_back(message.message);
    }
    return left;
}

bool Holds(const std::vector<UINT>& messages, UINT message) {
    return std::find(messages.begin(), messages.end(), message) != messages.end();
}

TEST(WindowsInputGate, DisablesTheWindowsWhileItIsShut) {
    const TestWindow window;
    toolkit::WindowsInputGate gate;
    gate.Shut();
    EXPECT_FALSE(IsWindowEnabled(window.Handle()));
    gate.Shut();
    gate.Open();
    EXPECT_FALSE(IsWindowEnabled(window.Handle())) << "Shut twice, opened once.";
    gate.Open();
    EXPECT_TRUE(IsWindowEnabled(window.Handle()));
}

TEST(WindowsInputGate, MayBeShutAgain) {
    const TestWindow window;
    toolkit::WindowsInputGate gate;
    for (int i = 0; i < 2; ++i) {
        gate.Shut();
        EXPECT_FALSE(IsWindowEnabled(window.Handle()));
        gate.Open();
        EXPECT_TRUE(IsWindowEnabled(window.Handle()));
    }
}

TEST(WindowsInputGate, InputThatCameMeanwhileIsLostAndEverythingElseStays) {
    const TestWindow window;
    static_cast<void>(LeftFor(nullptr));
    toolkit::WindowsInputGate gate;
    {
        const toolkit::ShutInput shut(gate);
        for (const UINT message : std::vector<UINT>{WM_KEYDOWN, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN,
                                                    WM_NCLBUTTONDOWN, WM_APP, WM_KEYUP, WM_COMMAND}) {
            PostMessageW(window.Handle(), message, 0, 0);
        }
    }
    EXPECT_EQ(LeftFor(window.Handle()), (std::vector<UINT>{WM_APP, WM_COMMAND}));
}

TEST(WindowsInputGate, KeysOfTheRealKeyboardAreLostToo) {
    TestDialog dialog(IDD_FORM);
    ASSERT_TRUE(dialog.CreateModeless());
    SetForegroundWindow(dialog.Window());
    // A control keeps the focus while its dialog is disabled, and with it the keys.
    const HWND edit = dialog.Control(IDC_TEXT_EDIT);
    SetFocus(edit);
    const auto press = [] {
        std::array<INPUT, 2> strokes = {};
        for (INPUT& stroke : strokes) {
            stroke.type = INPUT_KEYBOARD;
            stroke.ki.wVk = VK_F6;
        }
        strokes[1].ki.dwFlags = KEYEVENTF_KEYUP;
        SendInput(static_cast<UINT>(strokes.size()), strokes.data(), sizeof(INPUT));
    };
    press();
    ASSERT_TRUE(Holds(LeftFor(edit), WM_KEYDOWN)) << "The key does not reach this window at all.";
    toolkit::WindowsInputGate gate;
    {
        const toolkit::ShutInput shut(gate);
        press();
    }
    EXPECT_FALSE(Holds(LeftFor(edit), WM_KEYDOWN));
}

TEST(WindowsInputGate, TheEndOfTheProgramIsNotInput) {
    toolkit::WindowsInputGate gate;
    {
        const toolkit::ShutInput shut(gate);
        PostQuitMessage(7);
    }
    MSG quit = {};
    ASSERT_TRUE(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(quit.wParam, 7U);
}

}  // namespace
}  // namespace corvane::test
