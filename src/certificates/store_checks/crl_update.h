#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "certificates/session/cert_services.h"
#include "certificates/session/cryptocontext.h"
#include "store/records.h"
#include "toolkit/system/window_handle.h"

// When the revocation lists of each CS profile were loaded last: one stored text per CS profile, its name,
// ";;" and the seconds since 1970.

namespace corvane::certificates {

/// What the stored texts say of one CS profile.
struct RefreshState {
    bool isDue = true;
    std::optional<std::size_t> entry;  ///< The CS profile's last entry, if it has one.
};

/// Looks for the CS profile among the stored texts. With a period of `periodHours` it is due when no entry of
/// it is younger, in whole minutes. An entry that is no number counts as time 0.
[[nodiscard]] RefreshState FindRefreshState(const store::TextList& entries, std::wstring_view csProfileName,
                                            std::int32_t periodHours, std::int64_t nowSeconds);

/// Puts the time of a refresh into the texts, in the place of the entry that was found, or at the end.
void RecordRefresh(store::TextList& entries, std::optional<std::size_t> entry,
                   const std::wstring& csProfileName, std::int64_t nowSeconds);

/// Loads the certificate revocation lists from their distribution points when the CS profile's last refresh
/// is its period ago (XSIG_Ctrl, code 4), and records the time in "LastCrlUpdate", after a failed refresh
/// too. Returns whether the cryptocontext goes on: false when the program's key cannot be opened, which has
/// been reported, and when the user, asked under `owner`, does not want to go on without fresh lists. No
/// failure to read or write the value stops anything; it has been reported, and a list that cannot be read
/// counts as empty.
[[nodiscard]] bool UpdateCrlIfDue(toolkit::WindowHandle owner, const store::CsProfile& csProfile,
                                  const Cryptocontext& context, const CertServices& services);

}  // namespace corvane::certificates
