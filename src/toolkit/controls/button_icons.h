#pragma once

#include <windows.h>

#include <vector>

#include "toolkit/system/icon.h"

namespace corvane::toolkit {

/// The side of the icons on buttons, in pixels at 96 dots per inch.
inline constexpr int kButtonIconSize = 32;

/// The pictures of a dialog's icon buttons, kept for as long as the buttons show them. A button also keeps
/// its text, which is its accessible name.
class ButtonIcons {
  public:
    /// Shows the icon resource on the button, in place of the one it shows (BM_SETIMAGE).
    void Show(HWND dialog, UINT dotsPerInch, int buttonId, int iconId);
    /// Loads every icon again, for a dialog that came to another scale.
    void Rescale(HWND dialog, UINT dotsPerInch);

  private:
    struct ShownIcon {
        int buttonId = 0;
        int iconId = 0;
        UniqueIcon icon;
    };

    std::vector<ShownIcon> icons_;  ///< One for each button that shows an icon.
};

}  // namespace corvane::toolkit
