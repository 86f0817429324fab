#pragma once

#include <string>

#include "toolkit/dialog/dialog.h"

namespace corvane::app {

/// The about box.
class CAboutDlg final : public toolkit::Dialog {
  public:
    explicit CAboutDlg(HWND owner);

  protected:
    bool OnInitDialog() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    std::wstring makerText_;
    std::wstring productText_;
    std::wstring versionText_;
};

}  // namespace corvane::app
