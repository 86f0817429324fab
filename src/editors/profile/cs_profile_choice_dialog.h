#pragma once

#include <string>

#include "editors/profile/cs_profile_choice_form.h"
#include "reporting/product_dialog.h"

namespace corvane::editors {

/// Asks for one of the provider's CS profiles.
class CAddCSProfDlg final : public reporting::ProductDialog {
  public:
    CAddCSProfDlg(HWND owner, store::TextList catalogue, reporting::ErrorReporter& reporter);

    /// The chosen name, to be taken after a run that ended with OK.
    [[nodiscard]] std::wstring Name() const { return form_.Name(); }

  protected:
    bool OnInitDialog() override;
    void OnOk() override;
    const wchar_t* UnsavedInputReason() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    CsProfileChoiceForm form_;
    int openedIndex_ = 0;
};

}  // namespace corvane::editors
