#include "toolkit/system/icon.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include "tests/toolkit/test_dialog.h"
#include "tests/toolkit/test_window.h"
#include "toolkit/controls/button_icons.h"
#include "toolkit/dialog/window_geometry.h"

namespace corvane::test {
namespace {

constexpr COLORREF kOf16 = RGB(255, 0, 0);
constexpr COLORREF kOf32 = RGB(0, 255, 0);
constexpr COLORREF kOf48 = RGB(0, 0, 255);

// Width and colour of an icon of one colour.
struct Picture {
    LONG widthPixels = 0;
    LONG heightPixels = 0;
    COLORREF color = 0;
};

Picture Look(HICON icon) {
    Picture picture;
    ICONINFO info = {};
    if (GetIconInfo(icon, &info) == FALSE) {
        ADD_FAILURE() << "This is no icon.";
        return picture;
    }
    BITMAP bitmap = {};
    GetObjectW(info.hbmColor, sizeof bitmap, &bitmap);
    picture.widthPixels = bitmap.bmWidth;
    picture.heightPixels = bitmap.bmHeight;
    const HDC context = CreateCompatibleDC(nullptr);
    const HGDIOBJ before = SelectObject(context, info.hbmColor);
    picture.color = GetPixel(context, bitmap.bmWidth / 2, bitmap.bmHeight / 2);
    SelectObject(context, before);
    DeleteDC(context);
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    return picture;
}

TEST(LoadIconResource, TakesThePictureOfTheRequestedSize) {
    struct Case {
        int sizePixels;
        COLORREF color;
    };
    for (const Case& entry : {Case{16, kOf16}, Case{32, kOf32}, Case{48, kOf48}}) {
        const toolkit::UniqueIcon icon = toolkit::LoadIconResource(IDI_SQUARE, entry.sizePixels);
        ASSERT_NE(icon.get(), nullptr) << entry.sizePixels;
        const Picture picture = Look(icon.get());
        EXPECT_EQ(picture.widthPixels, entry.sizePixels);
        EXPECT_EQ(picture.heightPixels, entry.sizePixels);
        EXPECT_EQ(picture.color, entry.color) << entry.sizePixels << " pixels";
    }
}

TEST(LoadIconResource, GivesAlsoASizeThatHasNoPicture) {
    for (const int sizePixels : {20, 24, 64}) {
        const toolkit::UniqueIcon icon = toolkit::LoadIconResource(IDI_SQUARE, sizePixels);
        ASSERT_NE(icon.get(), nullptr) << sizePixels;
        EXPECT_EQ(Look(icon.get()).widthPixels, sizePixels);
    }
}

TEST(LoadIconResource, IsEmptyWithoutSuchAResource) {
    EXPECT_EQ(toolkit::LoadIconResource(IDI_NOWHERE, 32).get(), nullptr);
}

TEST(ShowWindowIcons, GivesTheWindowBothInTheSizesOfItsScale) {
    TestDialog dialog;
    ASSERT_TRUE(dialog.CreateModeless());
    toolkit::UniqueIcon largeIcon;
    toolkit::UniqueIcon smallIcon;
    for (const UINT dotsPerInch : {96U, 144U}) {
        toolkit::ShowWindowIcons(dialog.Window(), dotsPerInch, IDI_SQUARE, largeIcon, smallIcon);
        EXPECT_EQ(SendMessageW(dialog.Window(), WM_GETICON, ICON_BIG, 0),
                  reinterpret_cast<LRESULT>(largeIcon.get()));
        EXPECT_EQ(SendMessageW(dialog.Window(), WM_GETICON, ICON_SMALL, 0),
                  reinterpret_cast<LRESULT>(smallIcon.get()));
        EXPECT_EQ(Look(largeIcon.get()).widthPixels, toolkit::SystemMetric(SM_CXICON, dotsPerInch));
        EXPECT_EQ(Look(smallIcon.get()).widthPixels, toolkit::SystemMetric(SM_CXSMICON, dotsPerInch));
    }
}

TEST(ShowWindowIcons, TheIconsBeforeAreDestroyed) {
    TestDialog dialog;
    ASSERT_TRUE(dialog.CreateModeless());
    toolkit::UniqueIcon largeIcon;
    toolkit::UniqueIcon smallIcon;
    toolkit::ShowWindowIcons(dialog.Window(), 96, IDI_SQUARE, largeIcon, smallIcon);
    const HICON before = largeIcon.get();
    toolkit::ShowWindowIcons(dialog.Window(), 144, IDI_SQUARE, largeIcon, smallIcon);
    ICONINFO info = {};
    EXPECT_FALSE(GetIconInfo(before, &info));
}

class ButtonIconsTest : public ::testing::Test {
  protected:
    static constexpr int kFirstButton = 1;
    static constexpr int kSecondButton = 2;

    ButtonIconsTest() {
        for (const int id : {kFirstButton, kSecondButton}) {
            CreateWindowExW(0, WC_BUTTONW, L"Square", WS_CHILD | BS_ICON, 0, 0, 64, 64, window_.Handle(),
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr),
                            nullptr);
        }
    }

    [[nodiscard]] HWND Dialog() const { return window_.Handle(); }
    [[nodiscard]] HICON ShownOn(int button) const {
        return reinterpret_cast<HICON>(SendDlgItemMessageW(Dialog(), button, BM_GETIMAGE, IMAGE_ICON, 0));
    }

    TestWindow window_;
    toolkit::ButtonIcons icons_;
};

TEST_F(ButtonIconsTest, AButtonShowsTheIconInTheSizeOfTheScale) {
    icons_.Show(Dialog(), 96, kFirstButton, IDI_SQUARE);
    EXPECT_EQ(Look(ShownOn(kFirstButton)).widthPixels, 32);
    EXPECT_EQ(Look(ShownOn(kFirstButton)).color, kOf32);
    EXPECT_EQ(ShownOn(kSecondButton), nullptr);
    icons_.Show(Dialog(), 144, kSecondButton, IDI_SQUARE);
    EXPECT_EQ(Look(ShownOn(kSecondButton)).widthPixels, 48);
    EXPECT_EQ(Look(ShownOn(kSecondButton)).color, kOf48);
}

TEST_F(ButtonIconsTest, TheIconBeforeIsDestroyed) {
    icons_.Show(Dialog(), 96, kFirstButton, IDI_SQUARE);
    const HICON before = ShownOn(kFirstButton);
    icons_.Show(Dialog(), 96, kFirstButton, IDI_SQUARE);
    EXPECT_NE(ShownOn(kFirstButton), before);
    ICONINFO info = {};
    EXPECT_FALSE(GetIconInfo(before, &info));
}

TEST_F(ButtonIconsTest, AnotherScaleLoadsEveryIconAgain) {
    icons_.Show(Dialog(), 96, kFirstButton, IDI_SQUARE);
    icons_.Show(Dialog(), 96, kSecondButton, IDI_SQUARE);
    icons_.Rescale(Dialog(), 144);
    for (const int button : {kFirstButton, kSecondButton}) {
        EXPECT_EQ(Look(ShownOn(button)).color, kOf48) << button;
    }
}

}  // namespace
}  // namespace corvane::test
