#include "reporting/error_box.h"

#include <utility>

#include "res/ids.h"

namespace corvane::reporting {

ErrBox::ErrBox(HWND owner, std::wstring text, HICON icon, ErrorReporter& reporter)
    : ProductDialog(IDD_ERROR_BOX, owner, reporter), text_(std::move(text)), icon_(icon) {}

bool ErrBox::OnInitDialog() {
    SetWindowTextW(Window(), L"Error");
    SendDlgItemMessageW(Window(), IDC_ERROR_BOX_ICON, STM_SETICON, reinterpret_cast<WPARAM>(icon_), 0);
    PutData();
    return true;
}

void ErrBox::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Text(IDC_ERROR_BOX_TEXT, text_);
}

}  // namespace corvane::reporting
