#pragma once

#include <cstddef>
#include <optional>

#include "certificates/session/cert_services.h"
#include "certificates/session/cryptocontext.h"
#include "certificates/session/wait_window.h"
#include "store/records.h"
#include "toolkit/system/window_handle.h"

namespace corvane::certificates {

/// An open cryptocontext with what a certificate dialog needs beside it. It is closed with its end unless
/// whoever holds it drops it.
struct CertSession {
    CertSearchSettings settings;
    Cryptocontext context;
    bool isNetworkStoreAvailable = true;
};

/// Opens a cryptocontext for CS profile `index` of `profile` behind the wait window, asks the network store
/// for a sign of life and refreshes the revocation lists when that is due (XSIG_Initialize and what
/// CheckNetworkStore and UpdateCrlIfDue call). The user is kept out while the provider works. None after a
/// failure that has been shown, or when the user wants to stop; nothing is open then. None at once, and
/// without a word, while another opening is under way. A provider library that is missing is reported with
/// the system's code and the name of what is missing.
[[nodiscard]] std::optional<CertSession> OpenCertSession(toolkit::WindowHandle owner,
                                                         const store::Profile& profile, std::size_t index,
                                                         CertificateUse use, WaitWindow& waitWindow,
                                                         const CertServices& services);

}  // namespace corvane::certificates
