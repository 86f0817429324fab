#include "app/log_settings/log_settings_dialog.h"

#include <optional>

#include "reporting/unsaved_changes.h"
#include "res/ids.h"
#include "toolkit/dialog/data_exchange.h"

namespace corvane::app {

CConflictDlg::CConflictDlg(HWND owner, const std::wstring& logPath, std::int32_t logFileSize,
                           const Services& services)
    : toolkit::Dialog(IDD_LOG_SETTINGS, owner),
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
    return toolkit::Dialog::OnCommand(controlId, notificationCode);
}

void CConflictDlg::ChooseFolder() {
    const std::optional<std::wstring> folder =
        reporting::PathOrReport(services_.shell.PickFolder(Window()), services_.reporter, Window());
    if (!folder) {
        return;
    }
    TakeData();
    form_.ChooseFolder(*folder, services_.files, services_.reporter, Window());
    PutData();
}

void CConflictDlg::OnSizeChanged() {
    TakeData();
    const HWND edit = Control(IDC_LOG_SIZE_EDIT);
    const std::optional<std::wstring> correction = form_.OnSizeTextChanged(toolkit::WindowText(edit));
    if (!correction) {
        return;
    }
    PutData();
    // The caret goes behind the corrected number, where typing goes on.
    const std::size_t end = correction->size();
    SendMessageW(edit, EM_SETSEL, end, static_cast<LPARAM>(end));
}

void CConflictDlg::OnOk() {
    TakeData();
    const std::optional<LogSettingsField> refused =
        form_.Confirm(services_.files, services_.reporter, services_.messages, Window());
    if (refused) {
        FocusControl(*refused == LogSettingsField::kPath ? IDC_LOG_FOLDER_EDIT : IDC_LOG_SIZE_EDIT);
        return;
    }
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
