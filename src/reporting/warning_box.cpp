#include "reporting/warning_box.h"

#include "res/ids.h"
#include "toolkit/dialog/window_geometry.h"

namespace corvane::reporting {

WarningBox::WarningBox(HWND owner, bool isErrorMode)
    : toolkit::Dialog(IDD_WARNING_BOX, owner), isErrorMode_(isErrorMode) {}

bool WarningBox::OnInitDialog() {
    using enum toolkit::GrowthShare;
    layout_.Remember(Window(), {
                                   {.controlId = IDOK, .moveX = kAll, .moveY = kAll},
                                   {.controlId = IDCANCEL, .moveX = kAll, .moveY = kAll},
                                   {.controlId = IDC_WARNING_BOX_EDIT, .growX = kAll, .growY = kAll},
                               });
    ShowIcons();
    EnableControl(IDOK, false);
    ShowWindow(Control(IDOK), SW_HIDE);
    SetWindowTextW(Window(), title.empty() ? L"Warning:" : title.c_str());
    PutData();
    // On the text, the focus would select all of it.
    SetFocus(Control(IDCANCEL));
    return false;
}

void WarningBox::ShowIcons() {
    int icon = IDI_WARNING_BOX;
    if (isErrorMode_) {
        icon = IDI_ERROR_MODE;
    }
    if (isInfoMode) {
        icon = IDI_INFO_MODE;
    }
    toolkit::ShowWindowIcons(Window(), DotsPerInch(), icon, largeIcon_, smallIcon_);
}

void WarningBox::OnSize(WPARAM kind, int width, int height) {
    if (kind != SIZE_RESTORED) {
        return;
    }
    layout_.Arrange(width, height);
    InvalidateRect(Window(), nullptr, TRUE);
}

void WarningBox::OnMinimumMaximumInfo(MINMAXINFO& info) {
    const HWND button = Control(IDCANCEL);
    if (button == nullptr) {
        return;
    }
    RECT place = {};
    GetWindowRect(button, &place);
    const UINT dotsPerInch = DotsPerInch();
    info.ptMinTrackSize.x =
        2 * (toolkit::SystemMetric(SM_CXVSCROLL, dotsPerInch) + 3 * (place.right - place.left));
    info.ptMinTrackSize.y =
        2 * (toolkit::SystemMetric(SM_CYVSCROLL, dotsPerInch) + 5 * (place.bottom - place.top));
}

void WarningBox::OnScaleChanged() {
    layout_.Rescale(TemplateClientSize());
    ShowIcons();
}

void WarningBox::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Text(IDC_WARNING_BOX_EDIT, text);
}

}  // namespace corvane::reporting
