#include "app/extensions_page/extensions_page_dialog.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>

#include "editors/extension/extension_dialog.h"
#include "reporting/unsaved_changes.h"
#include "res/ids.h"
#include "toolkit/controls/choice_controls.h"

namespace corvane::app {

namespace {

struct ExtensionEdit {
    int editId;
    int labelId;
    const wchar_t* label;
    ExtensionField field;
};

constexpr ExtensionEdit kExtensionEdits[] = {
    {IDC_CONFIG_SIGNED_EDIT, IDC_CONFIG_SIGNED_LABEL, L"Signed files:", &store::AppSettings::signedExtension},
    {IDC_CONFIG_DETACHED_EDIT, IDC_CONFIG_DETACHED_LABEL, L"Files with detached signature:",
     &store::AppSettings::detachedSignatureExtension},
    {IDC_CONFIG_ENCRYPTED_EDIT, IDC_CONFIG_ENCRYPTED_LABEL, L"Encrypted files:",
     &store::AppSettings::encryptedExtension},
    {IDC_CONFIG_BASE64_EDIT, IDC_CONFIG_BASE64_LABEL, L"Files in b64 format:",
     &store::AppSettings::base64Extension},
    {IDC_CONFIG_HASH_EDIT, IDC_CONFIG_HASH_LABEL, L"Hash files:", &store::AppSettings::hashExtension},
    {IDC_CONFIG_VERIFICATION_EDIT, IDC_CONFIG_VERIFICATION_LABEL,
     L"Files with signature verification report:", &store::AppSettings::verificationExtension},
    {IDC_CONFIG_ZIP_EDIT, IDC_CONFIG_ZIP_LABEL, L"ZIP archives:", &store::AppSettings::zipExtension},
    {IDC_CONFIG_GZIP_EDIT, IDC_CONFIG_GZIP_LABEL, L"GZIP archives:", &store::AppSettings::gzipExtension},
};

bool IsExtensionEdit(int controlId) {
    return std::any_of(std::begin(kExtensionEdits), std::end(kExtensionEdits),
                       [controlId](const ExtensionEdit& row) { return row.editId == controlId; });
}

}  // namespace

CConfigPage::CConfigPage(HWND owner, const store::AppSettings& settings, reporting::ErrorReporter& reporter)
    : reporting::ProductDialog(IDD_CONFIGURATIONS, owner, reporter), form_(settings) {}

bool CConfigPage::OnInitDialog() {
    SetUpTexts();
    SetIconButton(IDC_CONFIG_ADD_BUTTON, kAddExtensionText, IDI_ADD_ITEM);
    SetIconButton(IDC_CONFIG_DELETE_BUTTON, kDeleteExtensionText, IDI_DELETE_ITEM);
    toolkit::ListBox(Control(IDC_CONFIG_ADDITIONAL_LIST)).Fill(form_.settings.additionalExtensions);
    PutData();
    opened_ = SettingsAsShown();
    return true;
}

void CConfigPage::SetUpTexts() {
    SetWindowTextW(Window(), kConfigPageTitle);
    SetControlText(IDCANCEL, kConfigPageExitText);
    SetControlText(IDC_CONFIG_APPLY_BUTTON, kConfigPageApplyText);
    SetControlText(IDC_CONFIG_HEADING, L"Basic file name extensions");
    SetControlText(IDC_CONFIG_ADDITIONAL_LABEL, L"Additional file name extensions:");
    for (const ExtensionEdit& row : kExtensionEdits) {
        SetControlText(row.labelId, row.label);
    }
}

bool CConfigPage::OnCommand(int controlId, UINT notificationCode) {
    if (notificationCode == EN_CHANGE && IsExtensionEdit(controlId)) {
        form_.OnExtensionEdited();
        return true;
    }
    if (notificationCode == BN_CLICKED) {
        switch (controlId) {
            case IDC_CONFIG_ADD_BUTTON:
                AddTypedExtension();
                return true;
            case IDC_CONFIG_DELETE_BUTTON:
                DeleteSelectedExtension();
                return true;
            case IDC_CONFIG_APPLY_BUTTON:
                Apply();
                return true;
            default:
                break;
        }
    }
    return reporting::ProductDialog::OnCommand(controlId, notificationCode);
}

void CConfigPage::AddTypedExtension() {
    editors::CAddExtDlg dialog(Window(), Reporter());
    if (dialog.RunModal() != IDOK) {
        return;
    }
    const toolkit::ListBox list(Control(IDC_CONFIG_ADDITIONAL_LIST));
    if (form_.AddExtension(list.Find(dialog.Extension()) >= 0)) {
        list.Add(dialog.Extension());
    }
}

void CConfigPage::DeleteSelectedExtension() {
    const toolkit::ListBox list(Control(IDC_CONFIG_ADDITIONAL_LIST));
    const int selected = list.Selected();
    if (selected < 0) {
        Show(ConfigPageForm::NothingToDelete());
        return;
    }
    if (IsAgreed(ConfigPageForm::DeletionQuestion(list.Entry(selected)))) {
        form_.OnExtensionDeleted();
        list.Delete(selected);
    }
}

void CConfigPage::Apply() {
    TakeData();
    PutData();
    if (const auto refusal = form_.Apply(toolkit::ListBox(Control(IDC_CONFIG_ADDITIONAL_LIST)).Entries())) {
        Show(*refusal);
    }
}

void CConfigPage::OnOk() {
    TakeData();
    // Deliberate: after Yes the basic extensions are taken as they stand, while the changes made to the list
    // since the last Apply are lost.
    if (reporting::MayLeave(form_.IsModified(), Reporter(), Window())) {
        EndModal(IDOK);
    }
}

store::AppSettings CConfigPage::SettingsAsShown() {
    store::AppSettings shown = FieldsAsShown(form_.settings);
    shown.additionalExtensions = toolkit::ListBox(Control(IDC_CONFIG_ADDITIONAL_LIST)).Entries();
    return shown;
}

const wchar_t* CConfigPage::UnsavedInputReason() {
    return reporting::ReasonAgainstEnd(SettingsAsShown() != opened_);
}

void CConfigPage::OnScaleChanged() {
    toolkit::ListBox(Control(IDC_CONFIG_ADDITIONAL_LIST)).FitScrollBar();
    reporting::ProductDialog::OnScaleChanged();
}

bool CConfigPage::PreTranslateMessage(MSG& message) {
    if (message.message == WM_KEYDOWN && message.wParam == VK_DELETE &&
        message.hwnd == Control(IDC_CONFIG_ADDITIONAL_LIST)) {
        DeleteSelectedExtension();
        return true;
    }
    return reporting::ProductDialog::PreTranslateMessage(message);
}

void CConfigPage::ExchangeFields(toolkit::DataExchange& exchange) {
    for (const ExtensionEdit& row : kExtensionEdits) {
        exchange.Text(row.editId, form_.settings.*row.field);
    }
}

std::optional<store::AppSettings> EditConfigurations(toolkit::WindowHandle owner,
                                                     const store::AppSettings& settings,
                                                     const Services& services) {
    CConfigPage dialog(owner, settings, services.reporter);
    return dialog.RunModal() == IDOK ? std::optional(dialog.Settings()) : std::nullopt;
}

}  // namespace corvane::app
