#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "certificates/session/cert_services.h"
#include "store/records.h"
#include "toolkit/files/file_calls.h"
#include "toolkit/system/window_handle.h"

namespace corvane::certificates {

/// Lets the user change the signer lists of a rule; their signers are chosen under CS profile
/// `csProfileIndex` of `profile`. Returns the new lists, or none when the user cancels.
[[nodiscard]] std::optional<std::vector<store::SignerGroup>> EditSignerLists(
    toolkit::WindowHandle owner, const store::Profile& profile, std::size_t csProfileIndex,
    const std::vector<store::SignerGroup>& lists, const CertServices& services, toolkit::FileCalls& files);

}  // namespace corvane::certificates
