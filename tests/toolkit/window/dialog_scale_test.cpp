#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <cstdlib>
#include <map>

#include "tests/toolkit/window/test_dialog.h"
#include "toolkit/control_place.h"
#include "toolkit/window_scale.h"

namespace toolkit {
namespace {

using testing::TestDialog;

constexpr std::array<int, 8> kControls = {IDC_TEXT_EDIT, IDC_NUMBER_EDIT, IDC_NAME_TEXT, IDC_CHOICE_CHECK,
                                          IDC_ROW_LIST,  IDC_TALL_BUTTON, IDOK,          IDCANCEL};

int FontHeight(HWND window) {
    LOGFONTW font = {};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    return static_cast<int>(font.lfHeight);
}

class DialogScale : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(dialog_.CreateModeless());
        before_ = dialog_.DotsPerInch();
        after_ = before_ * 3 / 2;
        GetWindowRect(dialog_.Window(), &frameBefore_);
    }

    // Tells the dialog that it is on a screen of another scale now, as the system does.
    void MoveToScreenOf(UINT dotsPerInch, const RECT& suggested) {
        SendMessageW(dialog_.Window(), WM_DPICHANGED, MAKEWPARAM(dotsPerInch, dotsPerInch),
                     reinterpret_cast<LPARAM>(&suggested));
    }

    std::map<int, RECT> Places() {
        std::map<int, RECT> places;
        for (const int id : kControls) {
            places[id] = PlaceOf(dialog_.Control(id));
        }
        return places;
    }

    static RECT LargerFrame() { return {40, 30, 840, 730}; }

    TestDialog dialog_;
    UINT before_ = 0;
    UINT after_ = 0;
    RECT frameBefore_ = {};
};

void ExpectPlace(const RECT& place, const RECT& expected, int control, LONG tolerance) {
    const std::array<LONG, 4> edges = {place.left, place.top, place.right, place.bottom};
    const std::array<LONG, 4> wanted = {expected.left, expected.top, expected.right, expected.bottom};
    for (std::size_t edge = 0; edge < edges.size(); ++edge) {
        EXPECT_LE(std::labs(edges[edge] - wanted[edge]), tolerance)
            << "control " << control << ", edge " << edge << ": " << edges[edge] << " instead of "
            << wanted[edge];
    }
}

TEST_F(DialogScale, TheWindowTakesTheSuggestedPlaceAndEveryControlGrows) {
    const auto places = Places();
    MoveToScreenOf(after_, LargerFrame());
    RECT frame = {};
    GetWindowRect(dialog_.Window(), &frame);
    ExpectPlace(frame, LargerFrame(), 0, 0);
    EXPECT_EQ(dialog_.DotsPerInch(), after_);
    for (const auto& [id, place] : places) {
        const RECT expected = {place.left * 3 / 2, place.top * 3 / 2, place.right * 3 / 2,
                               place.bottom * 3 / 2};
        ExpectPlace(PlaceOf(dialog_.Control(id)), expected, id, 1);
    }
}

TEST_F(DialogScale, TheFontGrowsOnceAndIsThatOfAllControls) {
    const int height = FontHeight(dialog_.Control(IDC_TEXT_EDIT));
    ASSERT_NE(height, 0);
    MoveToScreenOf(after_, LargerFrame());
    MoveToScreenOf(after_, LargerFrame());
    const int expected = MulDiv(height, static_cast<int>(after_), static_cast<int>(before_));
    for (const int id : kControls) {
        EXPECT_EQ(FontHeight(dialog_.Control(id)), expected) << "control " << id;
    }
}

TEST_F(DialogScale, ThereAndBackGivesTheSamePlacesAndFont) {
    const auto places = Places();
    const int height = FontHeight(dialog_.Control(IDC_TEXT_EDIT));
    MoveToScreenOf(after_, LargerFrame());
    MoveToScreenOf(before_, frameBefore_);
    for (const auto& [id, place] : places) {
        ExpectPlace(PlaceOf(dialog_.Control(id)), place, id, 1);
        EXPECT_EQ(FontHeight(dialog_.Control(id)), height) << "control " << id;
    }
    RECT frame = {};
    GetWindowRect(dialog_.Window(), &frame);
    ExpectPlace(frame, frameBefore_, 0, 0);
}

TEST_F(DialogScale, TheLimitsOfTheOldScaleDoNotHoldOnTheWay) {
    dialog_.onMinimumMaximumInfo = [](MINMAXINFO& info) { info.ptMinTrackSize = {10000, 10000}; };
    MoveToScreenOf(after_, LargerFrame());
    RECT frame = {};
    GetWindowRect(dialog_.Window(), &frame);
    ExpectPlace(frame, LargerFrame(), 0, 0);
}

TEST_F(DialogScale, OnSizeIsSilentMeanwhileAndOnScaleChangedIsCalledOnce) {
    int sizes = 0;
    int changes = 0;
    dialog_.onSize = [&](WPARAM, int, int) { ++sizes; };
    dialog_.onScaleChanged = [&] {
        ++changes;
        EXPECT_EQ(dialog_.DotsPerInch(), after_);
    };
    MoveToScreenOf(after_, LargerFrame());
    EXPECT_EQ(sizes, 0);
    EXPECT_EQ(changes, 1);
    SetWindowPos(dialog_.Window(), nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(sizes, 1) << "Afterwards sizes are told again.";
}

TEST_F(DialogScale, TheSameScaleChangesNothing) {
    const auto places = Places();
    dialog_.onScaleChanged = [] { ADD_FAILURE() << "Nothing has changed."; };
    MoveToScreenOf(before_, LargerFrame());
    for (const auto& [id, place] : places) {
        ExpectPlace(PlaceOf(dialog_.Control(id)), place, id, 0);
    }
}

TEST_F(DialogScale, TheDialogStaysWholeWhenItGoesAfterBeingScaled) {
    MoveToScreenOf(after_, LargerFrame());
    dialog_.DestroyDialogWindow();
    ASSERT_TRUE(dialog_.CreateModeless());
    EXPECT_EQ(dialog_.DotsPerInch(), before_);
    LOGFONTW font = {};
    EXPECT_NE(GetObjectW(reinterpret_cast<HFONT>(SendMessageW(dialog_.Window(), WM_GETFONT, 0, 0)),
                         sizeof font, &font),
              0);
}

TEST(WindowDotsPerInch, IsThatOfTheScreen) {
    const HDC screen = GetDC(nullptr);
    const auto expected = static_cast<UINT>(GetDeviceCaps(screen, LOGPIXELSX));
    ReleaseDC(nullptr, screen);
    EXPECT_EQ(WindowDotsPerInch(GetDesktopWindow()), expected);
    EXPECT_EQ(WindowDotsPerInch(nullptr), expected) << "Without a window it is the system's.";
}

TEST(SystemMetric, GrowsWithTheScale) {
    EXPECT_EQ(SystemMetric(SM_CXICON, 96), 32);
    EXPECT_EQ(SystemMetric(SM_CXICON, 192), 64);
    EXPECT_EQ(SystemMetric(SM_CXSMICON, 144), 24);
}

}  // namespace
}  // namespace toolkit
