#include "editors/profile/cs_profile_commands.h"

#include <algorithm>
#include <utility>

#include "editors/profile/cs_profile_list.h"
#include "res/ids.h"
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

}  // namespace

std::optional<reporting::Refusal> LeaveCsProfile(ProfileForm& form, const ShownCsProfile& shown) {
    if (!IsTimeStampServerMissing(form)) {
        return std::nullopt;
    }
    form.selectedCsProfile = shown.index;
    return reporting::Refuse(kNoTimeStampServerText);
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

std::optional<reporting::Refusal> CheckCsProfileDeletion(const ProfileForm& form) {
    const bool hasSelection = IsEntry(form, form.selectedCsProfile);
    // Where none is selected, one can be selected in the list.
    const int controlId = hasSelection ? 0 : IDC_PROFILE_CS_PROFILE_LIST;
    if (form.result.csProfiles.size() == 1) {
        return reporting::Refuse(L"Last CS profile in list cannot be deleted.", controlId);
    }
    return hasSelection ? std::nullopt
                        : std::optional(reporting::Refuse(L"Select list item to delete.", controlId));
}

reporting::Question CsProfileDeletionQuestion(const ProfileForm& form) {
    const std::wstring& csProfile =
        form.result.csProfiles.at(static_cast<std::size_t>(form.selectedCsProfile));
    const std::wstring rules = RulesWithCertificatesOf(form, csProfile);
    std::wstring question;
    if (!rules.empty()) {
        // The name that the user knows the profile by, not the one being typed.
        question = toolkit::FormatText(
            L"Rule(s) '%s' of profile '%s' are using sertificates of CS profile '%s'.\r\n"
            L"Validation of these rules will be nessesary for proper work.\r\n",
            {rules, form.openedName, csProfile});
    }
    return {question + toolkit::FormatText(L"Delete CS profile '%s' from list?", {csProfile})};
}

void DeleteCsProfile(ProfileForm& form, ShownCsProfile& shown) {
    const auto selected = static_cast<std::size_t>(form.selectedCsProfile);
    const std::wstring name = form.result.csProfiles.at(selected);
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
