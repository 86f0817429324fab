#include "editors/profile/cs_profile_choice_dialog.h"

#include <utility>

#include "reporting/unsaved_changes.h"
#include "res/ids.h"
#include "toolkit/controls/choice_controls.h"

namespace corvane::editors {

CAddCSProfDlg::CAddCSProfDlg(HWND owner, store::TextList catalogue, reporting::ErrorReporter& reporter)
    : reporting::ProductDialog(IDD_CS_PROFILE_CHOICE, owner, reporter),
      form_{.catalogue = std::move(catalogue)} {}

bool CAddCSProfDlg::OnInitDialog() {
    SetWindowTextW(Window(), kCsProfileChoiceTitle);
    SetControlText(IDC_CS_PROFILE_CHOICE_LABEL, kCsProfileChoiceLabelText);
    SetControlText(IDCANCEL, kCsProfileChoiceExitText);
    toolkit::ComboBox(Control(IDC_CS_PROFILE_CHOICE_COMBO)).Fill(form_.catalogue);
    PutData();
    openedIndex_ = FieldsAsShown(form_.index);
    return true;
}

void CAddCSProfDlg::OnOk() {
    TakeData();
    if (const auto refusal = form_.Check()) {
        Show(*refusal);
        return;
    }
    EndModal(IDOK);
}

const wchar_t* CAddCSProfDlg::UnsavedInputReason() {
    return reporting::ReasonAgainstEnd(FieldsAsShown(form_.index) != openedIndex_);
}

void CAddCSProfDlg::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Choice(IDC_CS_PROFILE_CHOICE_COMBO, form_.index);
}

}  // namespace corvane::editors
