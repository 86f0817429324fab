#pragma once

#include "app/reporting/error_reporter.h"
#include "certs/cryptocontext.h"
#include "certs/warning_presenter.h"
#include "toolkit/window_handle.h"

namespace corvane {

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
                                                  ErrorReporter& reporter, WarningPresenter& warnings);

}  // namespace corvane
