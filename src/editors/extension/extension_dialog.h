#pragma once

#include <string>

#include "editors/extension/extension_form.h"
#include "reporting/product_dialog.h"

namespace corvane::editors {

/// Asks for one file name extension.
class CAddExtDlg final : public reporting::ProductDialog {
  public:
    CAddExtDlg(HWND owner, reporting::ErrorReporter& reporter);

    /// The extension, to be taken after a run that ended with OK.
    [[nodiscard]] const std::wstring& Extension() const { return form_.text; }

  protected:
    bool OnInitDialog() override;
    void OnOk() override;
    const wchar_t* UnsavedInputReason() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    ExtensionForm form_;
};

}  // namespace corvane::editors
