#include "editors/cs_profile_choice_dialog.h"

#include <utility>

#include "app/reporting/unsaved_changes.h"
#include "res/ids.h"
#include "toolkit/combo_box.h"

namespace corvane {

CAddCSProfDlg::CAddCSProfDlg(HWND owner, TextList catalogue, ErrorReporter& reporter)
    : Dialog(IDD_CS_PROFILE_CHOICE, owner), form_{.catalogue = std::move(catalogue)}, reporter_(reporter) {}

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
    if (form_.Confirm(reporter_, Window())) {
        EndModal(IDOK);
    } else {
        FocusControl(IDC_CS_PROFILE_CHOICE_COMBO);
    }
}

const wchar_t* CAddCSProfDlg::UnsavedInputReason() {
    return ReasonAgainstEnd(FieldsAsShown(form_.index) != openedIndex_);
}

void CAddCSProfDlg::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Choice(IDC_CS_PROFILE_CHOICE_COMBO, form_.index);
}

}  // namespace corvane
