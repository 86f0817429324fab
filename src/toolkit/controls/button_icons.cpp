#include "toolkit/controls/button_icons.h"

#include <algorithm>
#include <utility>

namespace corvane::toolkit {

void ButtonIcons::Show(HWND dialog, UINT dotsPerInch, int buttonId, int iconId) {
    UniqueIcon icon = LoadIconResource(
        iconId, MulDiv(kButtonIconSize, static_cast<int>(dotsPerInch), USER_DEFAULT_SCREEN_DPI));
    SendDlgItemMessageW(dialog, buttonId, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon.get()));
    // Only now may the icon shown until here go.
    const auto shown = std::find_if(icons_.begin(), icons_.end(), [buttonId](const ShownIcon& candidate) {
        return candidate.buttonId == buttonId;
    });
    if (shown == icons_.end()) {
        icons_.push_back({buttonId, iconId, std::move(icon)});
    } else {
        *shown = {buttonId, iconId, std::move(icon)};
    }
}

void ButtonIcons::Rescale(HWND dialog, UINT dotsPerInch) {
    for (const ShownIcon& shown : icons_) {
        Show(dialog, dotsPerInch, shown.buttonId, shown.iconId);
    }
}

}  // namespace corvane::toolkit
