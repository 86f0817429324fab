#include "editors/profile_opening.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "editors/cs_profile_list.h"

namespace corvane {

ProfileForm OpenProfileForm(Profile profile, const TextList& catalogue, ShownCsProfile& shown) {
    ProfileForm form;
    form.openedName = profile.name;
    form.result = std::move(profile);
    if (form.openedName.empty()) {
        if (catalogue.empty()) {
            throw std::invalid_argument("There is no CS profile for a new profile.");
        }
        CsProfile first;
        first.name = catalogue.front();
        AppendCsProfile(form.result, first);
    }
    AlignCsProfiles(form.result);
    // A stored number may be what no field for digits can show.
    form.result.handlerTimeout = std::max(form.result.handlerTimeout, 0);
    ShowCsProfile(form, form.result.csProfiles.empty() ? -1 : 0, shown);
    return form;
}

}  // namespace corvane
