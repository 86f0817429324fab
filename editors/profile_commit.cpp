#include "editors/profile_commit.h"

namespace corvane {

void CommitProfile(ProfileForm& form) {
    KeepShownSettings(form, form.selectedCsProfile);
}

}  // namespace corvane
