#pragma once

#include "editors/profile_form.h"

namespace corvane {

/// Takes the shown settings into the result, for the CS profile that is selected in the list. Those of the
/// others were kept when the user left them.
void CommitProfile(ProfileForm& form);

}  // namespace corvane
