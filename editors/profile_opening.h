#pragma once

#include "editors/profile_form.h"

namespace corvane {

/// The form of a profile that is opened; one without a name is a new one and gets the first CS profile of
/// the catalogue. Throws std::invalid_argument for a new one where the catalogue is empty.
[[nodiscard]] ProfileForm OpenProfileForm(Profile profile, const TextList& catalogue, ShownCsProfile& shown);

}  // namespace corvane
