#pragma once

#include "certificates/search/filter_form.h"
#include "reporting/product_dialog.h"

namespace corvane::certificates {

/// The search filter: which attribute of an owner is looked for, and the sample for it.
class CFilterDlg final : public reporting::ProductDialog {
  public:
    CFilterDlg(HWND owner, reporting::ErrorReporter& reporter);

    /// The choice, to be taken after a run that ended with OK.
    [[nodiscard]] const FilterForm& Form() const { return form_; }

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    void OnOk() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    void EnableOk();

    FilterForm form_;
};

}  // namespace corvane::certificates
