#include "editors/rule/rule_editor_dialog.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "certificates/selection/selection_dialog.h"
#include "certificates/signer_lists/signer_lists_dialog.h"
#include "editors/rule/rule_cert_command.h"
#include "editors/rule/rule_cs_profile_change.h"
#include "editors/rule/rule_form.h"
#include "editors/rule/rule_validation.h"
#include "reporting/unsaved_changes.h"
#include "res/ids.h"
#include "toolkit/controls/choice_controls.h"
#include "toolkit/dialog/data_exchange.h"
#include "toolkit/dialog/window_geometry.h"
#include "toolkit/files/path_pickers.h"

namespace corvane::editors {

namespace {

// The controls of the option rows.
constexpr std::array kRowLabels = {IDC_RULE_ROW1_LABEL, IDC_RULE_ROW2_LABEL, IDC_RULE_ROW3_LABEL,
                                   IDC_RULE_ROW4_LABEL};
constexpr std::array kRowChoices = {IDC_RULE_ROW1_COMBO, IDC_RULE_ROW2_COMBO, IDC_RULE_ROW3_COMBO};
constexpr std::array kRowTexts = {IDC_RULE_ROW1_EDIT, IDC_RULE_ROW2_EDIT, IDC_RULE_ROW3_EDIT,
                                  IDC_RULE_ROW4_EDIT};
constexpr std::array kRowNumbers = {IDC_RULE_ROW1_NUMBER_EDIT, IDC_RULE_ROW2_NUMBER_EDIT,
                                    IDC_RULE_ROW3_NUMBER_EDIT};
static_assert(kRowLabels.size() == kRowCount && kRowTexts.size() == kRowCount);
static_assert(kRowChoices.size() == kRowCount - 1 && kRowNumbers.size() == kRowCount - 1);

struct ButtonOfForm {
    int id;
    store::FieldOf<RuleForm, IconButton> button;
};

constexpr ButtonOfForm kButtons[] = {
    {IDC_RULE_INPUT_BUTTON, &RuleForm::inputButton},
    {IDC_RULE_OUTPUT_BUTTON, &RuleForm::outputButton},
    {IDC_RULE_ERROR_BUTTON, &RuleForm::errorButton},
    {IDC_RULE_CERT_BUTTON, &RuleForm::certButton},
    {IDC_RULE_ADD_MASK_BUTTON, &RuleForm::addMaskButton},
    {IDC_RULE_EDIT_MASK_BUTTON, &RuleForm::editMaskButton},
    {IDC_RULE_DELETE_MASK_BUTTON, &RuleForm::deleteMaskButton},
};

int IconResource(RuleIcon icon) {
    switch (icon) {
        case RuleIcon::kInputFolder:
            return IDI_INPUT_FOLDER;
        case RuleIcon::kOutputFolder:
            return IDI_OUTPUT_FOLDER;
        case RuleIcon::kErrorFolder:
            return IDI_ERROR_FOLDER;
        case RuleIcon::kCertificates:
            break;
        case RuleIcon::kSecondOutputFolder:
            return IDI_SECOND_OUTPUT_FOLDER;
        case RuleIcon::kExecutable:
            return IDI_EXECUTABLE;
        case RuleIcon::kAddMask:
            return IDI_ADD_ITEM;
        case RuleIcon::kEditMask:
            return IDI_EDIT_ITEM;
        case RuleIcon::kDeleteMask:
            return IDI_DELETE_ITEM;
    }
    return IDI_CERTIFICATES;
}

void ShowControl(HWND control, bool isShown) {
    ShowWindow(control, isShown ? SW_SHOWNA : SW_HIDE);
}

void ShowTextField(HWND control, const TextField& field) {
    ShowControl(control, field.isShown);
    EnableWindow(control, field.isEnabled ? TRUE : FALSE);
    SendMessageW(control, EM_SETREADONLY, field.isReadOnly ? TRUE : FALSE, 0);
}

void ShowChoice(HWND control, const ChoiceField& choice) {
    const toolkit::ComboBox box(control);
    if (box.Entries() != choice.entries) {
        box.Fill(choice.entries);
    }
    ShowControl(control, choice.isShown);
}

}  // namespace

CAddRule::CAddRule(HWND owner, const store::Profile& profile, store::TextList maskSuggestions,
                   const store::Rule& rule, const EditorServices& services)
    : reporting::ProductDialog(IDD_RULE_EDITOR, owner, services.reporter),
      services_(services),
      maskSuggestions_(std::move(maskSuggestions)),
      form_(OpenRule(profile, rule, services.acceptedCsProfile)) {}

bool CAddRule::OnInitDialog() {
    SetWindowTextW(Window(), form_.title.c_str());
    SetControlText(IDCANCEL, form_.exitText.c_str());
    SetControlText(IDC_RULE_DESCRIPTION_LABEL, form_.descriptionLabel.c_str());
    SetUpButtons();
    maskList_.Attach(Control(IDC_RULE_MASK_LIST), toolkit::SystemMetric(SM_CXVSCROLL, DotsPerInch()));
    ShowForm();
    maskList_.Show(form_.result.masks);
    opened_ = CommitRule(FieldsAsShown(form_));
    return true;
}

void CAddRule::SetUpButtons() {
    for (const ButtonOfForm& entry : kButtons) {
        const IconButton& button = form_.*entry.button;
        SetIconButton(entry.id, button.toolTip, IconResource(button.icon));
    }
}

void CAddRule::ShowForm() {
    const HWND focus = GetFocus();
    ShowChoices();
    ShowFields();
    ShowCertButton();
    PutData();
    if (IsChild(Window(), focus) != FALSE &&
        (IsWindowVisible(focus) == FALSE || IsWindowEnabled(focus) == FALSE)) {
        // A control that is gone would swallow every key.
        FocusControl(IDC_RULE_OPERATION_COMBO);
    }
}

void CAddRule::ShowChoices() {
    ShowChoice(Control(IDC_RULE_OPERATION_COMBO), form_.operation);
    SetControlText(IDC_RULE_CS_PROFILE_LABEL, form_.csProfileLabel.c_str());
    ShowChoice(Control(IDC_RULE_CS_PROFILE_COMBO), form_.csProfile);
    for (std::size_t row = 0; row < kRowChoices.size(); ++row) {
        ShowChoice(Control(kRowChoices[row]), form_.choices[row]);
    }
}

void CAddRule::ShowFields() {
    EnableControl(IDC_RULE_OUTPUT_BUTTON, form_.outputButton.isEnabled);
    ShowTextField(Control(IDC_RULE_OUTPUT_EDIT), form_.outputFolder);
    for (std::size_t row = 0; row < kRowCount; ++row) {
        SetControlText(kRowLabels[row], form_.rowLabels[row].c_str());
        ShowTextField(Control(kRowTexts[row]), form_.texts[row]);
    }
    for (std::size_t row = 0; row < kRowNumbers.size(); ++row) {
        ShowControl(Control(kRowNumbers[row]), form_.numbers[row].isShown);
    }
}

void CAddRule::ShowCertButton() {
    const IconButton& button = form_.certButton;
    SetControlText(IDC_RULE_CERT_LABEL, CertLabel(form_.laidOutOperation).c_str());
    SetIconButton(IDC_RULE_CERT_BUTTON, button.toolTip, IconResource(button.icon));
    EnableControl(IDC_RULE_CERT_BUTTON, button.isEnabled);
    ShowTextField(Control(IDC_RULE_CERT_EDIT), form_.cert);
}

bool CAddRule::OnCommand(int controlId, UINT notificationCode) {
    // The codes of edits and of combo boxes are told apart by the control.
    if (notificationCode == CBN_SELCHANGE && OnSelectionChanged(controlId)) {
        return true;
    }
    if (notificationCode == EN_CHANGE) {
        OnNumberChanged(controlId);
        return true;
    }
    if (notificationCode == BN_CLICKED && OnButton(controlId)) {
        return true;
    }
    return reporting::ProductDialog::OnCommand(controlId, notificationCode);
}

bool CAddRule::OnSelectionChanged(int controlId) {
    if (controlId != IDC_RULE_OPERATION_COMBO && controlId != IDC_RULE_CS_PROFILE_COMBO) {
        return false;
    }
    TakeData();
    if (controlId == IDC_RULE_OPERATION_COMBO) {
        ChangeOperation(form_);
    } else {
        ChangeCsProfile(form_, services_.acceptedCsProfile, services_.reporter, Window());
    }
    ShowForm();
    return true;
}

void CAddRule::OnNumberChanged(int controlId) {
    const auto found = std::find(kRowNumbers.begin(), kRowNumbers.end(), controlId);
    const HWND edit = Control(controlId);
    if (found == kRowNumbers.end() || edit == nullptr) {
        return;
    }
    NumberField& field = form_.numbers[static_cast<std::size_t>(std::distance(kRowNumbers.begin(), found))];
    const std::optional<std::wstring> correction = OnNumberTextChanged(field, toolkit::WindowText(edit));
    if (correction) {
        CorrectTypedText(controlId, *correction);
    }
}

bool CAddRule::OnButton(int controlId) {
    switch (controlId) {
        case IDC_RULE_INPUT_BUTTON:
            PickFolder(form_.inputFolder.text);
            return true;
        case IDC_RULE_OUTPUT_BUTTON:
            PickFolder(form_.outputFolder.text);
            return true;
        case IDC_RULE_ERROR_BUTTON:
            PickFolder(form_.errorFolder.text);
            return true;
        case IDC_RULE_CERT_BUTTON:
            RunCertCommand();
            return true;
        case IDC_RULE_ADD_MASK_BUTTON:
            AddMaskToRule();
            return true;
        case IDC_RULE_EDIT_MASK_BUTTON:
            EditSelectedMask();
            return true;
        case IDC_RULE_DELETE_MASK_BUTTON:
            DeleteSelectedMasks();
            return true;
        default:
            return false;
    }
}

void CAddRule::PickFolder(std::wstring& field) {
    std::optional<std::wstring> folder =
        reporting::PathOrReport(services_.shell.PickFolder(Window()), services_.reporter, Window());
    if (folder) {
        TakeData();
        field = std::move(*folder);
        PutData();
    }
}

void CAddRule::RunCertCommand() {
    TakeData();
    switch (CertButtonCommand(form_)) {
        case CertCommand::kPickFolder:
            PickCertPath(services_.shell.PickFolder(Window()));
            break;
        case CertCommand::kPickExecutable:
            PickCertPath(toolkit::AskWhatToOpen(Window(), {.fileName = {},
                                                           .folder = {},
                                                           .defaultExtension = kExecutableDefaultExtension,
                                                           .filter = kExecutableFilter,
                                                           .path = {}}));
            break;
        case CertCommand::kEditSignerLists:
            if (auto lists = certificates::EditSignerLists(
                    Window(), form_.profile, SelectedCsProfileIndex(form_), form_.result.signerGroups,
                    services_.certs, services_.files)) {
                TakeSignerLists(form_, std::move(*lists));
                PutData();
            }
            break;
        case CertCommand::kChooseRecipients:
            if (auto recipients =
                    certificates::EditRecipients(Window(), form_.profile, SelectedCsProfileIndex(form_),
                                                 form_.recipients, services_.certs, services_.files)) {
                TakeRecipients(form_, std::move(recipients->owners));
                PutData();
            }
            break;
        case CertCommand::kNone:
            break;
    }
}

void CAddRule::PickCertPath(const toolkit::PathChoice& choice) {
    const std::optional<std::wstring> path = reporting::PathOrReport(choice, services_.reporter, Window());
    if (path) {
        TakeCertPath(form_, *path);
        PutData();
    }
}

void CAddRule::OnOk() {
    TakeData();
    PutData();
    if (const auto refusal = CheckRule(form_, services_.files)) {
        Show(*refusal);
        return;
    }
    result_ = CommitRule(form_);
    EndModal(IDOK);
}

const wchar_t* CAddRule::UnsavedInputReason() {
    return reporting::ReasonAgainstEnd(CommitRule(FieldsAsShown(form_)) != opened_);
}

void CAddRule::OnScaleChanged() {
    reporting::ProductDialog::OnScaleChanged();
    maskList_.FitColumn();
}

void CAddRule::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Choice(IDC_RULE_OPERATION_COMBO, form_.operation.index);
    exchange.Choice(IDC_RULE_CS_PROFILE_COMBO, form_.csProfile.index);
    exchange.Text(IDC_RULE_DESCRIPTION_EDIT, form_.description.text);
    exchange.Text(IDC_RULE_INPUT_EDIT, form_.inputFolder.text);
    exchange.Text(IDC_RULE_OUTPUT_EDIT, form_.outputFolder.text);
    exchange.Text(IDC_RULE_ERROR_EDIT, form_.errorFolder.text);
    exchange.Text(IDC_RULE_CERT_EDIT, form_.cert.text);
    for (std::size_t row = 0; row < kRowChoices.size(); ++row) {
        exchange.Choice(kRowChoices[row], form_.choices[row].index);
        exchange.Number(kRowNumbers[row], form_.numbers[row].number);
    }
    for (std::size_t row = 0; row < kRowTexts.size(); ++row) {
        exchange.Text(kRowTexts[row], form_.texts[row].text);
    }
}

std::optional<store::Rule> EditRule(toolkit::WindowHandle owner, const store::Profile& profile,
                                    const store::TextList& maskSuggestions, const store::Rule& rule,
                                    const EditorServices& services) {
    CAddRule dialog(owner, profile, maskSuggestions, rule, services);
    return dialog.RunModal() == IDOK ? std::optional(dialog.Result()) : std::nullopt;
}

}  // namespace corvane::editors
