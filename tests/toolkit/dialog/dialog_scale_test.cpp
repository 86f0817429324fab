#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <cstdlib>
#include <map>
#include <vector>

#include "tests/toolkit/test_dialog.h"
#include "toolkit/dialog/window_geometry.h"

namespace corvane::test {
namespace {

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
            places[id] = toolkit::PlaceOf(dialog_.Control(id));
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

// Pixels of four horizontal and eight vertical dialog units of the font that the dialog shows.
SIZE DialogUnitsOf(const TestDialog& dialog) {
    const auto font = reinterpret_cast<HFONT>(SendMessageW(dialog.Control(IDC_ROW_LIST), WM_GETFONT, 0, 0));
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ before = SelectObject(screen, font);
    SIZE letters = {};
    GetTextExtentPoint32W(screen, L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", 52, &letters);
    TEXTMETRICW metrics = {};
    GetTextMetricsW(screen, &metrics);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    return {(letters.cx / 26 + 1) / 2, metrics.tmHeight};
}

// The row list stands in the templates at 7, 57 and is 180 by 60 units large.
void ExpectTemplatePlaceOfList(const TestDialog& dialog) {
    const SIZE units = DialogUnitsOf(dialog);
    const int left = MulDiv(7, units.cx, 4);
    const int top = MulDiv(57, units.cy, 8);
    ExpectPlace(toolkit::PlaceOf(dialog.Control(IDC_ROW_LIST)),
                {left, top, left + MulDiv(180, units.cx, 4), top + MulDiv(60, units.cy, 8)}, IDC_ROW_LIST, 0);
}

TEST_F(DialogScale, AWindowThatCanBeResizedTakesTheSuggestedPlace) {
    MoveToScreenOf(after_, LargerFrame());
    RECT frame = {};
    GetWindowRect(dialog_.Window(), &frame);
    ExpectPlace(frame, LargerFrame(), 0, 0);
    EXPECT_EQ(dialog_.DotsPerInch(), after_);
}

TEST_F(DialogScale, TheFontGrowsOnceAndIsThatOfAllControls) {
    const int height = FontHeight(dialog_.Control(IDC_TEXT_EDIT));
    ASSERT_NE(height, 0);
    MoveToScreenOf(after_, LargerFrame());
    MoveToScreenOf(after_, LargerFrame());
    // What the dialog manager makes of the eight points that the template asks for.
    const int expected = -MulDiv(8, static_cast<int>(after_), 72);
    ASSERT_EQ(height, -MulDiv(8, static_cast<int>(before_), 72));
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
        ExpectPlace(toolkit::PlaceOf(dialog_.Control(id)), place, id, 1);
        EXPECT_EQ(FontHeight(dialog_.Control(id)), height) << "control " << id;
    }
    RECT frame = {};
    GetWindowRect(dialog_.Window(), &frame);
    ExpectPlace(frame, frameBefore_, 0, 0);
}

TEST_F(DialogScale, NoRoundingAddsUpHoweverOftenTheScaleChanges) {
    const auto places = Places();
    for (const UINT scale : {before_ * 2 / 3, before_ * 7 / 6, before_ / 2, before_ * 7 / 4, before_}) {
        MoveToScreenOf(scale, frameBefore_);
    }
    for (const auto& [id, place] : places) {
        ExpectPlace(toolkit::PlaceOf(dialog_.Control(id)), place, id, 0);
    }
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
        ExpectPlace(toolkit::PlaceOf(dialog_.Control(id)), place, id, 0);
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

class PlainDialogScale : public DialogScale {
  protected:
    void SetUp() override {
        ASSERT_TRUE(plain_.CreateModeless());
        scale_ = plain_.DotsPerInch();
        GetWindowRect(plain_.Window(), &frame_);
    }
    void MoveTo(UINT dotsPerInch) {
        SendMessageW(plain_.Window(), WM_DPICHANGED, MAKEWPARAM(dotsPerInch, dotsPerInch),
                     reinterpret_cast<LPARAM>(&frame_));
    }
    [[nodiscard]] std::vector<RECT> AllPlaces() const {
        std::vector<RECT> places;
        RECT frame = {};
        GetWindowRect(plain_.Window(), &frame);
        places.push_back(frame);
        for (HWND child = GetWindow(plain_.Window(), GW_CHILD); child != nullptr;
             child = GetWindow(child, GW_HWNDNEXT)) {
            places.push_back(toolkit::PlaceOf(child));
        }
        return places;
    }
    void ExpectSamePlaces(const std::vector<RECT>& expected) const {
        const std::vector<RECT> places = AllPlaces();
        ASSERT_EQ(places.size(), expected.size());
        for (std::size_t i = 0; i < places.size(); ++i) {
            ExpectPlace(places[i], expected[i], static_cast<int>(i), 0);
        }
    }
    [[nodiscard]] int PictureSize() const {
        const auto icon =
            reinterpret_cast<HICON>(SendDlgItemMessageW(plain_.Window(), IDC_PICTURE, STM_GETICON, 0, 0));
        ICONINFO info = {};
        BITMAP bitmap = {};
        EXPECT_TRUE(GetIconInfo(icon, &info));
        GetObjectW(info.hbmColor, sizeof bitmap, &bitmap);
        DeleteObject(info.hbmColor);
        DeleteObject(info.hbmMask);
        return static_cast<int>(bitmap.bmWidth);
    }

    TestDialog plain_{IDD_PLAIN_FORM};
    UINT scale_ = 0;
    RECT frame_ = {};
};

TEST_F(PlainDialogScale, NoRoundingAddsUpHoweverOftenTheScaleChanges) {
    const std::vector<RECT> places = AllPlaces();
    for (const UINT scale : {scale_ * 2 / 3, scale_ * 7 / 6, scale_ / 2, scale_ * 7 / 4, scale_}) {
        MoveTo(scale);
    }
    ExpectSamePlaces(places);
}

TEST_F(PlainDialogScale, IsLaidOutInTheDialogUnitsOfItsFont) {
    MoveTo(scale_ * 3 / 2);
    ExpectTemplatePlaceOfList(plain_);
    // The template's client area reaches to 195, 153.
    const SIZE units = DialogUnitsOf(plain_);
    RECT client = {};
    GetClientRect(plain_.Window(), &client);
    ExpectPlace(client, {0, 0, MulDiv(195, units.cx, 4), MulDiv(153, units.cy, 8)}, 0, 0);
}

TEST_F(DialogScale, IsLaidOutInTheDialogUnitsOfItsFont) {
    MoveToScreenOf(after_, LargerFrame());
    ExpectTemplatePlaceOfList(dialog_);
}

TEST_F(PlainDialogScale, KeepsTheSuggestedCorner) {
    frame_ = {70, 60, 500, 400};
    MoveTo(scale_ * 3 / 2);
    RECT frame = {};
    GetWindowRect(plain_.Window(), &frame);
    EXPECT_EQ(frame.left, 70);
    EXPECT_EQ(frame.top, 60);
}

TEST_F(PlainDialogScale, PicturesAreLoadedForTheScale) {
    const int before = PictureSize();
    EXPECT_EQ(before, toolkit::SystemMetric(SM_CXICON, scale_));
    MoveTo(scale_ * 3 / 2);
    EXPECT_EQ(PictureSize(), toolkit::SystemMetric(SM_CXICON, scale_ * 3 / 2));
    MoveTo(scale_);
    EXPECT_EQ(PictureSize(), before);
}

TEST(WindowDotsPerInch, IsThatOfTheScreen) {
    const HDC screen = GetDC(nullptr);
    const auto expected = static_cast<UINT>(GetDeviceCaps(screen, LOGPIXELSX));
    ReleaseDC(nullptr, screen);
    EXPECT_EQ(toolkit::WindowDotsPerInch(GetDesktopWindow()), expected);
    EXPECT_EQ(toolkit::WindowDotsPerInch(nullptr), expected) << "Without a window it is the system's.";
}

TEST(SystemMetric, GrowsWithTheScale) {
    EXPECT_EQ(toolkit::SystemMetric(SM_CXICON, 96), 32);
    EXPECT_EQ(toolkit::SystemMetric(SM_CXICON, 192), 64);
    EXPECT_EQ(toolkit::SystemMetric(SM_CXSMICON, 144), 24);
}

}  // namespace
}  // namespace corvane::test
