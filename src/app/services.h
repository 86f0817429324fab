#pragma once

#include "editors/editor_services.h"
#include "reporting/error_reporter.h"
#include "store/registry/registry_calls.h"
#include "toolkit/files/file_calls.h"
#include "toolkit/files/path_pickers.h"

namespace corvane::app {

/// What the windows of the program use of the system. The application owns it all and outlives them.
struct Services {
    toolkit::FileCalls& files;
    toolkit::ShellManager& shell;
    store::RegistryCalls& registry;
    reporting::ErrorReporter& reporter;
    const editors::EditorServices& editors;
};

}  // namespace corvane::app
