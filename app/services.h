#pragma once

#include "app/reporting/error_reporter.h"
#include "config/registry_calls.h"
#include "editors/editor_services.h"
#include "toolkit/file_calls.h"
#include "toolkit/message_presenter.h"
#include "toolkit/shell_manager.h"

namespace corvane {

/// What the windows of the program use of the system. The application owns it all and outlives them.
struct Services {
    toolkit::MessagePresenter& messages;
    toolkit::FileCalls& files;
    toolkit::ShellManager& shell;
    RegistryCalls& registry;
    ErrorReporter& reporter;
    const EditorServices& editors;
};

}  // namespace corvane
