#pragma once

#include "app/reporting/error_reporter.h"
#include "certs/filter_form.h"
#include "toolkit/dialog.h"

namespace corvane {

/// The search filter: which attribute of an owner is looked for, and the sample for it.
class CFilterDlg final : public toolkit::Dialog {
  public:
    CFilterDlg(HWND owner, ErrorReporter& reporter);

    /// The choice, to be taken after a run that ended with OK.
    [[nodiscard]] const FilterForm& Form() const { return form_; }

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    void OnOk() override;
    void ExchangeFields(toolkit::DataExchange& exchange) override;

  private:
    void EnableOk();

    ErrorReporter& reporter_;
    FilterForm form_;
};

}  // namespace corvane
