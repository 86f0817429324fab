#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <stdexcept>

#include "tests/toolkit/test_dialog.h"
#include "tests/toolkit/test_window.h"

namespace corvane::test {
namespace {

TEST(CreateModeless, ReturnsWithTheWindowAndLeavesTheOwnerEnabled) {
    const TestWindow owner;
    TestDialog dialog(IDD_HIDDEN_FORM, owner.Handle());
    ASSERT_TRUE(dialog.CreateModeless());
    EXPECT_TRUE(IsWindow(dialog.Window()));
    EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), owner.Handle());
    EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
}

TEST(CreateModeless, IsVisibleAsTheTemplateSays) {
    TestDialog visible(IDD_FORM);
    TestDialog hidden(IDD_HIDDEN_FORM);
    ASSERT_TRUE(visible.CreateModeless());
    ASSERT_TRUE(hidden.CreateModeless());
    EXPECT_TRUE(IsWindowVisible(visible.Window()));
    EXPECT_FALSE(IsWindowVisible(hidden.Window()));
}

TEST(CreateModeless, FailsWithoutATemplate) {
    TestDialog dialog(IDD_NOWHERE);
    EXPECT_FALSE(dialog.CreateModeless());
    EXPECT_EQ(dialog.Window(), nullptr);
}

TEST(CreateModeless, WhatOnInitDialogThrowsComesOutAndLeavesNoWindow) {
    TestDialog dialog;
    HWND window = nullptr;
    dialog.onInit = [&]() -> bool {
        window = dialog.Window();
        throw std::out_of_range("no entry");
    };
    EXPECT_THROW(static_cast<void>(dialog.CreateModeless()), std::out_of_range);
    ASSERT_NE(window, nullptr);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(dialog.Window(), nullptr);
}

TEST(CreateModeless, OkAndCancelEndNothing) {
    TestDialog dialog;
    ASSERT_TRUE(dialog.CreateModeless());
    SendMessageW(dialog.Window(), WM_COMMAND, IDOK, 0);
    SendMessageW(dialog.Window(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(IsWindow(dialog.Window()));
    EXPECT_FALSE(dialog.HasEnded());
}

TEST(DestroyDialogWindow, DestroysTheWindowAndMayBeCalledAgain) {
    TestDialog dialog;
    ASSERT_TRUE(dialog.CreateModeless());
    const HWND window = dialog.Window();
    dialog.DestroyDialogWindow();
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(dialog.Window(), nullptr);
    dialog.DestroyDialogWindow();
    EXPECT_TRUE(dialog.CreateModeless()) << "It can be made again.";
}

TEST(DestroyDialogWindow, AWindowDestroyedByOthersIsForgotten) {
    TestDialog dialog;
    ASSERT_TRUE(dialog.CreateModeless());
    DestroyWindow(dialog.Window());
    EXPECT_EQ(dialog.Window(), nullptr);
}

TEST(DestroyDialogWindow, HappensWhenTheDialogGoes) {
    auto dialog = std::make_unique<TestDialog>();
    ASSERT_TRUE(dialog->CreateModeless());
    const HWND window = dialog->Window();
    dialog.reset();
    EXPECT_FALSE(IsWindow(window));
}

}  // namespace
}  // namespace corvane::test
