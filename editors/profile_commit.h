#pragma once

#include "editors/profile_form.h"

namespace corvane {

/// Takes the shown settings into the result, for the CS profile that is selected in the list. Those of the
/// others were kept when the user left them.
void CommitProfile(ProfileForm& form);

/// The profile without its rules as OK would give it now, with every CS profile as the editor can show it.
/// Two of them differ where the user has changed something, not where only another CS profile was looked at.
[[nodiscard]] Profile SettingsToKeep(ProfileForm form);

}  // namespace corvane
