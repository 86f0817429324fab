#include "editors/profile/cs_profile_commands.h"

#include <algorithm>
#include <utility>

#include "editors/profile/cs_profile_list.h"
#include "reporting/message_styles.h"
#include "toolkit/text/format_text.h"

namespace corvane::editors {

namespace {

bool IsEntry(const ProfileForm& form, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < form.result.csProfiles.size();
}

bool HasCertificatesOf(const store::Rule& rule, const std::wstring& csProfile) {
    return rule.csProfile == csProfile && (!rule.recipients.empty() || !rule.signerGroups.empty());
}

/// The numbers of the rules that hold certificates of a CS profile, counted from 1: "2,5".
std::wstring RulesWithCertificatesOf(const ProfileForm& form, const std::wstring& csProfile) {
    std::wstring numbers;
    std::int64_t number = 0;
    for (const store::Rule& rule : form.result.rules) {
        ++number;
        if (HasCertificatesOf(rule, csProfile)) {
            numbers += (numbers.empty() ? L"" : L",") + std::to_wstring(number);
        }
    }
    return numbers;
}

std::wstring DeletionQuestion(const ProfileForm& form, const std::wstring& csProfile) {
    const std::wstring rules = RulesWithCertificatesOf(form, csProfile);
    std::wstring question;
    if (!rules.empty()) {
        // The name that the user knows the profile by, not the one being typed.
        question = toolkit::FormatText(
            L"Rule(s) '%s' of profile '%s' are using sertificates of CS profile '%s'.\r\n"
            L"Validation of these rules will be nessesary for proper work.\r\n",
            {rules, form.openedName, csProfile});
    }
    return question + toolkit::FormatText(L"Delete CS profile '%s' from list?", {csProfile});
}

}  // namespace

bool MayLeaveCsProfile(ProfileForm& form, const ShownCsProfile& shown) {
    if (!IsTimeStampServerMissing(form)) {
        return true;
    }
    form.selectedCsProfile = shown.index;
    return false;
}

void ChangeShownCsProfile(ProfileForm& form, ShownCsProfile& shown) {
    const int selected = form.selectedCsProfile;
    if (selected != shown.index && IsEntry(form, selected)) {
        KeepShownSettings(form, shown.index);
        ShowCsProfile(form, selected, shown);
    }
}

void AddCsProfile(ProfileForm& form, const std::wstring& name, ShownCsProfile& shown,
                  const toolkit::SystemText& systemText) {
    if (HasCsProfile(form.result, name, systemText)) {
        return;
    }
    // All or nothing, should memory be short: the eleven lists and what is shown of them belong together.
    ProfileForm changed = form;
    ShownCsProfile changedShown;
    KeepShownSettings(changed, shown.index);
    store::CsProfile added;
    added.name = name;
    AppendCsProfile(changed.result, added);
    ShowCsProfile(changed, static_cast<int>(changed.result.csProfiles.size()) - 1, changedShown);
    std::erase(changed.deletedCsProfiles, name);
    form = std::move(changed);
    shown = changedShown;
}

void DeleteCsProfile(ProfileForm& form, ShownCsProfile& shown, reporting::ErrorReporter& reporter,
                     toolkit::WindowHandle dialog) {
    store::TextList& names = form.result.csProfiles;
    if (names.size() == 1) {
        reporter.ShowMessage(dialog, std::wstring(L"Last CS profile in list cannot be deleted."),
                             reporting::kRefusalStyle);
        return;
    }
    if (!IsEntry(form, form.selectedCsProfile)) {
        reporter.ShowMessage(dialog, std::wstring(L"Select list item to delete."), reporting::kRefusalStyle);
        return;
    }
    const auto selected = static_cast<std::size_t>(form.selectedCsProfile);
    const std::wstring name = names[selected];
    if (reporter.ShowMessage(dialog, DeletionQuestion(form, name), reporting::kConfirmationStyle) !=
        reporting::kAnswerYes) {
        return;
    }
    // All or nothing here too: the settings of the deleted one must not stay shown for another.
    ProfileForm changed = form;
    ShownCsProfile changedShown;
    EraseCsProfile(changed.result, selected);
    ShowCsProfile(changed, 0, changedShown);
    store::TextList& deleted = changed.deletedCsProfiles;
    if (std::find(deleted.begin(), deleted.end(), name) == deleted.end()) {
        deleted.push_back(name);
    }
    form = std::move(changed);
    shown = changedShown;
}

}  // namespace corvane::editors
