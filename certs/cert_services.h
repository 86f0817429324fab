#pragma once

#include "app/reporting/error_reporter.h"
#include "certs/clock.h"
#include "certs/provider/provider_library.h"
#include "certs/warning_presenter.h"
#include "config/registry_calls.h"

namespace corvane {

/// What opening a cryptocontext uses of the system. The application owns it all and outlives the dialogs.
struct CertServices {
    ProviderLibrary& provider;
    ErrorReporter& reporter;
    WarningPresenter& warnings;
    RegistryCalls& registry;
    const Clock& clock;
};

}  // namespace corvane
