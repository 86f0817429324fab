#include "toolkit/controls/wrapped_caption.h"

#include <string>

#include "toolkit/dialog/data_exchange.h"
#include "toolkit/dialog/window_geometry.h"

namespace corvane::toolkit {

namespace {

// The frame of a button and the room between it and the caption, in pixels at 96 dots per inch.
constexpr int kCaptionMargin = 3;

/// Selects a font for as long as this object lives.
class FontSelector {
  public:
    FontSelector(HDC context, HFONT font) : context_(context), before_(SelectObject(context, font)) {}
    FontSelector(const FontSelector&) = delete;
    FontSelector& operator=(const FontSelector&) = delete;
    FontSelector(FontSelector&&) = delete;
    FontSelector& operator=(FontSelector&&) = delete;
    ~FontSelector() { SelectObject(context_, before_); }

  private:
    HDC context_;
    HGDIOBJ before_;
};

bool IsHighContrastOn() {
    HIGHCONTRASTW contrast = {};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != FALSE &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

}  // namespace

int CaptionColor(UINT itemState, bool isHighContrast) {
    if ((itemState & CDIS_DISABLED) != 0) {
        return COLOR_GRAYTEXT;
    }
    const bool isHotOrPressed = (itemState & (CDIS_HOT | CDIS_SELECTED)) != 0;
    return isHighContrast && isHotOrPressed ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT;
}

LRESULT DrawWrappedCaption(const NMCUSTOMDRAW& draw) {
    if (draw.dwDrawStage != CDDS_PREPAINT) {
        return CDRF_DODEFAULT;
    }
    const HWND button = draw.hdr.hwndFrom;
    const std::wstring caption = WindowText(button);
    const auto length = static_cast<int>(caption.size());
    const FontSelector font(draw.hdc, reinterpret_cast<HFONT>(SendMessageW(button, WM_GETFONT, 0, 0)));

    RECT inside = {};
    GetClientRect(button, &inside);
    const int margin =
        MulDiv(kCaptionMargin, static_cast<int>(WindowDotsPerInch(button)), USER_DEFAULT_SCREEN_DPI);
    InflateRect(&inside, -margin, -margin);
    RECT lines = inside;
    const int height = DrawTextW(draw.hdc, caption.c_str(), length, &lines, DT_CALCRECT | DT_WORDBREAK);
    lines = inside;
    lines.top += (inside.bottom - inside.top - height) / 2;
    lines.bottom = lines.top + height;

    const COLORREF colorBefore =
        SetTextColor(draw.hdc, GetSysColor(CaptionColor(draw.uItemState, IsHighContrastOn())));
    const int modeBefore = SetBkMode(draw.hdc, TRANSPARENT);
    // The lines may reach into the margin: a descender there is better than one cut off.
    DrawTextW(draw.hdc, caption.c_str(), length, &lines, DT_CENTER | DT_WORDBREAK | DT_NOCLIP);
    SetBkMode(draw.hdc, modeBefore);
    SetTextColor(draw.hdc, colorBefore);

    const bool showsFocus = (SendMessageW(button, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS) == 0;
    if ((draw.uItemState & CDIS_FOCUS) != 0 && showsFocus) {
        DrawFocusRect(draw.hdc, &inside);
    }
    return CDRF_SKIPDEFAULT;
}

}  // namespace corvane::toolkit
