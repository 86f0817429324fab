#include "app/reporting/warning_box.h"

#include "res/ids.h"
#include "toolkit/control_place.h"
#include "toolkit/window_scale.h"

namespace corvane {

WarningBox::WarningBox(HWND owner, bool isErrorMode)
    : Dialog(IDD_WARNING_BOX, owner), isErrorMode_(isErrorMode) {}

bool WarningBox::OnInitDialog() {
    RememberSize();
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

void WarningBox::RememberSize() {
    RECT client = {};
    GetClientRect(Window(), &client);
    tracker_.Remember(client.right, client.bottom);
}

void WarningBox::OnSize(WPARAM kind, int width, int height) {
    if (kind != SIZE_RESTORED) {
        return;
    }
    const toolkit::ResizeTracker::Change change = tracker_.ChangeTo(width, height);
    if (Control(IDCANCEL) == nullptr) {
        return;
    }
    for (const int button : {IDOK, IDCANCEL}) {
        toolkit::ChangePlace(Control(button), {.moveX = change.width, .moveY = change.height});
    }
    toolkit::ChangePlace(Control(IDC_WARNING_BOX_EDIT), {.growX = change.width, .growY = change.height});
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
    RememberSize();
    ShowIcons();
}

void WarningBox::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Text(IDC_WARNING_BOX_EDIT, text);
}

}  // namespace corvane
