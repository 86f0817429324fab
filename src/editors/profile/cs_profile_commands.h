#pragma once

#include <string>

#include "editors/profile/profile_form.h"
#include "reporting/error_reporter.h"
#include "toolkit/system/window_handle.h"
#include "toolkit/text/system_text.h"

// What the CS profile list of the profile editor does.

namespace corvane::editors {

/// Asked before another CS profile is shown. A time-stamp server that is missing keeps the user at the shown
/// one: the selection then goes back to it, and the refusal kNoTimeStampServerText is to be shown.
[[nodiscard]] bool MayLeaveCsProfile(ProfileForm& form, const ShownCsProfile& shown);

/// The user selected a CS profile and may leave the shown one, whose settings are kept.
void ChangeShownCsProfile(ProfileForm& form, ShownCsProfile& shown);

/// The user chose a CS profile to add. Keeps the shown settings, adds the CS profile at the end with the
/// settings of a new one, and shows it. One that the profile has already, upper and lower case alike, is
/// passed over without a word.
void AddCsProfile(ProfileForm& form, const std::wstring& name, ShownCsProfile& shown,
                  const toolkit::SystemText& systemText);

/// Deletes the selected CS profile with the user's consent, its shown settings with it, and shows the first
/// one. The last one stays. Question and refusals are owned by `dialog`.
void DeleteCsProfile(ProfileForm& form, ShownCsProfile& shown, reporting::ErrorReporter& reporter,
                     toolkit::WindowHandle dialog);

}  // namespace corvane::editors
