#include "editors/mask/mask_dialog.h"

#include <utility>

#include "reporting/unsaved_changes.h"
#include "res/ids.h"
#include "toolkit/controls/choice_controls.h"

namespace corvane::editors {

AddMask::AddMask(HWND owner, MaskForm form, reporting::ErrorReporter& reporter)
    : reporting::ProductDialog(IDD_MASK, owner, reporter), form_(std::move(form)) {}

bool AddMask::OnInitDialog() {
    SetWindowTextW(Window(), kMaskTitle);
    SetControlText(IDCANCEL, kMaskExitText);
    toolkit::ComboBox(Control(IDC_MASK_COMBO)).Fill(form_.suggestions);
    PutData();
    openedText_ = FieldsAsShown(form_.text);
    return true;
}

void AddMask::OnOk() {
    TakeData();
    if (const auto refusal = form_.Check()) {
        Show(*refusal);
        return;
    }
    EndModal(IDOK);
}

const wchar_t* AddMask::UnsavedInputReason() {
    return reporting::ReasonAgainstEnd(FieldsAsShown(form_.text) != openedText_);
}

void AddMask::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Text(IDC_MASK_COMBO, form_.text);
}

}  // namespace corvane::editors
