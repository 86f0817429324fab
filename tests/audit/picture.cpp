#include "tests/audit/picture.h"

#include <objbase.h>

#include <algorithm>
#include <array>
#include <filesystem>

// The picture library's headers want these two by their bare names.
using std::max;
using std::min;

#include <gdiplus.h>

#include "tests/driver/failure.h"

namespace audit {
namespace {

constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

class PictureLibrary {
  public:
    PictureLibrary() {
        const Gdiplus::GdiplusStartupInput input;
        if (Gdiplus::GdiplusStartup(&token_, &input, nullptr) != Gdiplus::Ok) {
            throw driver::Failure(L"The system's picture library does not start.");
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
        throw driver::Failure(L"CORVANE_PICTURES names no folder for the pictures.");
    }
    std::wstring path = folder.data();
    // A cross-built test sees the building machine's files through drive Z.
    return path.front() == L'/' ? L"Z:" + path : path;
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

void KeepPicture(const driver::Window& window, const std::string& name) {
    const std::filesystem::path folder = PictureFolder();
    std::filesystem::create_directories(folder);
    const std::filesystem::path file = folder / (name + "_" + std::to_string(ScreenDpi()) + ".png");

    RedrawWindow(window.Handle(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    window.Send(WM_NULL);
    const RECT bounds = window.Bounds();
    const int width = bounds.right - bounds.left;
    const int height = bounds.bottom - bounds.top;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, bounds.left, bounds.top, SRCCOPY);
    SelectObject(memory, before);

    bool isKept = false;
    {
        const PictureLibrary library;
        Gdiplus::Bitmap picture(bitmap, nullptr);
        isKept = picture.Save(file.c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
    }
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    if (!isKept) {
        throw driver::Failure(L"The picture could not be kept: " + file.wstring());
    }
}

}  // namespace audit
