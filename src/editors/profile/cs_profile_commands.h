#pragma once

#include <optional>
#include <string>

#include "editors/profile/profile_form.h"
#include "reporting/refusal.h"
#include "toolkit/text/system_text.h"

// What the CS profile list of the profile editor does.

namespace corvane::editors {

/// Asked before another CS profile is shown. A time-stamp server that is missing keeps the user at the shown
/// one: the selection then goes back to it, and the refusal is returned; else none.
[[nodiscard]] std::optional<reporting::Refusal> LeaveCsProfile(ProfileForm& form,
                                                               const ShownCsProfile& shown);

/// The user selected a CS profile and may leave the shown one, whose settings are kept.
void ChangeShownCsProfile(ProfileForm& form, ShownCsProfile& shown);

/// The user chose a CS profile to add. Keeps the shown settings, adds the CS profile at the end with the
/// settings of a new one, and shows it. One that the profile has already, upper and lower case alike, is
/// passed over without a word.
void AddCsProfile(ProfileForm& form, const std::wstring& name, ShownCsProfile& shown,
                  const toolkit::SystemText& systemText);

/// Why the selected CS profile cannot be deleted: the last one stays, and one has to be selected. Else none.
[[nodiscard]] std::optional<reporting::Refusal> CheckCsProfileDeletion(const ProfileForm& form);

/// What is asked before the selected CS profile, which may be deleted, goes.
[[nodiscard]] reporting::Question CsProfileDeletionQuestion(const ProfileForm& form);

/// Deletes the selected CS profile, which may be deleted, its shown settings with it, and shows the first
/// one.
void DeleteCsProfile(ProfileForm& form, ShownCsProfile& shown);

}  // namespace corvane::editors
