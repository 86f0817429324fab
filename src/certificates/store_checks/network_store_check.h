#pragma once

#include "certificates/session/cryptocontext.h"
#include "certificates/session/warning_presenter.h"
#include "reporting/error_reporter.h"
#include "toolkit/system/window_handle.h"

namespace corvane::certificates {

/// Whether a cryptocontext goes on, and whether the network store may be searched in it.
enum class NetworkStoreCheck {
    kAvailable,
    kGoOnWithout,  ///< The network store does not answer, and the user goes on without it.
    kStop,
};

/// Asks the network certificate store for a certificate that need not exist, only to see whether it answers
/// (XSIG_FindCert). A store that does not is explained in a warning box, and the user, asked under `owner`,
/// decides.
[[nodiscard]] NetworkStoreCheck CheckNetworkStore(toolkit::WindowHandle owner, const Cryptocontext& context,
                                                  reporting::ErrorReporter& reporter,
                                                  WarningPresenter& warnings);

}  // namespace corvane::certificates
