#include "reporting/warning_box.h"

#include "res/ids.h"
#include "toolkit/dialog/window_geometry.h"

namespace corvane::reporting {

namespace {

int IconOf(bool isErrorMode, bool isInfoMode) {
    if (isInfoMode) {
        return IDI_INFO_MODE;
    }
    return isErrorMode ? IDI_ERROR_MODE : IDI_WARNING_BOX;
}

}  // namespace

WarningBox::WarningBox(HWND owner, bool isErrorMode, ErrorReporter& reporter)
    : ProductDialog(IDD_WARNING_BOX, owner, reporter), isErrorMode_(isErrorMode) {}

bool WarningBox::OnInitDialog() {
    using enum toolkit::GrowthShare;
    LetControlsFollow({
        {.controlId = IDOK, .moveX = kAll, .moveY = kAll},
        {.controlId = IDCANCEL, .moveX = kAll, .moveY = kAll},
        {.controlId = IDC_WARNING_BOX_EDIT, .growX = kAll, .growY = kAll},
    });
    SetWindowIcon(IconOf(isErrorMode_, isInfoMode));
    EnableControl(IDOK, false);
    ShowWindow(Control(IDOK), SW_HIDE);
    SetWindowTextW(Window(), title.empty() ? L"Warning:" : title.c_str());
    PutData();
    // On the text, the focus would select all of it.
    SetFocus(Control(IDCANCEL));
    return false;
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

void WarningBox::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Text(IDC_WARNING_BOX_EDIT, text);
}

}  // namespace corvane::reporting
