#include "editors/profile_editor.h"

#include "editors/profile_editor_dialog.h"

namespace corvane {

std::optional<EditedProfile> EditProfile(toolkit::WindowHandle owner, const ConfigurationState& state,
                                         const Profile& profile, const EditorServices& services) {
    CAddProfile dialog(owner, state, profile, services);
    if (dialog.RunModal() != IDOK) {
        return std::nullopt;
    }
    return EditedProfile{.profile = dialog.Result(), .deletedCsProfiles = dialog.DeletedCsProfiles()};
}

}  // namespace corvane
