#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "certs/cert_services.h"
#include "config/records.h"
#include "toolkit/file_calls.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// Lets the user change the signer lists of a rule; their signers are chosen under CS profile
/// `csProfileIndex` of `profile`. Returns the new lists, or none when the user cancels.
[[nodiscard]] std::optional<std::vector<SignerGroup>> EditSignerLists(
    toolkit::WindowHandle owner, const Profile& profile, std::size_t csProfileIndex,
    const std::vector<SignerGroup>& lists, const CertServices& services, toolkit::FileCalls& files);

}  // namespace corvane
