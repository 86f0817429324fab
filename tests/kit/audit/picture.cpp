#include "tests/kit/audit/picture.h"

#include <objbase.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>
#include <vector>

// The picture library's headers want these two by their bare names.
namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus

#include <gdiplus.h>

#include "tests/kit/driver/failure.h"
#include "tests/kit/driver/waiting.h"

namespace corvane::test {
namespace {

constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

class PictureLibrary {
  public:
    PictureLibrary() {
        const Gdiplus::GdiplusStartupInput input;
        if (Gdiplus::GdiplusStartup(&token_, &input, nullptr) != Gdiplus::Ok) {
            throw Failure(L"The system's picture library does not start.");
        }
    }
    ~PictureLibrary() { Gdiplus::GdiplusShutdown(token_); }
    PictureLibrary(const PictureLibrary&) = delete;
    PictureLibrary& operator=(const PictureLibrary&) = delete;

  private:
    ULONG_PTR token_ = 0;
};

std::filesystem::path PictureFolder() {
    std::array<wchar_t, 1024> folder{};
    if (GetEnvironmentVariableW(L"CORVANE_PICTURES", folder.data(), static_cast<DWORD>(folder.size())) == 0) {
        throw Failure(L"CORVANE_PICTURES names no folder for the pictures.");
    }
    std::wstring path = folder.data();
    // A cross-built test sees the building machine's files through drive Z.
    return path.front() == L'/' ? L"Z:" + path : path;
}

/// The rectangle that the window takes on the screen, with its frame: a window manager need not draw the
/// frame as wide as the window takes it to be, and what lies behind would be in the picture.
RECT FrameOnScreen(const Window& window) {
    const RECT bounds = window.Bounds();
    const RECT client = window.ClientBounds();
    const COLORREF line = ScreenColour({client.left - 1, (client.top + client.bottom) / 2});
    // Beside the icon, the title and the buttons of the caption bar.
    const LONG column = client.left + (client.right - client.left) / 8;
    LONG top = client.top - 1;
    while (top > bounds.top && ScreenColour({column, top}) != line) {
        --top;
    }
    if (top == bounds.top || ScreenColour({column, client.bottom}) != line) {
        return bounds;
    }
    return {client.left - 1, top, client.right + 1, client.bottom + 1};
}

/// A copy of a part of the screen.
class ScreenCopy {
  public:
    explicit ScreenCopy(const RECT& bounds)
        : width_(bounds.right - bounds.left), height_(bounds.bottom - bounds.top) {
        const HDC screen = GetDC(nullptr);
        const HDC memory = CreateCompatibleDC(screen);
        bitmap_ = CreateCompatibleBitmap(screen, width_, height_);
        const HGDIOBJ before = SelectObject(memory, bitmap_);
        BitBlt(memory, 0, 0, width_, height_, screen, bounds.left, bounds.top, SRCCOPY);
        SelectObject(memory, before);
        DeleteDC(memory);
        ReleaseDC(nullptr, screen);
    }
    ~ScreenCopy() { DeleteObject(bitmap_); }
    ScreenCopy(const ScreenCopy&) = delete;
    ScreenCopy& operator=(const ScreenCopy&) = delete;
    ScreenCopy(ScreenCopy&&) = delete;
    ScreenCopy& operator=(ScreenCopy&&) = delete;

    [[nodiscard]] HBITMAP Bitmap() const { return bitmap_; }
    [[nodiscard]] std::vector<DWORD> Pixels() const {
        std::vector<DWORD> pixels(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
        BITMAPINFO info{};
        info.bmiHeader = {.biSize = sizeof info.bmiHeader,
                          .biWidth = width_,
                          .biHeight = height_,
                          .biPlanes = 1,
                          .biBitCount = 32,
                          .biCompression = BI_RGB,
                          .biSizeImage = 0,
                          .biXPelsPerMeter = 0,
                          .biYPelsPerMeter = 0,
                          .biClrUsed = 0,
                          .biClrImportant = 0};
        const HDC screen = GetDC(nullptr);
        GetDIBits(screen, bitmap_, 0, static_cast<UINT>(height_), pixels.data(), &info, DIB_RGB_COLORS);
        ReleaseDC(nullptr, screen);
        return pixels;
    }

  private:
    int width_;
    int height_;
    HBITMAP bitmap_ = nullptr;
};

/// Comes back when the window has looked the same for a few looks: the window manager draws its frame in its
/// own time. What never rests is pictured as it is.
void WaitUntilAtRest(const Window& window) {
    constexpr int kEnoughLooks = 5;
    constexpr unsigned kLimitMilliseconds = 5000;
    int looks = 0;
    std::vector<DWORD> before;
    static_cast<void>(WaitUntil(
        [&] {
            std::vector<DWORD> now = ScreenCopy(window.Bounds()).Pixels();
            looks = now == before ? looks + 1 : 0;
            before = std::move(now);
            return looks == kEnoughLooks;
        },
        kLimitMilliseconds));
}

}  // namespace

int ScreenDpi() {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi;
}

COLORREF ScreenColour(POINT point) {
    const HDC screen = GetDC(nullptr);
    const COLORREF colour = GetPixel(screen, point.x, point.y);
    ReleaseDC(nullptr, screen);
    return colour;
}

bool IsPictureScale() {
    const int dpi = ScreenDpi();
    return dpi == 96 || dpi == 144 || dpi == 192;
}

std::ptrdiff_t CountPoints(const RECT& place, COLORREF colour) {
    const std::vector<DWORD> pixels = ScreenCopy(place).Pixels();
    constexpr DWORD kColours = 0xFFFFFF;
    const DWORD wanted = RGB(GetBValue(colour), GetGValue(colour), GetRValue(colour));
    return std::count_if(pixels.begin(), pixels.end(),
                         [&](DWORD pixel) { return (pixel & kColours) == wanted; });
}

void KeepPicture(const Window& window, const std::string& name) {
    RedrawWindow(window.Handle(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    window.Send(WM_NULL);
    KeepPictureAsPainted(window, name);
}

void KeepPictureAsPainted(const Window& window, const std::string& name) {
    if (!IsPictureScale()) {
        return;
    }
    const std::filesystem::path folder = PictureFolder();
    std::filesystem::create_directories(folder);
    const std::filesystem::path file = folder / (name + "_" + std::to_string(ScreenDpi()) + ".png");

    WaitUntilAtRest(window);
    const ScreenCopy copy(FrameOnScreen(window));
    bool isKept = false;
    {
        const PictureLibrary library;
        Gdiplus::Bitmap picture(copy.Bitmap(), nullptr);
        isKept = picture.Save(file.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
    }
    if (!isKept) {
        throw Failure(L"The picture could not be kept: " + file.wstring());
    }
}

}  // namespace corvane::test
