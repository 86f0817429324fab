// The icons as the system hands them out: every number at every size that a screen of 96 to 192 dpi asks
// for, drawn for that size and not scaled from another.

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "res/ids.h"
#include "toolkit/system/icon.h"

namespace {

struct NamedIcon {
    const char* name;
    int id;
};

constexpr NamedIcon kIcons[] = {
    {"IDI_DELETE_ITEM", IDI_DELETE_ITEM},
    {"IDI_WARNING_BOX", IDI_WARNING_BOX},
    {"IDI_ERROR_MODE", IDI_ERROR_MODE},
    {"IDI_SAVE", IDI_SAVE},
    {"IDI_LOG_PATH", IDI_LOG_PATH},
    {"IDI_ADD_RULE", IDI_ADD_RULE},
    {"IDI_EDIT_RULE", IDI_EDIT_RULE},
    {"IDI_DELETE_RULE", IDI_DELETE_RULE},
    {"IDI_MAKE_FIRST", IDI_MAKE_FIRST},
    {"IDI_MOVE_UP", IDI_MOVE_UP},
    {"IDI_MOVE_DOWN", IDI_MOVE_DOWN},
    {"IDI_MAKE_LAST", IDI_MAKE_LAST},
    {"IDI_ADD_ITEM", IDI_ADD_ITEM},
    {"IDI_MAIN_WINDOW", IDI_MAIN_WINDOW},
    {"IDI_ADD_PROFILE", IDI_ADD_PROFILE},
    {"IDI_DELETE_PROFILE", IDI_DELETE_PROFILE},
    {"IDI_EDIT_PROFILE", IDI_EDIT_PROFILE},
    {"IDI_EXPORT_RULES", IDI_EXPORT_RULES},
    {"IDI_IMPORT_RULES", IDI_IMPORT_RULES},
    {"IDI_REFUSAL", IDI_REFUSAL},
    {"IDI_COPY_RULE", IDI_COPY_RULE},
    {"IDI_INFO_MODE", IDI_INFO_MODE},
    {"IDI_INPUT_FOLDER", IDI_INPUT_FOLDER},
    {"IDI_OUTPUT_FOLDER", IDI_OUTPUT_FOLDER},
    {"IDI_ERROR_FOLDER", IDI_ERROR_FOLDER},
    {"IDI_CERTIFICATES", IDI_CERTIFICATES},
    {"IDI_EXECUTABLE", IDI_EXECUTABLE},
    {"IDI_SECOND_OUTPUT_FOLDER", IDI_SECOND_OUTPUT_FOLDER},
    {"IDI_EDIT_ITEM", IDI_EDIT_ITEM},
    {"IDI_ADD_TO_CHOSEN", IDI_ADD_TO_CHOSEN},
    {"IDI_REMOVE_FROM_CHOSEN", IDI_REMOVE_FROM_CHOSEN},
};
constexpr const wchar_t* kFileIcon = L"AAA_MAIN";

const std::set<int> kSizesPixels = {16, 20, 24, 32, 40, 48, 64};
const std::set<int> kMainSizesPixels = {16, 20, 24, 32, 40, 48, 64, 96, 256};

struct BitmapCloser {
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapCloser>;

struct Picture {
    int widthPixels = 0;
    int heightPixels = 0;
    std::vector<std::uint32_t> pixels;  // 0xAARRGGBB
};

// The picture that the system makes of an icon resource at one size; 0 wide where there is none.
Picture LoadPicture(const wchar_t* resource, int sizePixels) {
    Picture picture;
    const corvane::toolkit::UniqueIcon icon(static_cast<HICON>(LoadImageW(
        GetModuleHandleW(nullptr), resource, IMAGE_ICON, sizePixels, sizePixels, LR_DEFAULTCOLOR)));
    ICONINFO info = {};
    if (!icon || !GetIconInfo(icon.get(), &info))
        return picture;
    const OwnedBitmap mask(info.hbmMask);
    const OwnedBitmap colour(info.hbmColor);
    BITMAP bitmap = {};
    if (!colour || GetObjectW(colour.get(), sizeof(bitmap), &bitmap) == 0)
        return picture;
    BITMAPINFO format = {};
    format.bmiHeader.biSize = sizeof(format.bmiHeader);
    format.bmiHeader.biWidth = bitmap.bmWidth;
    format.bmiHeader.biHeight = -bitmap.bmHeight;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    picture.pixels.resize(static_cast<std::size_t>(bitmap.bmWidth) *
                          static_cast<std::size_t>(bitmap.bmHeight));
    const HDC screen = GetDC(nullptr);
    const int rows = GetDIBits(screen, colour.get(), 0, static_cast<UINT>(bitmap.bmHeight),
                               picture.pixels.data(), &format, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    if (rows != bitmap.bmHeight)
        return picture;
    picture.widthPixels = bitmap.bmWidth;
    picture.heightPixels = bitmap.bmHeight;
    return picture;
}

// The sizes that an icon resource holds a picture of its own for, read from its directory.
std::set<int> DrawnSizes(const wchar_t* resource) {
    constexpr std::size_t kHeaderBytes = 6;
    constexpr std::size_t kEntryBytes = 14;
    std::set<int> sizes;
    const HRSRC found = FindResourceW(nullptr, resource, RT_GROUP_ICON);
    const HGLOBAL loaded = found == nullptr ? nullptr : LoadResource(nullptr, found);
    if (loaded == nullptr)
        return sizes;
    const auto* bytes = static_cast<const unsigned char*>(LockResource(loaded));
    std::uint16_t count = 0;
    std::memcpy(&count, bytes + 4, sizeof(count));
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned char width = bytes[kHeaderBytes + i * kEntryBytes];
        sizes.insert(width == 0 ? 256 : width);
    }
    return sizes;
}

const std::set<int>& SizesOf(int id) {
    return id == IDI_MAIN_WINDOW ? kMainSizesPixels : kSizesPixels;
}

int Alpha(std::uint32_t pixel) {
    return static_cast<int>(pixel >> 24U);
}

// What a pixel looks like on the light grey of a button, without colour: 0 to 255.
int GreyOnButton(std::uint32_t pixel) {
    constexpr int kButtonGrey = 240;
    const int red = static_cast<int>((pixel >> 16U) & 255U);
    const int green = static_cast<int>((pixel >> 8U) & 255U);
    const int blue = static_cast<int>(pixel & 255U);
    const int grey = (299 * red + 587 * green + 114 * blue) / 1000;
    return (grey * Alpha(pixel) + kButtonGrey * (255 - Alpha(pixel))) / 255;
}

BOOL CALLBACK KeepFirstName(HMODULE, LPCWSTR, LPWSTR name, LONG_PTR parameter) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the system hands the pointer on as a number.
    auto& first = *reinterpret_cast<std::wstring*>(parameter);
    first = IS_INTRESOURCE(name) ? std::to_wstring(reinterpret_cast<ULONG_PTR>(name)) : std::wstring(name);
    return FALSE;
}

}  // namespace

