#include "toolkit/button_icons.h"

#include <utility>

namespace toolkit {

void ButtonIcons::Show(HWND dialog, UINT dotsPerInch, int buttonId, int iconId) {
    UniqueIcon icon =
        LoadIconResource(iconId, MulDiv(size_, static_cast<int>(dotsPerInch), USER_DEFAULT_SCREEN_DPI));
    SendDlgItemMessageW(dialog, buttonId, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon.get()));
    // Only now may the icon shown until here go.
    icons_[buttonId] = {iconId, std::move(icon)};
}

void ButtonIcons::Rescale(HWND dialog, UINT dotsPerInch) {
    for (const auto& [buttonId, shown] : icons_) {
        Show(dialog, dotsPerInch, buttonId, shown.iconId);
    }
}

}  // namespace toolkit
