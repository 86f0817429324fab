#pragma once

#include "app/reporting/error_reporter.h"
#include "certs/clock.h"
#include "certs/provider/provider_library.h"
#include "certs/warning_presenter.h"
#include "config/registry_calls.h"
#include "toolkit/input_gate.h"

namespace corvane {

/// Whether a cryptocontext is being opened. There is one of it for the whole program: whatever the provider
/// or a warning lets through in the middle of an opening must not begin another.
struct SessionOpening {
    bool isUnderWay = false;
};

/// What opening a cryptocontext uses of the system. The application owns it all and outlives the dialogs.
struct CertServices {
    ProviderLibrary& provider;
    ErrorReporter& reporter;
    WarningPresenter& warnings;
    RegistryCalls& registry;
    const Clock& clock;
    toolkit::InputGate& input;  ///< Shut while a call of the provider runs.
    SessionOpening& opening;
};

}  // namespace corvane
