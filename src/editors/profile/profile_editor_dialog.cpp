#include "editors/profile/profile_editor_dialog.h"

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>

#include "editors/profile/cs_profile_choice_dialog.h"
#include "editors/profile/cs_profile_commands.h"
#include "editors/profile/profile_form.h"
#include "reporting/unsaved_changes.h"
#include "res/ids.h"
#include "toolkit/controls/choice_controls.h"
#include "toolkit/dialog/data_exchange.h"

namespace corvane::editors {

namespace {

struct FixedText {
    int controlId;
    const wchar_t* text;
};

constexpr FixedText kFixedTexts[] = {
    {IDC_PROFILE_NAME_LABEL, L"Type profile name"},
    {IDC_PROFILE_NO_NCS_CHECK, L"Do not use NCS"},
    {IDC_PROFILE_NOT_ADD_CERT_CHECK, L"Do not add certificate into signature"},
    {IDC_PROFILE_NOT_COPY_CERT_CHECK, L"Do not add certificate into local store"},
    {IDC_PROFILE_NOT_LOAD_CRL_CHECK, L"Do not load CRL from distribution point"},
    {IDC_PROFILE_FREQUENCY_LABEL, L"Frequency (h.):"},
    {IDC_PROFILE_USE_TSP_CHECK, L"Use TSP server:"},
    {IDC_PROFILE_VERIFY_TSP_CHECK, L"Verify time stamp while signature verification"},
    {IDC_PROFILE_NO_TSP_ERROR_CHECK, L"Admit the lack of time stamp as an error"},
    {IDC_PROFILE_USE_AIA_CHECK, L"Allow AIA and CDP access while building chains"},
    {IDC_PROFILE_VERIFY_REPORT_CHECK, L"Create report file after verifying attached signature"},
    {IDC_PROFILE_VERIFY_DELETE_REPORT_CHECK,
     L"Create report file after verifying and deleting attached signature"},
    {IDC_PROFILE_VERIFY_DETACHED_REPORT_CHECK, L"Create report file after verifying detached signature"},
    {IDC_PROFILE_RESIGN_REPORT_CHECK, L"Create report file after verifying resigning file"},
    {IDC_PROFILE_TIMEOUT_LABEL, L"Handler timeout (sec.):"},
    {IDC_PROFILE_RENAME_CHECK, L"Rename files in Output directory if name conflict happens"},
    {IDCANCEL, kProfileExitText},
};

}  // namespace

CAddProfile::CAddProfile(HWND owner, const store::ConfigurationState& state, const store::Profile& profile,
                         const EditorServices& services)
    : reporting::ProductDialog(IDD_PROFILE_EDITOR, owner, services.reporter),
      state_(state),
      services_(services) {
    form_.result = profile;
}

bool CAddProfile::OnInitDialog() {
    form_ = OpenProfileForm(form_.result, state_.csProfileCatalogue, services_.shownCsProfile);
    SetWindowTextW(Window(), ProfileTitle(form_).c_str());
    for (const FixedText& fixed : kFixedTexts) {
        SetControlText(fixed.controlId, fixed.text);
    }
    SetIconButton(IDC_PROFILE_ADD_CS_PROFILE_BUTTON, kAddCsProfileText, IDI_ADD_ITEM);
    SetIconButton(IDC_PROFILE_DELETE_CS_PROFILE_BUTTON, kDeleteCsProfileText, IDI_DELETE_ITEM);
    SendDlgItemMessageW(Window(), IDC_PROFILE_FREQUENCY_SPIN, UDM_SETRANGE32, 0, kLongestCrlUpdatePeriod);
    ShowForm();
    opened_ = SettingsToKeep(FieldsAsShown(form_));
    return true;
}

void CAddProfile::ShowForm() {
    const toolkit::ListBox list(Control(IDC_PROFILE_CS_PROFILE_LIST));
    if (list.Entries() != form_.result.csProfiles) {
        list.Fill(form_.result.csProfiles);
    }
    SetControlText(IDC_PROFILE_CS_PROFILE_GROUP, SettingsTitle(form_).c_str());
    EnableControl(IDC_PROFILE_TSP_EDIT, IsTimeStampServerEnabled(form_));
    EnableControl(IDC_PROFILE_NO_TSP_ERROR_CHECK, IsNoTimeStampErrorEnabled(form_));
    PutData();
}

bool CAddProfile::OnCommand(int controlId, UINT notificationCode) {
    if (controlId == IDC_PROFILE_CS_PROFILE_LIST) {
        if (notificationCode == LBN_SELCHANGE) {
            ChangeCsProfile();
        }
        return true;
    }
    if (notificationCode == EN_CHANGE) {
        OnEdited(controlId);
        return true;
    }
    if (notificationCode == BN_CLICKED && OnButton(controlId)) {
        return true;
    }
    return reporting::ProductDialog::OnCommand(controlId, notificationCode);
}

bool CAddProfile::OnButton(int controlId) {
    switch (controlId) {
        case IDC_PROFILE_USE_TSP_CHECK:
            TakeData();
            OnUseTimeStampServerClicked(form_);
            ShowForm();
            return true;
        case IDC_PROFILE_VERIFY_TSP_CHECK:
            TakeData();
            OnVerifyTimeStampClicked(form_);
            ShowForm();
            return true;
        case IDC_PROFILE_ADD_CS_PROFILE_BUTTON:
            AddChosenCsProfile();
            return true;
        case IDC_PROFILE_DELETE_CS_PROFILE_BUTTON:
            DeleteSelectedCsProfile();
            return true;
        default:
            return false;
    }
}

void CAddProfile::OnEdited(int controlId) {
    const HWND edit = Control(controlId);
    if (edit == nullptr) {
        return;
    }
    if (controlId == IDC_PROFILE_FREQUENCY_EDIT) {
        CorrectTypedText(controlId, OnCrlUpdatePeriodChanged(form_, toolkit::WindowText(edit)));
    } else if (controlId == IDC_PROFILE_TIMEOUT_EDIT) {
        const std::optional<std::wstring> correction =
            OnHandlerTimeoutChanged(form_, toolkit::WindowText(edit));
        if (correction) {
            CorrectTypedText(controlId, *correction);
        }
    }
}

bool CAddProfile::LeaveShownCsProfile() {
    TakeData();
    if (const auto refusal = LeaveCsProfile(form_, services_.shownCsProfile)) {
        PutData();
        Show(*refusal);
        return false;
    }
    return true;
}

void CAddProfile::ChangeCsProfile() {
    if (LeaveShownCsProfile()) {
        ChangeShownCsProfile(form_, services_.shownCsProfile);
        ShowForm();
    }
}

void CAddProfile::AddChosenCsProfile() {
    if (!LeaveShownCsProfile()) {
        return;
    }
    CAddCSProfDlg dialog(Window(), state_.csProfileCatalogue, services_.reporter);
    if (dialog.RunModal() == IDOK) {
        AddCsProfile(form_, dialog.Name(), services_.shownCsProfile, services_.reporter.Text());
        ShowForm();
    }
}

void CAddProfile::DeleteSelectedCsProfile() {
    TakeData();
    if (const auto refusal = CheckCsProfileDeletion(form_)) {
        ShowForm();
        Show(*refusal);
        return;
    }
    if (IsAgreed(CsProfileDeletionQuestion(form_))) {
        DeleteCsProfile(form_, services_.shownCsProfile);
    }
    ShowForm();
}

void CAddProfile::OnOk() {
    TakeData();
    if (const auto refusal = CheckProfile(form_, state_.profileNames)) {
        Show(*refusal);
        return;
    }
    CommitProfile(form_);
    EndModal(IDOK);
}

const wchar_t* CAddProfile::UnsavedInputReason() {
    return reporting::ReasonAgainstEnd(SettingsToKeep(FieldsAsShown(form_)) != opened_);
}

void CAddProfile::OnScaleChanged() {
    toolkit::ListBox(Control(IDC_PROFILE_CS_PROFILE_LIST)).FitScrollBar();
    reporting::ProductDialog::OnScaleChanged();
}

bool CAddProfile::PreTranslateMessage(MSG& message) {
    if (message.message == WM_KEYDOWN && message.wParam == VK_DELETE &&
        message.hwnd == Control(IDC_PROFILE_CS_PROFILE_LIST)) {
        DeleteSelectedCsProfile();
        return true;
    }
    return reporting::ProductDialog::PreTranslateMessage(message);
}

void CAddProfile::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Text(IDC_PROFILE_NAME_EDIT, form_.result.name);
    exchange.Selection(IDC_PROFILE_CS_PROFILE_LIST, form_.selectedCsProfile);
    exchange.Check(IDC_PROFILE_NO_NCS_CHECK, form_.shown.notUseDirectory);
    exchange.Check(IDC_PROFILE_NOT_ADD_CERT_CHECK, form_.shown.notAddCertificate);
    exchange.Check(IDC_PROFILE_NOT_COPY_CERT_CHECK, form_.shown.notCopyToLocal);
    exchange.Check(IDC_PROFILE_NOT_LOAD_CRL_CHECK, form_.shown.notLoadCrl);
    exchange.Number(IDC_PROFILE_FREQUENCY_EDIT, form_.shown.crlUpdatePeriod);
    exchange.Check(IDC_PROFILE_USE_TSP_CHECK, form_.shown.autoUseTimeStamp);
    exchange.Text(IDC_PROFILE_TSP_EDIT, form_.shown.timeStampServer);
    exchange.Check(IDC_PROFILE_VERIFY_TSP_CHECK, form_.shown.autoVerifyTimeStamp);
    exchange.Check(IDC_PROFILE_NO_TSP_ERROR_CHECK, form_.shown.noTimeStampIsError);
    exchange.Check(IDC_PROFILE_USE_AIA_CHECK, form_.shown.useAuthorityAccess);
    exchange.Check(IDC_PROFILE_VERIFY_REPORT_CHECK, form_.result.verifyFile);
    exchange.Check(IDC_PROFILE_VERIFY_DELETE_REPORT_CHECK, form_.result.verifyXFile);
    exchange.Check(IDC_PROFILE_VERIFY_DETACHED_REPORT_CHECK, form_.result.verifyDetachedFile);
    exchange.Check(IDC_PROFILE_RESIGN_REPORT_CHECK, form_.result.verifyResignFile);
    exchange.Number(IDC_PROFILE_TIMEOUT_EDIT, form_.result.handlerTimeout);
    exchange.Check(IDC_PROFILE_RENAME_CHECK, form_.result.renameConfFiles);
}

std::optional<EditedProfile> EditProfile(toolkit::WindowHandle owner, const store::ConfigurationState& state,
                                         const store::Profile& profile, const EditorServices& services) {
    CAddProfile dialog(owner, state, profile, services);
    if (dialog.RunModal() != IDOK) {
        return std::nullopt;
    }
    return EditedProfile{.profile = dialog.Result(), .deletedCsProfiles = dialog.DeletedCsProfiles()};
}

}  // namespace corvane::editors
