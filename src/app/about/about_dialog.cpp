#include "app/about/about_dialog.h"

#include "app/about/about_text.h"
#include "res/ids.h"

namespace corvane::app {

CAboutDlg::CAboutDlg(HWND owner, reporting::ErrorReporter& reporter)
    : reporting::ProductDialog(IDD_ABOUT, owner, reporter),
      makerText_(kAboutMakerText),
      productText_(kAboutProductText),
      versionText_(AboutVersionText()) {}

bool CAboutDlg::OnInitDialog() {
    SetWindowTextW(Window(), kAboutTitle);
    PutData();
    return true;
}

void CAboutDlg::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Text(IDC_ABOUT_MAKER_TEXT, makerText_);
    exchange.Text(IDC_ABOUT_PRODUCT_TEXT, productText_);
    exchange.Text(IDC_ABOUT_VERSION_TEXT, versionText_);
}

}  // namespace corvane::app
