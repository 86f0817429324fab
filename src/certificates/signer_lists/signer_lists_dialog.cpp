#include "certificates/signer_lists/signer_lists_dialog.h"

#include <windows.h>

#include <commctrl.h>

#include "certificates/selection/selection_dialog.h"
#include "certificates/session/wait_dialog.h"
#include "certificates/signer_lists/signer_lists_form.h"
#include "reporting/product_dialog.h"
#include "reporting/unsaved_changes.h"
#include "res/ids.h"
#include "toolkit/controls/supplied_list_view.h"
#include "toolkit/dialog/window_geometry.h"

namespace corvane::certificates {

namespace {

constexpr int kNameColumn = 0;
constexpr int kSignersColumn = 1;

class SignerList final : public reporting::ProductDialog, private toolkit::RowSource {
  public:
    SignerList(HWND owner, const store::Profile& profile, std::size_t csProfileIndex,
               const std::vector<store::SignerGroup>& lists, const CertServices& services,
               toolkit::FileCalls& files)
        : reporting::ProductDialog(IDD_SIGNER_LISTS, owner, services.reporter),
          profile_(profile),
          csProfileIndex_(csProfileIndex),
          services_(services),
          files_(files),
          form_(lists) {}

    [[nodiscard]] const std::vector<store::SignerGroup>& Lists() const { return form_.Lists(); }

  protected:
    bool OnInitDialog() override;
    bool OnCommand(int controlId, UINT notificationCode) override;
    bool OnNotify(NMHDR& header, LRESULT& result) override;
    const wchar_t* UnsavedInputReason() override;
    void OnArranged() override;

  private:
    [[nodiscard]] std::size_t RowCount() const override { return form_.Lists().size(); }
    [[nodiscard]] std::wstring CellText(std::size_t row, std::size_t column) const override;

    void SetUpLayout();
    void SetUpList();
    void LayOutColumns() const;
    void ShowLists();
    void ShowWhatCanBeDone() const;

    [[nodiscard]] SelectionPlace Place(SelectionRun& dialog);
    void Add();
    void EditSelected();
    void DeleteSelected();
    void Describe(int row) const;

