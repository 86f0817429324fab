#include "app/main_window/main_window_dialog.h"

#include <optional>
#include <utility>
#include <vector>

#include "app/about/about_dialog.h"
#include "app/extensions_page/extensions_page_dialog.h"
#include "app/log_settings/log_settings_dialog.h"
#include "app/main_window/profile_commands.h"
#include "app/main_window/rules_file_commands.h"
#include "app/rule_list/rule_row.h"
#include "app/rule_list/rule_ticks.h"
#include "reporting/message_styles.h"
#include "reporting/unsaved_changes.h"
#include "res/ids.h"
#include "store/registry/load_configuration.h"
#include "store/registry/save_configuration.h"
#include "toolkit/controls/wrapped_caption.h"
#include "toolkit/dialog/data_exchange.h"
#include "toolkit/dialog/window_geometry.h"
#include "toolkit/system/wait_cursor.h"

namespace corvane::app {

namespace {

/// Tells whether a button's caption is too long for one line.
bool HasWrappedCaption(UINT_PTR controlId) {
    return controlId == IDC_SAVE_BUTTON || controlId == IDOK || controlId == IDCANCEL;
}

}  // namespace

CCorvaneDlg::CCorvaneDlg(const Services& services)
    : reporting::ProductDialog(IDD_MAIN_WINDOW, nullptr, services.reporter),
      services_(services),
      registry_(services.registry, services.reporter),
      ruleList_(state_) {}

bool CCorvaneDlg::OnInitDialog() {
    RememberLayout();
    SetUpMenu();
    for (const IdText& tip : kToolTips) {
        SetToolTip(tip.id, tip.text);
    }
    SetWindowTextW(Window(), reporting::AppTitle);
    const HMENU systemMenu = GetSystemMenu(Window(), FALSE);
    if (systemMenu != nullptr) {
        AppendMenuW(systemMenu, MF_SEPARATOR, 0, nullptr);
        AppendMenuW(systemMenu, MF_STRING, static_cast<UINT_PTR>(kAboutItem.id), kAboutItem.text);
    }
    SetUpCaptions();
    SetWindowIcon(IDI_MAIN_WINDOW);
    for (const ButtonIcon& button : kButtonIcons) {
        SetButtonIcon(button.buttonId, button.iconId);
    }

    state_.isDirty = false;
    SetUpLists();

    if (!Load()) {
        EndModal(IDCANCEL);
        return true;
    }
    RestorePlacement();
    FillProfileList();
    profileList_.Focus();
    profileList_.SelectOnly(0);
    OpenProfile();
    toolkit::ShowNeverMaximised(Window());
    return false;
}

bool CCorvaneDlg::Load() {
    const toolkit::WaitCursor waiting;
    // Nobody can see the window yet: what is reported stands on its own.
    return store::LoadConfiguration(state_, registry_, services_.reporter, nullptr);
}

void CCorvaneDlg::SetUpMenu() const {
    const HMENU menu = GetMenu(Window());
    for (const IdText& item : kMenuItemTexts) {
        MENUITEMINFOW info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_STRING | MIIM_STATE;
        info.fState = MFS_ENABLED;
        // The menu copies the text; its structure only has no const.
        info.dwTypeData = const_cast<wchar_t*>(item.text);
        SetMenuItemInfoW(menu, static_cast<UINT>(item.id), FALSE, &info);
    }
}

void CCorvaneDlg::SetUpCaptions() {
    for (const IdText& caption : kInitialCaptions) {
        // The template has most of them already, and each one that is set is laid out anew.
        if (toolkit::WindowText(Control(caption.id)) != caption.text) {
            SetControlText(caption.id, caption.text);
        }
    }
    TakeData();
}

void CCorvaneDlg::SetUpLists() {
    const int scrollBarWidth = toolkit::SystemMetric(SM_CXVSCROLL, DotsPerInch());
    ruleList_.Attach(Control(IDC_RULE_LIST), scrollBarWidth);
    profileList_.Attach(Control(IDC_PROFILE_LIST));
    profileList_.AddExtendedStyles(LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP);
    profileList_.InsertColumn(0, kProfileColumnTitle,
                              LayOutProfileColumn(profileList_.ClientWidth(), scrollBarWidth, true));
}

void CCorvaneDlg::RememberLayout() {
    const auto share = [](bool follows) {
        return follows ? toolkit::GrowthShare::kAll : toolkit::GrowthShare::kNone;
    };
    std::vector<toolkit::Anchor> anchors;
    anchors.reserve(kControlChanges.size());
    for (const ControlChange& control : kControlChanges) {
        anchors.push_back({.controlId = control.id,
                           .moveX = share(control.moveX),
                           .moveY = share(control.moveY),
                           .growX = share(control.growX),
                           .growY = share(control.growY)});
    }
    LetControlsFollow(anchors);
}

void CCorvaneDlg::RestorePlacement() const {
    const store::WindowRectangle& stored = state_.settings.window;
    if (!store::ShouldRestoreWindow(stored)) {
        return;
    }
    // A rectangle on a screen that is no longer there is moved by the system to where it can be seen.
    toolkit::PlaceHiddenWindow(Window(), {stored.left, stored.top, stored.right, stored.bottom},
                               [this] { return DotsPerInch(); });
}

bool CCorvaneDlg::OnCommand(int controlId, UINT notificationCode) {
    if (controlId == IDC_SEARCH_EDIT && notificationCode == EN_CHANGE) {
        Execute([this] { Search(); });
        return true;
    }
    // A menu sends 0 like a button, an accelerator key 1.
    const std::optional<MainCommand> command =
        notificationCode <= 1 ? FindMainCommand(controlId) : std::nullopt;
    if (!command) {
        return false;
    }
    Execute([this, &command] { Run(*command); });
    return true;
}

void CCorvaneDlg::Execute(const std::function<void()>& command) {
    TakeTicksOfShownRules();
    command();
}

void CCorvaneDlg::Run(MainCommand command) {
    switch (command) {
        case MainCommand::kSave:
            return Save();
        case MainCommand::kLogPath:
            return EditLogSettings();
        case MainCommand::kConfigurations:
            return EditExtensions();
        case MainCommand::kExitWithoutSaving:
            return OnCancel();
        case MainCommand::kSaveAndExit:
            return OnOk();
        case MainCommand::kAddProfile:
            return AddProfile();
        case MainCommand::kEditProfile:
            return EditCurrentProfile();
        case MainCommand::kDeleteProfile:
            return DeleteSelectedProfile();
        case MainCommand::kImportRules:
            return ImportRules();
        case MainCommand::kExportRules:
            return ExportProfileRules(state_, Window(), services_);
        case MainCommand::kOpenProfile:
            return OpenProfile();
        case MainCommand::kAddRule:
            return AddRule();
        case MainCommand::kCopyRule:
            return CopySelectedRule();
        case MainCommand::kEditRule:
            return EditSelectedRule();
        case MainCommand::kDeleteRule:
            return DeleteSelectedRules();
        case MainCommand::kMakeFirst:
        case MainCommand::kMoveUp:
        case MainCommand::kMoveDown:
        case MainCommand::kMakeLast:
            return MoveSelectedRule(command);
    }
}

bool CCorvaneDlg::OnNotify(NMHDR& header, LRESULT& result) {
    if (header.code == NM_CUSTOMDRAW && HasWrappedCaption(header.idFrom)) {
        result = toolkit::DrawWrappedCaption(reinterpret_cast<const NMCUSTOMDRAW&>(header));
        return true;
    }
    if (header.hwndFrom == profileList_.Window()) {
        OnProfileListNotification(header);
        return false;
    }
    return header.hwndFrom == ruleList_.Control().Window() && OnRuleListNotification(header);
}

void CCorvaneDlg::OnProfileListNotification(const NMHDR& header) {
    if (header.code == NM_CLICK) {
        Execute([this] { OpenProfile(); });
    } else if (header.code == NM_DBLCLK) {
        Execute([this] { EditCurrentProfile(); });
    }
}

bool CCorvaneDlg::OnRuleListNotification(NMHDR& header) {
    switch (header.code) {
        case LVN_GETDISPINFOW:
            return ruleList_.Control().Answer(header);
        case NM_DBLCLK:
            Execute([this] { EditSelectedRule(); });
            return true;
        case NM_RCLICK:
            Execute([this, &header] { DescribeCell(reinterpret_cast<const NMITEMACTIVATE&>(header)); });
            return true;
        case NM_KILLFOCUS:
            CopyCheckBoxes();
            return true;
        case LVN_KEYDOWN:
            if (reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey == VK_DELETE) {
                Execute([this] { DeleteSelectedRules(); });
            }
            return true;
        default:
            return false;
    }
}

void CCorvaneDlg::Save() {
    const toolkit::WaitCursor waiting;
    store::SaveConfiguration(state_, RestoredRectangle(), registry_, services_.reporter, Window());
}

store::WindowRectangle CCorvaneDlg::RestoredRectangle() const {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    GetWindowPlacement(Window(), &placement);
    const RECT& restored = placement.rcNormalPosition;
    return {.top = restored.top, .bottom = restored.bottom, .left = restored.left, .right = restored.right};
}

void CCorvaneDlg::OnOk() {
    Save();
    if (reporting::MayLeave(state_.isDirty, services_.reporter, Window())) {
        Leave(IDOK);
    }
}

void CCorvaneDlg::OnCancel() {
    if (reporting::MayLeave(state_.isDirty, services_.reporter, Window())) {
        Leave(IDCANCEL);
    }
}

void CCorvaneDlg::Leave(int result) {
    TakeData();
    ruleList_.Clear();
    EndModal(result);
}

void CCorvaneDlg::EditLogSettings() {
    CConflictDlg dialog(Window(), state_.settings.logPath, state_.settings.logFileSize, services_);
    if (dialog.RunModal() != IDOK) {
        return;
    }
    state_.settings.logPath = dialog.LogPath();
    state_.settings.logFileSize = dialog.LogFileSize();
    state_.isDirty = true;
}

void CCorvaneDlg::EditExtensions() {
    std::optional<store::AppSettings> edited = EditConfigurations(Window(), state_.settings, services_);
    if (edited) {
        state_.settings = std::move(*edited);
        state_.isDirty = true;
    }
}

void CCorvaneDlg::ShowAbout() {
    CAboutDlg(Window(), services_.reporter).RunModal();
}

void CCorvaneDlg::OnMinimumMaximumInfo(MINMAXINFO& info) {
    const HWND button = Control(kSaveAndExitButton);
    if (button == nullptr) {
        return;
    }
    RECT place = {};
    GetWindowRect(button, &place);
    const Size size = MinimumTrackingSize(place.right - place.left, place.bottom - place.top,
                                          toolkit::SystemMetric(SM_CXVSCROLL, DotsPerInch()),
                                          toolkit::SystemMetric(SM_CYVSCROLL, DotsPerInch()));
    info.ptMinTrackSize.x = size.width;
    info.ptMinTrackSize.y = size.height;
}

bool CCorvaneDlg::OnSystemCommand(WPARAM command) {
    if (!IsAboutCommand(command)) {
        return false;
    }
    Execute([this] { ShowAbout(); });
    return true;
}

bool CCorvaneDlg::OnPaint() {
    if (IsIconic(Window()) == FALSE) {
        return false;
    }
    PAINTSTRUCT paint = {};
    const HDC context = BeginPaint(Window(), &paint);
    SendMessageW(Window(), WM_ICONERASEBKGND, reinterpret_cast<WPARAM>(context), 0);
    RECT client = {};
    GetClientRect(Window(), &client);
    const Size iconSize = {.width = toolkit::SystemMetric(SM_CXICON, DotsPerInch()),
                           .height = toolkit::SystemMetric(SM_CYICON, DotsPerInch())};
    const Point position = MinimisedIconPosition({.width = client.right, .height = client.bottom}, iconSize);
    DrawIcon(context, position.x, position.y, LargeIcon());
    EndPaint(Window(), &paint);
    return true;
}

HICON CCorvaneDlg::OnQueryDragIcon() {
    return LargeIcon();
}

const wchar_t* CCorvaneDlg::UnsavedInputReason() {
    TakeTicksOfShownRules();
    return reporting::ReasonAgainstEnd(state_.isDirty);
}

void CCorvaneDlg::OnScaleChanged() {
    ruleList_.MakeCheckBoxesAgain();
    reporting::ProductDialog::OnScaleChanged();
}

void CCorvaneDlg::ExchangeFields(toolkit::DataExchange& exchange) {
    exchange.Text(IDC_PROFILE_CAPTION_EDIT, profileCaption_);
    exchange.Text(IDC_RULE_LIST_CAPTION_EDIT, ruleListCaption_);
    exchange.Text(IDC_SEARCH_EDIT, searchText_);
}

void CCorvaneDlg::LayOutColumns() {
    const int scrollBarWidth = toolkit::SystemMetric(SM_CXVSCROLL, DotsPerInch());
    ruleList_.LayOutColumns(scrollBarWidth);
    profileList_.LayOutColumns([this, scrollBarWidth](int clientWidth) {
        profileList_.SetColumnWidth(0, LayOutProfileColumn(clientWidth, scrollBarWidth, false));
    });
}

}  // namespace corvane::app
