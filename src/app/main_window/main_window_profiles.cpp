// The profile commands of the main window.

#include <optional>
#include <utility>

#include "app/main_window/main_window_dialog.h"
#include "app/main_window/profile_commands.h"
#include "app/main_window/rules_file_commands.h"
#include "editors/profile/cs_profile_choice_form.h"
#include "editors/profile/profile_editor_dialog.h"
#include "reporting/message_styles.h"
#include "res/ids.h"

namespace corvane::app {

void CCorvaneDlg::FillProfileList() {
    {
        const toolkit::ListView::RedrawLock locked(profileList_);
        for (const std::wstring& name : state_.profileNames) {
            if (!name.empty() && profileList_.FindRow(name) < 0) {
                profileList_.AppendRow(name);
            }
        }
    }
    LayOutColumns();
}

void CCorvaneDlg::OpenProfile() {
    const int row = profileList_.FirstSelectedRow();
    if (row < 0) {
        return;
    }
    ruleList_.Clear();
    const std::optional<OpenedProfile> opened = OpenProfileNamed(state_, profileList_.RowText(row));
    if (!opened) {
        return;
    }
    TakeData();
    profileCaption_ = ProfileCaption(opened->name);
    ruleListCaption_ = RuleListCaption(opened->csProfileCount);
    PutData();
    EnableProfileCommands(true);
    // The row's position, not the name's: the list mirrors the order of the configuration.
    ruleList_.Fill(static_cast<std::size_t>(row), searchText_, services_.reporter.Text(),
                   RuleListView::Keep::kNothing);
}

void CCorvaneDlg::AddProfile() {
    if (state_.csProfileCatalogue.empty()) {
        services_.reporter.ShowMessage(Window(), std::wstring(editors::kNoCsProfilesText),
                                       reporting::kRefusalStyle);
        return;
    }
    std::optional<editors::EditedProfile> edited =
        editors::EditProfile(Window(), state_, store::Profile(), services_.editors);
    if (edited) {
        AppendProfile(state_, std::move(edited->profile));
        FillProfileList();
    }
}

void CCorvaneDlg::EditCurrentProfile() {
    const store::Profile* const current = store::FindCurrentProfile(state_);
    if (HasNoProfileToEdit(state_) || current == nullptr) {
        return;
    }
    std::optional<editors::EditedProfile> edited =
        editors::EditProfile(Window(), state_, *current, services_.editors);
    if (!edited) {
        return;
    }
    const std::optional<std::size_t> position =
        ReplaceCurrentProfile(state_, std::move(edited->profile), edited->deletedCsProfiles);
    if (!position) {
        return;
    }
    const store::Profile& profile = state_.profiles[*position];
    TakeData();
    profileCaption_ = ProfileCaption(profile.name);
    ruleListCaption_ = RuleListCaption(profile.csProfiles.size());
    PutData();
    profileList_.SetRowText(static_cast<int>(*position), profile.name);
    RefillRuleList(RuleListView::Keep::kScrollAndSelection);
}

void CCorvaneDlg::DeleteSelectedProfile() {
    const int selected = profileList_.FirstSelectedRow();
    if (selected < 0 ||
        services_.reporter.ShowMessage(Window(), DeleteProfileQuestion(state_.currentProfileName),
                                       reporting::kConfirmationStyle) != reporting::kAnswerYes) {
        return;
    }
    store::TextList rows;
    for (int row = 0; row < profileList_.RowCount(); ++row) {
        rows.push_back(profileList_.RowText(row));
    }
    const std::optional<DeletedProfile> deleted =
        DeleteProfile(state_, rows, static_cast<std::size_t>(selected));
    if (!deleted) {
        services_.reporter.ShowMessage(Window(), std::wstring(kLastProfileText), reporting::kRefusalStyle);
        return;
    }
    // The rows go before the profile that they show would be read again.
    ruleList_.Clear();
    profileList_.DeleteRow(selected);
    TakeData();
    profileCaption_ = ProfileCaption(L"");
    ruleListCaption_ = RuleListCaption(0);
    PutData();
    EnableProfileCommands(false);
    // Last of all: the rule list has lost the focus by now, and the check boxes that it does not have were
    // copied nowhere.
    state_.currentProfileName = deleted->nextCurrentName;
    LayOutColumns();
}

void CCorvaneDlg::ImportRules() {
    if (!ImportProfileRules(state_, Window(), services_)) {
        return;
    }
    TakeData();
    RefillRuleList(RuleListView::Keep::kNothing);
    SelectRow(ruleList_.Control().RowCount() - 1);
    PutData();
}

void CCorvaneDlg::EnableProfileCommands(bool isEnabled) {
    if (!isEnabled) {
        // The focus would be lost with the control that has it.
        profileList_.Focus();
    }
    for (const int control : kProfileControls) {
        EnableControl(control, isEnabled);
    }
    const HMENU menu = GetMenu(Window());
    const UINT state = isEnabled ? MF_ENABLED : MF_DISABLED | MF_GRAYED;
    for (const int item : kProfileMenuItems) {
        EnableMenuItem(menu, static_cast<UINT>(item), MF_BYCOMMAND | state);
    }
    DrawMenuBar(Window());
}

}  // namespace corvane::app
