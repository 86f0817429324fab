#include "certs/recipient_selection_dialog.h"

#include "certs/await_dialog.h"
#include "certs/selection_dialog_run.h"

namespace corvane {

std::optional<ChosenRecipients> EditRecipients(toolkit::WindowHandle owner, const Profile& profile,
                                               std::size_t csProfileIndex, const TextList& recipients,
                                               const CertServices& services, toolkit::FileCalls& files) {
    AwaitWindow waitWindow;
    return ChooseRecipients({.owner = owner,
                             .profile = profile,
                             .csProfileIndex = csProfileIndex,
                             .waitWindow = waitWindow,
                             .services = services},
                            recipients, ShowSelectionDialog(owner, services.reporter, files));
}

}  // namespace corvane