    const store::Profile& profile_;
    std::size_t csProfileIndex_;
    const CertServices& services_;
    toolkit::FileCalls& files_;
    AwaitWindow waitWindow_{services_.reporter};
    SignerListsForm form_;
    std::vector<store::SignerGroup> opened_{form_.Lists()};
    toolkit::SuppliedListView list_{*this};
};

bool SignerList::OnInitDialog() {
    SetUpLayout();
    SetWindowIcon(IDI_MAIN_WINDOW);
    SetWindowTextW(Window(), kSignerListsTitle);
    SetUpList();
    list_.MarkFocus(0);
    ShowWhatCanBeDone();
    list_.Focus();
    return false;
}

void SignerList::SetUpLayout() {
    using enum toolkit::GrowthShare;
    LetControlsFollow({
        {.controlId = IDC_SIGNER_LISTS_LIST, .growX = kAll, .growY = kAll},
        {.controlId = IDC_SIGNER_LISTS_ADD_BUTTON, .moveX = kAll},
        {.controlId = IDC_SIGNER_LISTS_EDIT_BUTTON, .moveX = kAll},
        {.controlId = IDC_SIGNER_LISTS_DELETE_BUTTON, .moveX = kAll},
        {.controlId = IDOK, .moveX = kAll, .moveY = kAll},
        {.controlId = IDCANCEL, .moveX = kAll, .moveY = kAll},
    });
}

void SignerList::SetUpList() {
    list_.Attach(Control(IDC_SIGNER_LISTS_LIST));
    list_.AddExtendedStyles(LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP);
    list_.InsertColumn(kNameColumn, L"List name");
    list_.InsertColumn(kSignersColumn, L"Signers");
    LayOutColumns();
    ShowLists();
}

void SignerList::OnArranged() {
    LayOutColumns();
}

void SignerList::LayOutColumns() const {
    // The name takes a third. Room for the scroll bar is left from the beginning, so that nothing moves when
    // it comes.
    const bool hasScrollBar = (GetWindowLongPtrW(list_.Window(), GWL_STYLE) & WS_VSCROLL) != 0;
    const int scrollBarWidth = toolkit::SystemMetric(SM_CXVSCROLL, DotsPerInch());
    const int width = list_.ClientWidth() - (hasScrollBar ? 0 : scrollBarWidth);
    list_.SetColumnWidth(kNameColumn, width / 3);
    list_.SetColumnWidth(kSignersColumn, width - width / 3);
}

std::wstring SignerList::CellText(std::size_t row, std::size_t column) const {
    if (row >= form_.Lists().size()) {
        return {};
    }
    return column == kNameColumn ? form_.NameCell(row) : form_.SignersCell(row);
}

void SignerList::ShowLists() {
    const toolkit::ListView::RedrawLock locked(list_);
    list_.Update();
}

void SignerList::ShowWhatCanBeDone() const {
    const bool hasSelection = list_.FirstSelectedRow() >= 0;
    const HWND focus = GetFocus();
    for (const int button : {IDC_SIGNER_LISTS_EDIT_BUTTON, IDC_SIGNER_LISTS_DELETE_BUTTON}) {
        if (!hasSelection && focus == Control(button)) {
            // A disabled button would keep the focus and take every key to nowhere.
            list_.Focus();
        }
        EnableControl(button, hasSelection);
    }
}

bool SignerList::OnCommand(int controlId, UINT notificationCode) {
    if (notificationCode != BN_CLICKED) {
        return false;
    }
    switch (controlId) {
        case IDC_SIGNER_LISTS_ADD_BUTTON:
            Add();
            return true;
        case IDC_SIGNER_LISTS_EDIT_BUTTON:
            EditSelected();
            return true;
        case IDC_SIGNER_LISTS_DELETE_BUTTON:
            DeleteSelected();
            return true;
        default:
            return reporting::ProductDialog::OnCommand(controlId, notificationCode);
    }
}

bool SignerList::OnNotify(NMHDR& header, LRESULT& /*result*/) {
    if (header.hwndFrom != list_.Window()) {
        return false;
    }
    switch (header.code) {
        case LVN_GETDISPINFOW:
            return list_.Answer(header);
        case LVN_ITEMCHANGED:
            ShowWhatCanBeDone();
            return true;
        case NM_DBLCLK:
            EditSelected();
            return true;
        case NM_RCLICK:
            Describe(reinterpret_cast<const NMITEMACTIVATE&>(header).iItem);
            return true;
        case LVN_KEYDOWN:
            if (reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey == VK_DELETE) {
                DeleteSelected();
            }
            return true;
        default:
            return false;
    }
}

SelectionPlace SignerList::Place(SelectionRun& dialog) {
    return {.owner = Window(),
            .profile = profile_,
            .csProfileIndex = csProfileIndex_,
            .waitWindow = waitWindow_,
            .services = services_,
            .dialog = dialog};
}

void SignerList::Add() {
    SelectionDialogRun dialog(Window(), services_.reporter, files_);
    if (const auto session = AddSignerList(form_, Place(dialog))) {
        ShowLists();
        list_.ScrollIntoView(list_.RowCount() - 1);
    }
}

void SignerList::EditSelected() {
    const int row = list_.FirstSelectedRow();
    if (row < 0) {
        return;
    }
    SelectionDialogRun dialog(Window(), services_.reporter, files_);
    if (const auto session = EditSignerList(form_, static_cast<std::size_t>(row), Place(dialog))) {
        ShowLists();
    }
}

void SignerList::DeleteSelected() {
    const std::vector<std::size_t> rows = list_.SelectedRows();
    const std::optional<reporting::Question> question = form_.DeletionQuestion(rows);
    if (question && IsAgreed(*question)) {
        form_.Delete(rows);
        {
            // Each row goes with its list, so that the others keep what is selected of them.
            const toolkit::ListView::RedrawLock locked(list_);
            for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
                list_.DeleteRow(static_cast<int>(*row));
            }
        }
        ShowWhatCanBeDone();
    }
}

void SignerList::Describe(int row) const {
    if (row >= 0) {
        services_.warnings.Show(Window(), form_.Describe(static_cast<std::size_t>(row)), kSignerListTitle,
                                WarningMode::kInformation);
    }
}

const wchar_t* SignerList::UnsavedInputReason() {
    return reporting::ReasonAgainstEnd(form_.Lists() != opened_);
}

}  // namespace

std::optional<std::vector<store::SignerGroup>> EditSignerLists(
    toolkit::WindowHandle owner, const store::Profile& profile, std::size_t csProfileIndex,
    const std::vector<store::SignerGroup>& lists, const CertServices& services, toolkit::FileCalls& files) {
    SignerList dialog(owner, profile, csProfileIndex, lists, services, files);
    if (dialog.RunModal() != IDOK) {
        return std::nullopt;
    }
    return dialog.Lists();
}

}  // namespace corvane::certificates