TEST(Icons, EveryIconHoldsAPictureOfItsOwnForEverySize) {
    for (const NamedIcon& icon : kIcons) {
        EXPECT_EQ(DrawnSizes(MAKEINTRESOURCEW(icon.id)), SizesOf(icon.id)) << icon.name;
    }
    EXPECT_EQ(DrawnSizes(kFileIcon), kMainSizesPixels) << "the icon of the file";
}

TEST(Icons, EveryIconLoadsAtEverySizeWithTransparentAndOpaqueParts) {
    for (const NamedIcon& icon : kIcons) {
        for (const int size : SizesOf(icon.id)) {
            const Picture picture = LoadPicture(MAKEINTRESOURCEW(icon.id), size);
            EXPECT_EQ(picture.widthPixels, size) << icon.name << " at " << size << " pixels";
            EXPECT_EQ(picture.heightPixels, size) << icon.name << " at " << size << " pixels";
            int opaque = 0;
            int transparent = 0;
            for (const std::uint32_t pixel : picture.pixels) {
                opaque += Alpha(pixel) == 255 ? 1 : 0;
                transparent += Alpha(pixel) == 0 ? 1 : 0;
            }
            EXPECT_GT(opaque, size * size / 8) << icon.name << " at " << size << " pixels shows too little";
            EXPECT_GT(transparent, size * size / 8)
                << icon.name << " at " << size << " pixels has no background";
        }
    }
}

// Most toolbars are told by colour first; here the shape has to do it alone.
TEST(Icons, NoTwoIconsAreAlikeWithoutColour) {
    constexpr int kSizePixels = 16;
    constexpr int kVisibleDifference = 60;
    constexpr int kDifferentPixels = 8;
    std::vector<Picture> pictures;
    for (const NamedIcon& icon : kIcons)
        pictures.push_back(LoadPicture(MAKEINTRESOURCEW(icon.id), kSizePixels));
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        for (std::size_t j = i + 1; j < pictures.size(); ++j) {
            ASSERT_EQ(pictures[i].pixels.size(), pictures[j].pixels.size());
            int different = 0;
            for (std::size_t k = 0; k < pictures[i].pixels.size(); ++k) {
                const int step =
                    std::abs(GreyOnButton(pictures[i].pixels[k]) - GreyOnButton(pictures[j].pixels[k]));
                different += step >= kVisibleDifference ? 1 : 0;
            }
            EXPECT_GE(different, kDifferentPixels) << kIcons[i].name << " and " << kIcons[j].name;
        }
    }
}

TEST(Icons, TheFirstIconOfTheFileIsThatOfTheMainWindow) {
    std::wstring first;
    EnumResourceNamesW(nullptr, RT_GROUP_ICON, KeepFirstName, reinterpret_cast<LONG_PTR>(&first));
    EXPECT_EQ(first, kFileIcon);
    // The one holds PNG pictures, the other bitmaps up to 48 pixels; both must come out the same.
    for (const int size : kMainSizesPixels) {
        const Picture file = LoadPicture(kFileIcon, size);
        EXPECT_EQ(file.widthPixels, size);
        EXPECT_TRUE(file.pixels == LoadPicture(MAKEINTRESOURCEW(IDI_MAIN_WINDOW), size).pixels)
            << "at " << size << " pixels";
    }
}
