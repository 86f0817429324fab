#pragma once

#include <string>

#include "certificates/session/cryptocontext.h"
#include "reporting/error_reporter.h"
#include "store/records.h"
#include "toolkit/system/window_handle.h"

// The searches of the certificate dialogs (XSIG_FindCert). Each empties its output lists first; a search that
// fails has been reported to `owner` and leaves them empty. A recipient search passes over certificates that
// are no good for encryption. A text that the provider does not give counts as empty.

namespace corvane::certificates {

/// Gives each owner of a certificate in the local store once, in the order found. Letter case tells owners
/// apart. That nothing was found is a failure like any other here.
[[nodiscard]] bool FindAllLocal(toolkit::WindowHandle owner, const CertSearchSettings& settings,
                                const Cryptocontext& context, reporting::ErrorReporter& reporter,
                                store::TextList& owners);

/// The same for the owners that match `pattern` (* for any characters), of the network store too. That
/// nothing was found is no failure.
[[nodiscard]] bool FindByPattern(toolkit::WindowHandle owner, const CertSearchSettings& settings,
                                 const Cryptocontext& context, const std::wstring& pattern,
                                 reporting::ErrorReporter& reporter, store::TextList& owners);

/// Gives the issuer and the serial number ("0A:1B:FF") of each certificate of one owner, whose letter case
/// does not matter. The two lists stay parallel. True also when no certificate fits; that the provider found
/// nothing at all is a failure.
[[nodiscard]] bool FindByOwner(toolkit::WindowHandle owner, const CertSearchSettings& settings,
                               const Cryptocontext& context, const std::wstring& ownerName,
                               reporting::ErrorReporter& reporter, store::TextList& issuers,
                               store::TextList& serials);

}  // namespace corvane::certificates
