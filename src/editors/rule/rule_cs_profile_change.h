#pragma once

#include "editors/rule/rule_form.h"
#include "reporting/error_reporter.h"
#include "toolkit/system/window_handle.h"

namespace corvane::editors {

/// The user selected a CS profile. Certificates were found through the one selected before, so recipients
/// and signer lists have to go, with the user's consent. Without it the selection goes back, and what was
/// dropped already stays dropped. The questions are owned by `dialog`.
void ChangeCsProfile(RuleForm& form, AcceptedCsProfile& accepted, reporting::ErrorReporter& reporter,
                     toolkit::WindowHandle dialog);

}  // namespace corvane::editors
