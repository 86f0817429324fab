#pragma once

#include <string>

#include "reporting/product_dialog.h"

namespace corvane::reporting {

/// Shows a long text to read, with "OK" as the only way out, in a window that can be resized.
class WarningBox final : public ProductDialog {
  public:
    WarningBox(HWND owner, bool isErrorMode, ErrorReporter& reporter);

    std::wstring text;        ///< Lines broken by CR LF.
    std::wstring title;       ///< The caption; "Warning:" when empty.
    bool isInfoMode = false;  ///< Shows the information icon, whatever the error mode says.

  protected:
    bool OnInitDialog() override;
    void OnOk() override {}  // "Continue" is not offered.
    void OnMinimumMaximumInfo(MINMAXINFO& info) override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    bool isErrorMode_;
};

}  // namespace corvane::reporting
