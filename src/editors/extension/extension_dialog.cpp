#include "editors/extension/extension_dialog.h"

#include "reporting/unsaved_changes.h"
#include "res/ids.h"

namespace corvane::editors {

CAddExtDlg::CAddExtDlg(HWND owner, reporting::ErrorReporter& reporter)
    : reporting::ProductDialog(IDD_EXTENSION, owner, reporter) {}

bool CAddExtDlg::OnInitDialog() {
    SetWindowTextW(Window(), kExtensionTitle);
    SetControlText(IDC_EXTENSION_LABEL, kExtensionTitle);
    SetControlText(IDCANCEL, kExtensionExitText);
    return true;
}

void CAddExtDlg::OnOk() {
    TakeData();
    if (const auto refusal = form_.Confirm(Reporter().Text())) {
        Show(*refusal);
        return;
    }
    EndModal(IDOK);
}

const wchar_t* CAddExtDlg::UnsavedInputReason() {
    return reporting::ReasonAgainstEnd(!FieldsAsShown(form_.text).empty());
}

void CAddExtDlg::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Text(IDC_EXTENSION_EDIT, form_.text);
}

}  // namespace corvane::editors
