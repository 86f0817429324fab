#include "certificates/selection/selection_dialog.h"

#include <array>
#include <optional>
#include <string>
#include <utility>

#include "certificates/group_file/group_file.h"
#include "certificates/search/filter_dialog.h"
#include "certificates/search/owner_texts.h"
#include "certificates/session/wait_dialog.h"
#include "reporting/unsaved_changes.h"
#include "reporting/warning_box.h"
#include "res/ids.h"
#include "toolkit/controls/choice_controls.h"
#include "toolkit/dialog/data_exchange.h"
#include "toolkit/files/path_pickers.h"
#include "toolkit/system/wait_cursor.h"

namespace corvane::certificates {

namespace {

struct Caption {
    int controlId;
    const wchar_t* text;
};

constexpr std::array kCaptions = std::to_array<Caption>({
    {IDC_SELECTION_FROM_STORE_BUTTON, L"From local store"},
    {IDC_SELECTION_FROM_GROUP_BUTTON, L"From group"},
    {IDC_SELECTION_FROM_NCS_BUTTON, L"From NCS"},
    {IDC_SELECTION_SELECT_ALL_BUTTON, L"Select all"},
    {IDC_SELECTION_CLEAR_BUTTON, L"Clear"},
    {IDC_SELECTION_DELETE_ALL_BUTTON, L"Delete all"},
    {IDC_SELECTION_SAVE_BUTTON, L"Save"},
    {IDC_SELECTION_LIST_NAME_LABEL, L"List name:"},
    {IDCANCEL, L"Exit"},
});

toolkit::FileDialogOffer FileDialogOfferFor(const GroupFileOffer& offer) {
    return {.fileName = {},
            .folder = offer.folder,
            .defaultExtension = kGroupFileExtension,
            .filter = offer.filter,
            .path = offer.fileName};
}

}  // namespace

CPreEncryptDlg::CPreEncryptDlg(HWND owner, RecipientSelectionForm& form, const Cryptocontext& context,
                               reporting::ErrorReporter& reporter, toolkit::FileCalls& files)
    : reporting::ProductDialog(IDD_RECIPIENT_SELECTION, owner, reporter),
      form_(form),
      context_(context),
      files_(files),
      foundOwners_(form),
      chosenOwners_(form) {}

bool CPreEncryptDlg::OnInitDialog() {
    SetUpControls();
    foundList_.Attach(Control(IDC_SELECTION_FOUND_LIST), L"Subjects");
    chosenList_.Attach(Control(IDC_SELECTION_CHOSEN_LIST), L"Recipients");
    chosenList_.Control().Focus();
    return false;
}

void CPreEncryptDlg::SetUpControls() {
    using enum toolkit::GrowthShare;
    LetControlsFollow({
        {.controlId = IDC_SELECTION_FILTER_EDIT, .growX = kAll},
        {.controlId = IDC_SELECTION_FOUND_LIST, .growX = kAll, .growY = kHalf},
        {.controlId = IDC_SELECTION_FROM_STORE_BUTTON, .moveX = kAll},
        {.controlId = IDC_SELECTION_FROM_GROUP_BUTTON, .moveX = kAll},
        {.controlId = IDC_SELECTION_FROM_NCS_BUTTON, .moveX = kAll},
        {.controlId = IDC_SELECTION_SELECT_ALL_BUTTON, .moveX = kAll},
        {.controlId = IDC_SELECTION_CLEAR_BUTTON, .moveX = kAll},
        {.controlId = IDC_SELECTION_DELETE_ALL_BUTTON, .moveX = kAll},
        {.controlId = IDC_SELECTION_SAVE_BUTTON, .moveX = kAll},
        {.controlId = IDC_SELECTION_ADD_BUTTON, .moveY = kHalf},
        {.controlId = IDC_SELECTION_REMOVE_BUTTON, .moveY = kHalf},
        {.controlId = IDC_SELECTION_LIST_NAME_LABEL, .moveY = kHalf},
        {.controlId = IDC_SELECTION_LIST_NAME_EDIT, .moveY = kHalf, .growX = kAll},
        {.controlId = IDC_SELECTION_CHOSEN_LIST, .moveY = kHalf, .growX = kAll, .growY = kRest},
        {.controlId = IDOK, .moveX = kAll, .moveY = kAll},
        {.controlId = IDCANCEL, .moveX = kAll, .moveY = kAll},
    });
    SetWindowTextW(Window(), form_.Title().c_str());
    for (const Caption& caption : kCaptions) {
        SetControlText(caption.controlId, caption.text);
    }
    SetWindowIcon(IDI_MAIN_WINDOW);
    SetIconButton(IDC_SELECTION_ADD_BUTTON, L"Add", IDI_ADD_TO_CHOSEN);
    SetIconButton(IDC_SELECTION_REMOVE_BUTTON, L"Remove", IDI_REMOVE_FROM_CHOSEN);
    if (form_.IsForSigners()) {
        ShowWindow(Control(IDC_SELECTION_LIST_NAME_LABEL), SW_SHOW);
        ShowWindow(Control(IDC_SELECTION_LIST_NAME_EDIT), SW_SHOW);
        EnableControl(IDC_SELECTION_LIST_NAME_EDIT, true);
        // What screen readers call the list; its heading is the same in both modes.
        SetControlText(IDC_SELECTION_CHOSEN_LIST, L"Signers");
    }
    const toolkit::ComboBox sortFields(Control(IDC_SELECTION_SORT_COMBO));
    sortFields.Fill(OfferedSubjectFields());
    sortFields.Select(0);
    EnableControl(IDC_SELECTION_FROM_NCS_BUTTON, form_.IsNetworkStoreAvailable());
    PutData();
}

bool CPreEncryptDlg::OnCommand(int controlId, UINT notificationCode) {
    if (controlId == IDC_SELECTION_FILTER_EDIT && notificationCode == EN_CHANGE) {
        ChangeFound([this] { form_.SetFilter(toolkit::WindowText(Control(IDC_SELECTION_FILTER_EDIT))); });
        return true;
    }
    if (controlId == IDC_SELECTION_SORT_COMBO && notificationCode == CBN_SELCHANGE) {
        const int field = toolkit::ComboBox(Control(IDC_SELECTION_SORT_COMBO)).Selected();
        if (field >= 0) {
            ChangeFound([this, field] { form_.SetSortField(static_cast<std::size_t>(field)); });
        }
        return true;
    }
    return (notificationCode == BN_CLICKED && Press(controlId)) ||
           reporting::ProductDialog::OnCommand(controlId, notificationCode);
}

bool CPreEncryptDlg::Press(int buttonId) {
    switch (buttonId) {
        case IDC_SELECTION_FROM_STORE_BUTTON:
            SearchLocalStore();
            return true;
        case IDC_SELECTION_FROM_NCS_BUTTON:
            SearchNetworkStore();
            return true;
        case IDC_SELECTION_FROM_GROUP_BUTTON:
            OpenGroup();
            return true;
        case IDC_SELECTION_SAVE_BUTTON:
            SaveGroup();
            return true;
        case IDC_SELECTION_SELECT_ALL_BUTTON:
        case IDC_SELECTION_CLEAR_BUTTON:
            ChangeFound(
                [this, buttonId] { form_.CheckAllFound(buttonId == IDC_SELECTION_SELECT_ALL_BUTTON); });
            return true;
        case IDC_SELECTION_DELETE_ALL_BUTTON:
            DeleteAllFound();
            return true;
        case IDC_SELECTION_ADD_BUTTON:
            AddChecked();
            return true;
        case IDC_SELECTION_REMOVE_BUTTON:
            ChangeChosen([this] { form_.RemoveChecked(); });
            return true;
        default:
            return false;
    }
}

bool CPreEncryptDlg::OnNotify(NMHDR& header, LRESULT& /*result*/) {
    for (OwnerListView* const list : {&foundList_, &chosenList_}) {
        if (header.hwndFrom == list->Control().Window()) {
            return list->Answer(header) || OnListNotification(list->Owners(), header);
        }
    }
    return false;
}

bool CPreEncryptDlg::OnListNotification(const OwnerRows& owners, const NMHDR& header) {
    if (header.code != NM_DBLCLK) {
        return false;
    }
    if (const int row = reinterpret_cast<const NMITEMACTIVATE&>(header).iItem; row >= 0) {
        Show(owners.Details(static_cast<std::size_t>(row)));
    }
    return true;
}

void CPreEncryptDlg::ChangeFound(const std::function<void()>& change) {
    foundList_.Change(change);
}

void CPreEncryptDlg::ChangeChosen(const std::function<void()>& change) {
    chosenList_.Change(change);
}

void CPreEncryptDlg::SearchLocalStore() {
    ChangeFound([this] {
        const toolkit::WaitCursor waiting;
        form_.SearchLocalStore(context_, Reporter(), Window());
    });
}

void CPreEncryptDlg::SearchNetworkStore() {
    CFilterDlg filter(Window(), Reporter());
    if (filter.RunModal() != IDOK) {
        return;
    }
    ChangeFound([this, &filter] {
        const toolkit::WaitCursor waiting;
        form_.SearchNetworkStore(filter.Form().Pattern(Reporter().Text()), context_, Reporter(), Window());
    });
}

void CPreEncryptDlg::OpenGroup() {
    const std::optional<std::wstring> path = reporting::PathOrReport(
        toolkit::AskWhatToOpen(Window(), FileDialogOfferFor(OfferToOpenGroup(form_))), Reporter(), Window());
    if (path) {
        ChangeFound([this, &path] { LoadGroupFile(form_, *path, files_, Reporter(), Window()); });
    }
}

void CPreEncryptDlg::SaveGroup() {
    if (const auto refusal = CheckGroupToSave(form_)) {
        Show(*refusal);
        return;
    }
    const std::optional<std::wstring> path = reporting::PathOrReport(
        toolkit::AskWhereToSave(Window(), FileDialogOfferFor(OfferToSaveGroup(form_))), Reporter(), Window());
    if (path) {
        SaveGroupFile(form_, *path, files_, Reporter(), Window());
    }
}

void CPreEncryptDlg::DeleteAllFound() {
    const std::optional<reporting::Question> question = form_.DeletionQuestion();
    if (question && IsAgreed(*question)) {
        ChangeFound([this] { form_.DeleteAllFound(); });
    }
}

void CPreEncryptDlg::AddChecked() {
    std::wstring warning;
    ChangeChosen([this, &warning] { warning = form_.AddChecked(); });
    if (!warning.empty()) {
        reporting::WarningBox box(Window(), false, Reporter());
        box.text = std::move(warning);
        box.RunModal();
    }
}

void CPreEncryptDlg::OnOk() {
    TakeData();
    const toolkit::WaitCursor waiting;
    if (const auto refusal = form_.Confirm(context_, Reporter(), Window())) {
        Show(*refusal);
        return;
    }
    EndModal(IDOK);
}

const wchar_t* CPreEncryptDlg::UnsavedInputReason() {
    return reporting::ReasonAgainstEnd(form_.IsChanged(FieldsAsShown(form_.listName)));
}

void CPreEncryptDlg::OnArranged() {
    foundList_.FitColumn();
    chosenList_.FitColumn();
}

void CPreEncryptDlg::OnScaleChanged() {
    foundList_.Rescale();
    chosenList_.Rescale();
    reporting::ProductDialog::OnScaleChanged();
}

void CPreEncryptDlg::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Text(IDC_SELECTION_LIST_NAME_EDIT, form_.listName);
}

bool SelectionDialogRun::Run(RecipientSelectionForm& form, const Cryptocontext& context) {
    return CPreEncryptDlg(owner_, form, context, reporter_, files_).RunModal() == IDOK;
}

std::optional<ChosenRecipients> EditRecipients(toolkit::WindowHandle owner, const store::Profile& profile,
                                               std::size_t csProfileIndex, const store::TextList& recipients,
                                               const CertServices& services, toolkit::FileCalls& files) {
    AwaitWindow waitWindow(services.reporter);
    SelectionDialogRun dialog(owner, services.reporter, files);
    return ChooseRecipients({.owner = owner,
                             .profile = profile,
                             .csProfileIndex = csProfileIndex,
                             .waitWindow = waitWindow,
                             .services = services,
                             .dialog = dialog},
                            recipients);
}

}  // namespace corvane::certificates
