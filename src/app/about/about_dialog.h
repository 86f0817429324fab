#pragma once

#include <string>

#include "reporting/product_dialog.h"

namespace corvane::app {

/// The about box.
class CAboutDlg final : public reporting::ProductDialog {
  public:
    CAboutDlg(HWND owner, reporting::ErrorReporter& reporter);

  protected:
    bool OnInitDialog() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    std::wstring makerText_;
    std::wstring productText_;
    std::wstring versionText_;
};

}  // namespace corvane::app
