#pragma once

#include "certs/cert_services.h"
#include "certs/cryptocontext.h"
#include "config/records.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// Loads the certificate revocation lists from their distribution points when the CS profile's last refresh
/// is its period ago (XSIG_Ctrl, code 4), and records the time in "LastCrlUpdate", after a failed refresh
/// too. Returns whether the cryptocontext goes on: false when the program's key cannot be opened, which has
/// been reported, and when the user, asked under `owner`, does not want to go on without fresh lists. No
/// failure to read or write the value stops anything; it has been reported, and a list that cannot be read
/// counts as empty.
[[nodiscard]] bool UpdateCrlIfDue(toolkit::WindowHandle owner, const CsProfile& csProfile,
                                  const Cryptocontext& context, const CertServices& services);

}  // namespace corvane
