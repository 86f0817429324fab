#include "certificates/search/filter_dialog.h"

#include "res/ids.h"
#include "toolkit/controls/choice_controls.h"

namespace corvane::certificates {

CFilterDlg::CFilterDlg(HWND owner, reporting::ErrorReporter& reporter)
    : reporting::ProductDialog(IDD_FILTER, owner, reporter) {}

bool CFilterDlg::OnInitDialog() {
    SetWindowTextW(Window(), kFilterTitle);
    SetControlText(IDC_FILTER_FIELD_LABEL, kFilterFieldLabel);
    SetControlText(IDC_FILTER_SAMPLE_LABEL, kFilterSampleLabel);
    toolkit::ComboBox(Control(IDC_FILTER_FIELD_COMBO)).Fill(FilterForm::FieldChoices());
    PutData();
    EnableOk();
    return true;
}

bool CFilterDlg::OnCommand(int controlId, UINT notificationCode) {
    if (controlId == IDC_FILTER_SAMPLE_EDIT && notificationCode == EN_CHANGE) {
        EnableOk();
        return true;
    }
    return reporting::ProductDialog::OnCommand(controlId, notificationCode);
}

void CFilterDlg::EnableOk() {
    TakeData();
    EnableControl(IDOK, FilterForm::IsOkEnabled(form_.sample));
}

void CFilterDlg::OnOk() {
    TakeData();
    // Enter comes here even while the button is disabled.
    if (!FilterForm::IsOkEnabled(form_.sample)) {
        return;
    }
    if (const auto refusal = form_.Check()) {
        Show(*refusal);
        toolkit::ComboBox(Control(IDC_FILTER_FIELD_COMBO)).DropDown();
        return;
    }
    form_.Commit();
    EndModal(IDOK);
}

void CFilterDlg::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Choice(IDC_FILTER_FIELD_COMBO, form_.fieldIndex);
    exchange.Text(IDC_FILTER_SAMPLE_EDIT, form_.sample);
}

}  // namespace corvane::certificates
