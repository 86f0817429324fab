#pragma once

#include <optional>
#include <string>

#include "editors/profile_form.h"

namespace corvane {

/// The fields that OK may refuse.
enum class ProfileField { kName, kHandlerTimeout, kTimeStampServer };

/// Why OK refuses a profile, and the field to mend.
struct ProfileRefusal {
    std::wstring text;  ///< For a message box of kRefusalStyle.
    ProfileField field = ProfileField::kName;

    bool operator==(const ProfileRefusal&) const = default;
};

/// What OK checks, in its order; none where the profile may be taken. `profileNames` are those of the whole
/// configuration, the edited profile's own among them.
[[nodiscard]] std::optional<ProfileRefusal> CheckProfile(const ProfileForm& form,
                                                         const TextList& profileNames);

}  // namespace corvane
