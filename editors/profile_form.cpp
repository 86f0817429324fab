#include "editors/profile_form.h"

#include <algorithm>

#include "editors/cs_profile_list.h"
#include "editors/rule_number_entry.h"
#include "toolkit/format_text.h"

namespace corvane {

namespace {

void ClampCrlUpdatePeriod(CsProfile& entry) {
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
        form.shown.timeStampServer = kNotSetText;
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
    form.shown = CsProfileAt(form.result, static_cast<std::size_t>(index));
    ClampCrlUpdatePeriod(form.shown);
    shown.index = index;
}

void KeepShownSettings(ProfileForm& form, int index) {
    // A negative index is a position that no list has.
    const auto position = static_cast<std::size_t>(index);
    CsProfile entry = form.shown;
    entry.name = CsProfileAt(form.result, position).name;
    if (entry.timeStampServer.empty()) {
        entry.timeStampServer = kNotSetText;
    }
    StoreCsProfile(form.result, position, entry);
}

}  // namespace corvane
