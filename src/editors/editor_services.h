#pragma once

#include "certificates/session/cert_services.h"
#include "editors/profile/profile_form.h"
#include "editors/rule/rule_form.h"
#include "reporting/error_reporter.h"
#include "toolkit/files/file_calls.h"
#include "toolkit/files/path_pickers.h"

namespace corvane::editors {

/// What the editors use of the system and of the program. The application owns it all and outlives them.
struct EditorServices {
    toolkit::FileCalls& files;
    toolkit::ShellManager& shell;
    reporting::ErrorReporter& reporter;
    const certificates::CertServices& certs;
    AcceptedCsProfile& acceptedCsProfile;
    ShownCsProfile& shownCsProfile;
};

}  // namespace corvane::editors
