#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "reporting/refusal.h"
#include "store/records.h"

namespace corvane::editors {

/// The CS profile whose settings the profile editor shows, as its index in the profile. There is one for the
/// whole program, owned by whoever opens profile editors.
struct ShownCsProfile {
    int index = 0;
};

/// The texts of the profile editor that stay as they are.
inline constexpr wchar_t kProfileExitText[] = L"Exit";
inline constexpr wchar_t kAddCsProfileText[] = L"Add";
inline constexpr wchar_t kDeleteCsProfileText[] = L"Delete";

/// Where a CS profile wants a time-stamp server and none is given (refusal).
inline constexpr wchar_t kNoTimeStampServerText[] = L"Please, type TSP data.";

/// The longest update period of revocation lists, in hours: a year of 365 days.
inline constexpr std::int32_t kLongestCrlUpdatePeriod = 8760;

/// What the profile editor edits: a copy of the profile, and the settings of the CS profile that it shows.
/// The dialog copies the edited members from and to its controls.
struct ProfileForm {
    store::Profile result;       ///< Name, options and CS profiles as edited; after OK the result.
    std::wstring openedName;     ///< The name at opening; empty for a new profile.
    int selectedCsProfile = -1;  ///< Of the CS profile list, counted from 0; -1 for none.
    /// The settings group: what is shown of the CS profile named here, and kept when the user leaves it.
    store::CsProfile shown;
    store::TextList deletedCsProfiles;  ///< Names of the CS profiles deleted so far, each once.
};

[[nodiscard]] std::wstring ProfileTitle(const ProfileForm& form);
/// The title of the settings group.
[[nodiscard]] std::wstring SettingsTitle(const ProfileForm& form);
[[nodiscard]] bool IsTimeStampServerEnabled(const ProfileForm& form);
[[nodiscard]] bool IsNoTimeStampErrorEnabled(const ProfileForm& form);
/// The shown CS profile uses a time-stamp server and names none.
[[nodiscard]] bool IsTimeStampServerMissing(const ProfileForm& form);

/// The user checked or unchecked "Use TSP server:". Without it the server is "0", which stays when the box is
/// checked again.
void OnUseTimeStampServerClicked(ProfileForm& form);
/// The user checked or unchecked the verification of time stamps. Without it their lack is no error.
void OnVerifyTimeStampClicked(ProfileForm& form);
/// The user changed the text of the update period. Returns the text that the field has to show: the period
/// as a number in its range, also where the user is still typing or has emptied the field.
[[nodiscard]] std::wstring OnCrlUpdatePeriodChanged(ProfileForm& form, const std::wstring& text);
/// The user changed the text of the handler timeout. Returns the text that has to be put into the field at
/// once instead, or none where it may stand; see OnNumberTextChanged.
[[nodiscard]] std::optional<std::wstring> OnHandlerTimeoutChanged(ProfileForm& form,
                                                                  const std::wstring& text);

/// Shows the settings of the CS profile at `index`, selects it and remembers it as the one that is shown.
void ShowCsProfile(ProfileForm& form, int index, ShownCsProfile& shown);
/// Keeps the shown settings as those of the CS profile at `index`, which keeps its name; nothing where there
/// is none. A time-stamp server that is not set is "0".
void KeepShownSettings(ProfileForm& form, int index);

/// The form of a profile that is opened; one without a name is a new one and gets the first CS profile of
/// the catalogue. Throws std::invalid_argument for a new one where the catalogue is empty.
[[nodiscard]] ProfileForm OpenProfileForm(store::Profile profile, const store::TextList& catalogue,
                                          ShownCsProfile& shown);

/// What OK refuses, in the order of its checks; none where the profile may be taken. `profileNames` are those
/// of the whole configuration, the edited profile's own among them.
[[nodiscard]] std::optional<reporting::Refusal> CheckProfile(const ProfileForm& form,
                                                             const store::TextList& profileNames);

/// Takes the shown settings into the result, for the CS profile that is selected in the list. Those of the
/// others were kept when the user left them.
void CommitProfile(ProfileForm& form);

/// The profile without its rules as OK would give it now, with every CS profile as the editor can show it.
/// Two of them differ where the user has changed something, not where only another CS profile was looked at.
[[nodiscard]] store::Profile SettingsToKeep(ProfileForm form);

}  // namespace corvane::editors
