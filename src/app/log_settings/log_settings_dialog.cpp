#include "app/log_settings/log_settings_dialog.h"

#include <optional>

#include "reporting/unsaved_changes.h"
#include "res/ids.h"
#include "toolkit/dialog/data_exchange.h"

namespace corvane::app {

CConflictDlg::CConflictDlg(HWND owner, const std::wstring& logPath, std::int32_t logFileSize,
                           const Services& services)
    : reporting::ProductDialog(IDD_LOG_SETTINGS, owner, services.reporter),
      services_(services),
      form_(logPath, logFileSize),
      opened_(form_),
      sizeLabel_(kLogSizeLabelText) {}

bool CConflictDlg::OnInitDialog() {
    SetWindowTextW(Window(), kLogSettingsTitle);
    SetControlText(IDCANCEL, kLogSettingsExitText);
    SetControlText(IDC_LOG_FOLDER_BUTTON, kLogFolderButtonText);
    PutData();
    opened_ = FieldsAsShown(form_);
    return true;
}

bool CConflictDlg::OnCommand(int controlId, UINT notificationCode) {
    if (controlId == IDC_LOG_FOLDER_BUTTON && notificationCode == BN_CLICKED) {
        ChooseFolder();
        return true;
    }
    if (controlId == IDC_LOG_SIZE_EDIT && notificationCode == EN_CHANGE) {
        OnSizeChanged();
        return true;
    }
    return reporting::ProductDialog::OnCommand(controlId, notificationCode);
}

void CConflictDlg::ChooseFolder() {
    const std::optional<std::wstring> folder =
        reporting::PathOrReport(services_.shell.PickFolder(Window()), services_.reporter, Window());
    if (!folder) {
        return;
    }
    TakeData();
    if (const auto report = form_.ChooseFolder(*folder, services_.files)) {
        Show(*report);
    }
    PutData();
}

void CConflictDlg::OnSizeChanged() {
    TakeData();
    const std::optional<std::wstring> correction =
        form_.OnSizeTextChanged(toolkit::WindowText(Control(IDC_LOG_SIZE_EDIT)));
    if (correction) {
        CorrectTypedText(IDC_LOG_SIZE_EDIT, *correction);
    }
}

void CConflictDlg::OnOk() {
    TakeData();
    if (const auto refusal = form_.Check(services_.files)) {
        Show(*refusal);
        return;
    }
    form_.Commit();
    PutData();
    EndModal(IDOK);
}

const wchar_t* CConflictDlg::UnsavedInputReason() {
    return reporting::ReasonAgainstEnd(!FieldsAsShown(form_).HasSameInput(opened_));
}

void CConflictDlg::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Text(IDC_LOG_FOLDER_EDIT, form_.editedPath);
    exchange.Text(IDC_LOG_SIZE_LABEL, sizeLabel_);
    exchange.Number(IDC_LOG_SIZE_EDIT, form_.logFileSize);
}

}  // namespace corvane::app
