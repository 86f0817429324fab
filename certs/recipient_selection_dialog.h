#pragma once

#include <cstddef>
#include <optional>

#include "certs/cert_services.h"
#include "certs/recipient_selection.h"
#include "config/records.h"
#include "toolkit/file_calls.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// Lets the user choose the recipients of a rule under CS profile `csProfileIndex` of `profile`, beginning
/// with `recipients`. None when the user cancels or no cryptocontext can be opened, which has been shown. A
/// failure to close the cryptocontext is reported, owned by `owner`, when the result dies.
[[nodiscard]] std::optional<ChosenRecipients> EditRecipients(
    toolkit::WindowHandle owner, const Profile& profile, std::size_t csProfileIndex,
    const TextList& recipients, const CertServices& services, toolkit::FileCalls& files);

}  // namespace corvane
