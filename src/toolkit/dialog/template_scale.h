#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "toolkit/system/icon.h"

namespace corvane::toolkit {

/// A dialog as its template made it, for showing it at another scale. Everything is reckoned from the
/// template, never from what is shown, so that no rounding adds up however often the scale changes, and the
/// first scale gives exactly the first places again.
///
/// It is laid out as the dialog manager would have done at the other scale, in the dialog units of the scaled
/// font, so that every text fits as it does in a dialog that is opened there.
class TemplateScale {
  public:
    /// Remembers the dialog before anything in it has moved, at this scale in dots per inch.
    void Remember(HWND dialog, UINT dotsPerInch);
    /// Shows the controls, their font and the pictures of static controls at this scale. What a dialog has
    /// arranged by itself is for it to arrange again.
    void ShowAt(UINT dotsPerInch);
    /// Puts the window where the system suggests. One that its user cannot resize gets the size that its
    /// template has at the scale that is shown.
    void PlaceWindow(const RECT& suggested) const;
    /// The client area of the template at the scale that is shown, in pixels.
    [[nodiscard]] SIZE ClientSize() const;

  private:
    struct Control {
        HWND window = nullptr;
        RECT place = {};
    };
    struct Picture {
        HWND control = nullptr;
        HICON original = nullptr;  ///< Belongs to whoever put it there.
        UniqueIcon shown;
    };
    struct FontDeleter {
        using pointer = HFONT;
        void operator()(HFONT font) const { DeleteObject(font); }
    };
    using UniqueFont = std::unique_ptr<HFONT, FontDeleter>;

    [[nodiscard]] UniqueFont FontAt(UINT dotsPerInch) const;
    [[nodiscard]] RECT Scaled(const RECT& place) const;
    void ShowPictures();

    HWND dialog_ = nullptr;
    UINT templateDotsPerInch_ = USER_DEFAULT_SCREEN_DPI;
    UINT dotsPerInch_ = USER_DEFAULT_SCREEN_DPI;
    SIZE templateUnits_ = {};  ///< Pixels of four horizontal and eight vertical dialog units.
    SIZE units_ = {};
    SIZE client_ = {};
    HFONT templateFont_ = nullptr;
    UniqueFont font_;
    std::vector<Control> controls_;
    std::vector<Picture> pictures_;
};

}  // namespace corvane::toolkit
