#include "toolkit/window_placement.h"

namespace toolkit {

void PlaceHiddenWindow(HWND window, const RECT& restored, const std::function<UINT()>& dotsPerInch) {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    placement.rcNormalPosition = restored;
    placement.showCmd = SW_HIDE;
    const UINT before = dotsPerInch();
    SetWindowPlacement(window, &placement);
    if (dotsPerInch() != before) {
        SetWindowPlacement(window, &placement);
    }
}

void ShowNeverMaximised(HWND window) {
    ShowWindow(window, SW_SHOWNORMAL);
    if (IsZoomed(window) != FALSE) {
        ShowWindow(window, SW_RESTORE);
    }
}

}  // namespace toolkit
