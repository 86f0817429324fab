#pragma once

#include "certificates/session/clock.h"
#include "certificates/session/warning_presenter.h"
#include "provider/provider_library.h"
#include "reporting/error_reporter.h"
#include "store/registry/registry_calls.h"
#include "toolkit/system/input_gate.h"

namespace corvane::certificates {

/// Whether a cryptocontext is being opened. There is one of it for the whole program: whatever the provider
/// or a warning lets through in the middle of an opening must not begin another.
struct SessionOpening {
    bool isUnderWay = false;
};

/// What opening a cryptocontext uses of the system. The application owns it all and outlives the dialogs.
struct CertServices {
    provider::ProviderLibrary& provider;
    reporting::ErrorReporter& reporter;
    WarningPresenter& warnings;
    store::RegistryCalls& registry;
    const Clock& clock;
    toolkit::InputGate& input;  ///< Shut while a call of the provider runs.
    SessionOpening& opening;
};

}  // namespace corvane::certificates
