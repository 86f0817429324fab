#include "certificates/session/wait_dialog.h"

#include <utility>

#include "reporting/message_styles.h"
#include "res/ids.h"

namespace corvane::certificates {

namespace {

store::WindowRectangle NormalPosition(HWND window) {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    const RECT& place = placement.rcNormalPosition;
    return {.top = place.top, .bottom = place.bottom, .left = place.left, .right = place.right};
}

}  // namespace

AwaitDlg::AwaitDlg(HWND owner, std::wstring text, reporting::ErrorReporter& reporter)
    : reporting::ProductDialog(IDD_WAIT, owner, reporter), owner_(owner), text_(std::move(text)) {}

bool AwaitDlg::ShowPainted() {
    if (!CreateModeless()) {
        return false;
    }
    MoveToMiddle(owner_);
    ShowWindow(Window(), SW_SHOWNOACTIVATE);
    RedrawWindow(Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    // What is drawn may be collected first, and nobody would hand it on during the call.
    GdiFlush();
    return true;
}

void AwaitDlg::MoveToMiddle(HWND owner) const {
    // Twice, because on the way to a screen of another scale its size changes.
    for (int pass = 0; pass < 2; ++pass) {
        const ScreenPoint place = WaitWindowPlace(NormalPosition(owner), NormalPosition(Window()));
        SetWindowPos(Window(), nullptr, place.left, place.top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

bool AwaitDlg::OnInitDialog() {
    SetWindowTextW(Window(), reporting::AppTitle);
    PutData();
    // The focus stays in the window behind, where it is wanted again in a moment.
    return false;
}

void AwaitDlg::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Text(IDC_WAIT_TEXT, text_);
}

AwaitWindow::~AwaitWindow() {
    Destroy();
}

void AwaitWindow::Show(toolkit::WindowHandle parent, const std::wstring& text) {
    formerCursor_ = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    dialog_ = std::make_unique<AwaitDlg>(parent, text, reporter_);
    dialog_->ShowPainted();
}

void AwaitWindow::Destroy() {
    if (dialog_ != nullptr) {
        dialog_.reset();
        SetCursor(formerCursor_);
    }
}

}  // namespace corvane::certificates
