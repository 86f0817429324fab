#include "editors/profile/profile_form.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "editors/profile/cs_profile_list.h"
#include "editors/rule/rule_form.h"
#include "res/ids.h"
#include "toolkit/text/format_text.h"

namespace corvane::editors {

namespace {

void ClampCrlUpdatePeriod(store::CsProfile& entry) {
    entry.crlUpdatePeriod = std::clamp(entry.crlUpdatePeriod, 0, kLongestCrlUpdatePeriod);
}

}  // namespace

std::wstring ProfileTitle(const ProfileForm& form) {
    return form.openedName.empty() ? L"Add profile" : L"Edit profile";
}

std::wstring SettingsTitle(const ProfileForm& form) {
    return L"CS profile setting's: " + form.shown.name;
}

bool IsTimeStampServerEnabled(const ProfileForm& form) {
    return form.shown.autoUseTimeStamp != 0;
}

bool IsNoTimeStampErrorEnabled(const ProfileForm& form) {
    return form.shown.autoVerifyTimeStamp != 0;
}

bool IsTimeStampServerMissing(const ProfileForm& form) {
    return form.shown.autoUseTimeStamp != 0 && form.shown.timeStampServer.empty();
}

void OnUseTimeStampServerClicked(ProfileForm& form) {
    if (form.shown.autoUseTimeStamp == 0) {
        form.shown.timeStampServer = store::kNotSetText;
    }
}

void OnVerifyTimeStampClicked(ProfileForm& form) {
    if (form.shown.autoVerifyTimeStamp == 0) {
        form.shown.noTimeStampIsError = 0;
    }
}

std::wstring OnCrlUpdatePeriodChanged(ProfileForm& form, const std::wstring& text) {
    form.shown.crlUpdatePeriod = toolkit::ParseDecimal(text);
    ClampCrlUpdatePeriod(form.shown);
    return std::to_wstring(form.shown.crlUpdatePeriod);
}

std::optional<std::wstring> OnHandlerTimeoutChanged(ProfileForm& form, const std::wstring& text) {
    NumberField field;
    std::optional<std::wstring> correction = OnNumberTextChanged(field, text);
    form.result.handlerTimeout = field.number;
    return correction;
}

void ShowCsProfile(ProfileForm& form, int index, ShownCsProfile& shown) {
    form.selectedCsProfile = index;
    form.shown = store::CsProfileAt(form.result, static_cast<std::size_t>(index));
    ClampCrlUpdatePeriod(form.shown);
    shown.index = index;
}

void KeepShownSettings(ProfileForm& form, int index) {
    // A negative index is a position that no list has.
    const auto position = static_cast<std::size_t>(index);
    store::CsProfile entry = form.shown;
    entry.name = store::CsProfileAt(form.result, position).name;
    if (entry.timeStampServer.empty()) {
        entry.timeStampServer = store::kNotSetText;
    }
    StoreCsProfile(form.result, position, entry);
}

ProfileForm OpenProfileForm(store::Profile profile, const store::TextList& catalogue, ShownCsProfile& shown) {
    ProfileForm form;
    form.openedName = profile.name;
    form.result = std::move(profile);
    if (form.openedName.empty()) {
        if (catalogue.empty()) {
            throw std::invalid_argument("There is no CS profile for a new profile.");
        }
        store::CsProfile first;
        first.name = catalogue.front();
        AppendCsProfile(form.result, first);
    }
    AlignCsProfiles(form.result);
    // A stored number may be what no field for digits can show.
    form.result.handlerTimeout = std::max(form.result.handlerTimeout, 0);
    ShowCsProfile(form, form.result.csProfiles.empty() ? -1 : 0, shown);
    return form;
}

namespace {

constexpr std::int32_t kLongestName = 15;

bool IsTaken(const ProfileForm& form, const store::TextList& profileNames) {
    const std::wstring& name = form.result.name;
    // An empty opened name is that of a new profile, and no name that is checked here is empty.
    return name != form.openedName &&
           std::find(profileNames.begin(), profileNames.end(), name) != profileNames.end();
}

}  // namespace

std::optional<reporting::Refusal> CheckProfile(const ProfileForm& form, const store::TextList& profileNames) {
    using reporting::Refuse;
    const std::wstring& name = form.result.name;
    if (name.empty()) {
        return Refuse(L"Please, type a name for profile.", IDC_PROFILE_NAME_EDIT);
    }
    if (name.size() > static_cast<std::size_t>(kLongestName)) {
        return Refuse(toolkit::FormatText(L"Profile name cannot be longer than %d symbols.", {kLongestName}),
                      IDC_PROFILE_NAME_EDIT);
    }
    // Deliberate: other white space is a name like any other.
    if (name.find_first_not_of(L' ') == std::wstring::npos) {
        return Refuse(L"Profile name cannot consist from spaces only.", IDC_PROFILE_NAME_EDIT);
    }
    if (form.result.handlerTimeout == 0) {
        return Refuse(L"Please, choose handler timeout.", IDC_PROFILE_TIMEOUT_EDIT);
    }
    if (IsTaken(form, profileNames)) {
        return Refuse(toolkit::FormatText(L"Profile '%s' allready exists.", {name}), IDC_PROFILE_NAME_EDIT);
    }
    if (IsTimeStampServerMissing(form)) {
        return Refuse(kNoTimeStampServerText, IDC_PROFILE_TSP_EDIT);
    }
    // It would be stored as a key within a key, and be lost at the next start.
    if (name.find(L'\\') != std::wstring::npos) {
        return Refuse(L"Profile name cannot contain the symbol '\\'.", IDC_PROFILE_NAME_EDIT);
    }
    return std::nullopt;
}

void CommitProfile(ProfileForm& form) {
    KeepShownSettings(form, form.selectedCsProfile);
}

store::Profile SettingsToKeep(ProfileForm form) {
    CommitProfile(form);
    form.result.rules.clear();
    ShownCsProfile shown;
    for (int i = 0; i < static_cast<int>(form.result.csProfiles.size()); ++i) {
        ShowCsProfile(form, i, shown);
        KeepShownSettings(form, i);
    }
    return std::move(form.result);
}

}  // namespace corvane::editors
