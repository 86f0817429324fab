#pragma once

#include "app/reporting/error_reporter.h"
#include "certs/cert_services.h"
#include "editors/rule_cs_profile_change.h"
#include "editors/shown_cs_profile.h"
#include "toolkit/file_calls.h"
#include "toolkit/message_presenter.h"
#include "toolkit/shell_manager.h"

namespace corvane {

/// What the editors use of the system and of the program. The application owns it all and outlives them.
struct EditorServices {
    toolkit::MessagePresenter& messages;
    toolkit::FileCalls& files;
    toolkit::ShellManager& shell;
    ErrorReporter& reporter;
    const CertServices& certs;
    AcceptedCsProfile& acceptedCsProfile;
    ShownCsProfile& shownCsProfile;
};

}  // namespace corvane
