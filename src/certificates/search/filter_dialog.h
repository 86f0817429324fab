#pragma once

#include "certificates/search/filter_form.h"
#include "reporting/error_reporter.h"
#include "toolkit/dialog/dialog.h"

namespace corvane::certificates {

/// The search filter: which attribute of an owner is looked for, and the sample for it.
class CFilterDlg final : public toolkit::Dialog {
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

    reporting::ErrorReporter& reporter_;
    FilterForm form_;
};

}  // namespace corvane::certificates
