#pragma once

#include <optional>

#include "config/records.h"
#include "editors/editor_services.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// What the profile editor gives back.
struct EditedProfile {
    Profile profile;
    TextList deletedCsProfiles;  ///< Names of the CS profiles that were deleted in the editor.
};

/// Lets the user create or change a profile; one without a name is a new one. The catalogue and the names of
/// the other profiles are in `state`. Returns none when the user cancels.
[[nodiscard]] std::optional<EditedProfile> EditProfile(toolkit::WindowHandle owner,
                                                       const ConfigurationState& state,
                                                       const Profile& profile,
                                                       const EditorServices& services);

}  // namespace corvane
