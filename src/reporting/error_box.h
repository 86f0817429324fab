#pragma once

#include <string>

#include "reporting/product_dialog.h"

namespace corvane::reporting {

/// A short refusal of one line with an icon of its own.
class ErrBox final : public ProductDialog {
  public:
    /// The icon stays the caller's and must outlive the run.
    ErrBox(HWND owner, std::wstring text, HICON icon, ErrorReporter& reporter);

  protected:
    bool OnInitDialog() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    std::wstring text_;
    HICON icon_;
};

}  // namespace corvane::reporting
