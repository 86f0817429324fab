#include "toolkit/dialog/anchored_layout.h"

#include <gtest/gtest.h>

#include "tests/toolkit/test_dialog.h"
#include "toolkit/dialog/window_geometry.h"

namespace corvane::test {
namespace {

using enum toolkit::GrowthShare;

class AnchoredLayoutTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(dialog_.CreateModeless());
        MoveWindow(dialog_.Control(IDC_TEXT_EDIT), 10, 20, 100, 30, FALSE);
        MoveWindow(dialog_.Control(IDC_ROW_LIST), 10, 60, 100, 30, FALSE);
        MoveWindow(dialog_.Control(IDOK), 10, 100, 50, 25, FALSE);
        layout_.Remember(dialog_.Window(),
                         {{.controlId = IDC_TEXT_EDIT, .growX = kAll, .growY = kHalf},
                          {.controlId = IDC_ROW_LIST, .moveY = kHalf, .growX = kAll, .growY = kRest},
                          {.controlId = IDOK, .moveX = kAll, .moveY = kAll}});
        RECT client = {};
        GetClientRect(dialog_.Window(), &client);
        width_ = client.right;
        height_ = client.bottom;
    }

    void ExpectPlace(int control, const RECT& expected) {
        const RECT place = toolkit::PlaceOf(dialog_.Control(control));
        EXPECT_TRUE(EqualRect(&place, &expected)) << "control " << control << " is at " << place.left << ", "
                                                  << place.top << ", " << place.right << ", " << place.bottom;
    }

    TestDialog dialog_;
    toolkit::AnchoredLayout layout_;
    int width_ = 0;
    int height_ = 0;
};

TEST_F(AnchoredLayoutTest, SharesOutWhatTheDialogHasGrown) {
    layout_.Arrange(width_ + 7, height_ + 5);
    ExpectPlace(IDC_TEXT_EDIT, {10, 20, 117, 52});
    ExpectPlace(IDC_ROW_LIST, {10, 62, 117, 95});
    ExpectPlace(IDOK, {17, 105, 67, 130});
}

TEST_F(AnchoredLayoutTest, ManySmallStepsEndWhereOneLargeStepDoes) {
    for (int step = 1; step <= 9; ++step) {
        layout_.Arrange(width_ + step, height_ + step);
    }
    ExpectPlace(IDC_ROW_LIST, {10, 64, 119, 99});
    layout_.Arrange(width_, height_);
    ExpectPlace(IDC_TEXT_EDIT, {10, 20, 110, 50});
    ExpectPlace(IDC_ROW_LIST, {10, 60, 110, 90});
    ExpectPlace(IDOK, {10, 100, 60, 125});
}

TEST_F(AnchoredLayoutTest, WhatGrowsGivesWayInADialogSmallerThanItsTemplate) {
    layout_.Arrange(width_ - 3, height_ - 4);
    ExpectPlace(IDC_TEXT_EDIT, {10, 20, 107, 48});
    ExpectPlace(IDC_ROW_LIST, {10, 58, 107, 86});
    ExpectPlace(IDOK, {7, 96, 57, 121});
}

TEST_F(AnchoredLayoutTest, NothingShrinksToLessThanNothing) {
    layout_.Arrange(width_ - 150, height_ - 100);
    const RECT place = toolkit::PlaceOf(dialog_.Control(IDC_TEXT_EDIT));
    EXPECT_EQ(place.right - place.left, 0);
    EXPECT_EQ(place.bottom - place.top, 0);
}

TEST_F(AnchoredLayoutTest, TheTemplateIsTheSmallestSize) {
    RECT frame = {};
    GetWindowRect(dialog_.Window(), &frame);
    MINMAXINFO info = {};
    layout_.LimitSize(info);
    EXPECT_EQ(info.ptMinTrackSize.x, frame.right - frame.left);
    EXPECT_EQ(info.ptMinTrackSize.y, frame.bottom - frame.top);
}

TEST_F(AnchoredLayoutTest, AtAnotherScaleTheTemplateOfThatScaleIsGrown) {
    MoveWindow(dialog_.Control(IDC_TEXT_EDIT), 15, 30, 150, 45, FALSE);
    MoveWindow(dialog_.Control(IDC_ROW_LIST), 15, 90, 150, 45, FALSE);
    MoveWindow(dialog_.Control(IDOK), 15, 150, 75, 40, FALSE);
    layout_.Rescale({width_ - 6, height_ - 4});
    ExpectPlace(IDC_TEXT_EDIT, {15, 30, 171, 77});
    ExpectPlace(IDC_ROW_LIST, {15, 92, 171, 139});
    ExpectPlace(IDOK, {21, 154, 96, 194});
    layout_.Arrange(width_, height_ + 2);
    ExpectPlace(IDOK, {21, 156, 96, 196});
    RECT frame = {};
    GetWindowRect(dialog_.Window(), &frame);
    MINMAXINFO info = {};
    layout_.LimitSize(info);
    EXPECT_EQ(info.ptMinTrackSize.x, frame.right - frame.left - 6);
}

TEST_F(AnchoredLayoutTest, AnotherScaleLeavesAMinimisedDialogForWhenItHasItsSizeBack) {
    ShowWindow(dialog_.Window(), SW_SHOWMINNOACTIVE);
    MoveWindow(dialog_.Control(IDOK), 20, 200, 100, 50, FALSE);
    layout_.Rescale({2 * width_, 2 * height_});
    ExpectPlace(IDOK, {20, 200, 120, 250});
    ShowWindow(dialog_.Window(), SW_SHOWNOACTIVATE);
    layout_.Arrange(2 * width_ + 7, 2 * height_ + 5);
    ExpectPlace(IDOK, {27, 205, 127, 255});
}

TEST_F(AnchoredLayoutTest, AMinimisedDialogHasNoSmallestSize) {
    ShowWindow(dialog_.Window(), SW_SHOWMINNOACTIVE);
    MINMAXINFO info = {};
    layout_.LimitSize(info);
    EXPECT_EQ(info.ptMinTrackSize.x, 0);
}

TEST(AnchoredLayoutBeforeItsDialog, LimitsNothing) {
    const toolkit::AnchoredLayout layout;
    MINMAXINFO info = {};
    layout.LimitSize(info);
    EXPECT_EQ(info.ptMinTrackSize.x, 0);
}

}  // namespace
}  // namespace corvane::test
