#include "editors/profile_commit.h"

#include <utility>

namespace corvane {

void CommitProfile(ProfileForm& form) {
    KeepShownSettings(form, form.selectedCsProfile);
}

Profile SettingsToKeep(ProfileForm form) {
    CommitProfile(form);
    form.result.rules.clear();
    ShownCsProfile shown;
    for (int i = 0; i < static_cast<int>(form.result.csProfiles.size()); ++i) {
        ShowCsProfile(form, i, shown);
        KeepShownSettings(form, i);
    }
    return std::move(form.result);
}

}  // namespace corvane
