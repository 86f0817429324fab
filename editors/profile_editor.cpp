#include "editors/profile_editor.h"

namespace corvane {

std::optional<EditedProfile> EditProfile(toolkit::WindowHandle /*owner*/, const ConfigurationState& /*state*/,
                                         const Profile& /*profile*/, const EditorServices& /*services*/) {
    // The program has no dialog for this yet, so the command ends like a cancelled one.
    return std::nullopt;
}

}  // namespace corvane
