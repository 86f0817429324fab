#include "toolkit/dialog/template_scale.h"

#include <algorithm>
#include <array>
#include <utility>

#include "toolkit/dialog/window_geometry.h"

namespace corvane::toolkit {

namespace {

constexpr int kPointsPerInch = 72;
constexpr int kUnitsAcross = 4;
constexpr int kUnitsDown = 8;

bool IsOfClass(HWND window, const wchar_t* name) {
    std::array<wchar_t, 32> own = {};
    GetClassNameW(window, own.data(), static_cast<int>(own.size()));
    return CompareStringOrdinal(own.data(), -1, name, -1, TRUE) == CSTR_EQUAL;
}

/// The place of a control with the size that its template gives it: of a combo box that is the one with its
/// list dropped down.
RECT TemplatePlaceOf(HWND control) {
    RECT place = PlaceOf(control);
    RECT dropped = {};
    if (IsOfClass(control, L"ComboBox") &&
        SendMessageW(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped)) != FALSE) {
        place.bottom = place.top + (dropped.bottom - dropped.top);
    }
    return place;
}

/// What the dialog manager takes for four horizontal and eight vertical dialog units of a font.
SIZE DialogUnitsOf(HFONT font) {
    constexpr wchar_t kLetters[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kLetterCount = 52;
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ before = SelectObject(screen, font);
    SIZE letters = {};
    TEXTMETRICW metrics = {};
    GetTextExtentPoint32W(screen, kLetters, kLetterCount, &letters);
    GetTextMetricsW(screen, &metrics);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    return {(letters.cx / (kLetterCount / 2) + 1) / 2, metrics.tmHeight};
}

}  // namespace

void TemplateScale::Remember(HWND dialog, UINT dotsPerInch) {
    dialog_ = dialog;
    templateDotsPerInch_ = dotsPerInch_ = dotsPerInch;
    RECT units = {0, 0, kUnitsAcross, kUnitsDown};
    MapDialogRect(dialog, &units);
    templateUnits_ = units_ = {units.right, units.bottom};
    RECT client = {};
    GetClientRect(dialog, &client);
    client_ = {client.right, client.bottom};
    templateFont_ = reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0));
    font_.reset();
    pictures_.clear();
    controls_.clear();
    for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        controls_.push_back({child, TemplatePlaceOf(child)});
    }
}

TemplateScale::UniqueFont TemplateScale::FontAt(UINT dotsPerInch) const {
    LOGFONTW description = {};
    if (dotsPerInch == templateDotsPerInch_ || templateFont_ == nullptr ||
        GetObjectW(templateFont_, sizeof description, &description) == 0) {
        return nullptr;
    }
    // By way of its size in points, as a template names it.
    const int points = MulDiv(description.lfHeight, kPointsPerInch, static_cast<int>(templateDotsPerInch_));
    description.lfHeight = MulDiv(points, static_cast<int>(dotsPerInch), kPointsPerInch);
    description.lfWidth = 0;
    return UniqueFont(CreateFontIndirectW(&description));
}

RECT TemplateScale::Scaled(const RECT& place) const {
    if (dotsPerInch_ == templateDotsPerInch_) {
        return place;
    }
    const auto across = [this](LONG pixels) {
        return MulDiv(MulDiv(pixels, kUnitsAcross, templateUnits_.cx), units_.cx, kUnitsAcross);
    };
    const auto down = [this](LONG pixels) {
        return MulDiv(MulDiv(pixels, kUnitsDown, templateUnits_.cy), units_.cy, kUnitsDown);
    };
    const int left = across(place.left);
    const int top = down(place.top);
    return {left, top, left + across(place.right - place.left), top + down(place.bottom - place.top)};
}

void TemplateScale::ShowAt(UINT dotsPerInch) {
    dotsPerInch_ = dotsPerInch;
    UniqueFont font = FontAt(dotsPerInch);
    const HFONT shownFont = font != nullptr ? font.get() : templateFont_;
    units_ = font != nullptr ? DialogUnitsOf(font.get()) : templateUnits_;
    for (const Control& control : controls_) {
        SendMessageW(control.window, WM_SETFONT, reinterpret_cast<WPARAM>(shownFont), FALSE);
        const RECT place = Scaled(control.place);
        SetWindowPos(control.window, nullptr, place.left, place.top, place.right - place.left,
                     place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    // Only now may the font shown until here go.
    font_ = std::move(font);
    ShowPictures();
}

void TemplateScale::ShowPictures() {
    const int size = SystemMetric(SM_CXICON, dotsPerInch_);
    for (const Control& control : controls_) {
        const auto style = static_cast<DWORD>(GetWindowLongPtrW(control.window, GWL_STYLE));
        if (!IsOfClass(control.window, L"Static") || (style & SS_TYPEMASK) != SS_ICON) {
            continue;
        }
        auto picture = std::find_if(pictures_.begin(), pictures_.end(), [&control](const Picture& candidate) {
            return candidate.control == control.window;
        });
        if (picture == pictures_.end()) {
            const auto icon = reinterpret_cast<HICON>(SendMessageW(control.window, STM_GETICON, 0, 0));
            picture = pictures_.insert(picture, {control.window, icon, nullptr});
        }
        // Loaded again from the resource that it came from, which has a picture for each scale.
        UniqueIcon icon(
            static_cast<HICON>(CopyImage(picture->original, IMAGE_ICON, size, size, LR_COPYFROMRESOURCE)));
        if (icon != nullptr) {
            SendMessageW(control.window, STM_SETICON, reinterpret_cast<WPARAM>(icon.get()), 0);
            picture->shown = std::move(icon);
        }
    }
}

SIZE TemplateScale::ClientSize() const {
    const RECT client = Scaled({0, 0, client_.cx, client_.cy});
    return {client.right, client.bottom};
}

void TemplateScale::PlaceWindow(const RECT& suggested) const {
    const auto place = [&suggested, this](int width, int height) {
        SetWindowPos(dialog_, nullptr, suggested.left, suggested.top, width, height,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    };
    if ((GetWindowLongPtrW(dialog_, GWL_STYLE) & WS_THICKFRAME) != 0) {
        place(suggested.right - suggested.left, suggested.bottom - suggested.top);
        return;
    }
    const SIZE wanted = ClientSize();
    // Once more where the frame, too, has another size at this scale.
    for (int pass = 0; pass < 2; ++pass) {
        RECT frame = {};
        RECT client = {};
        GetWindowRect(dialog_, &frame);
        GetClientRect(dialog_, &client);
        if (pass == 0 || client.right != wanted.cx || client.bottom != wanted.cy) {
            place(wanted.cx + (frame.right - frame.left) - client.right,
                  wanted.cy + (frame.bottom - frame.top) - client.bottom);
        }
    }
}

}  // namespace corvane::toolkit
