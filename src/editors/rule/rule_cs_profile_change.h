#pragma once

#include "editors/rule/rule_form.h"
#include "reporting/error_reporter.h"
#include "toolkit/system/window_handle.h"

namespace corvane::editors {

/// The CS profile that was accepted last, as its index in the profile. There is one for the whole program,
/// owned by whoever opens rule editors, and it outlives each of them.
struct AcceptedCsProfile {
    int index = 0;
};

/// The user selected a CS profile. Certificates were found through the one selected before, so recipients
/// and signer lists have to go, with the user's consent. Without it the selection goes back, and what was
/// dropped already stays dropped. The questions are owned by `dialog`.
void ChangeCsProfile(RuleForm& form, AcceptedCsProfile& accepted, reporting::ErrorReporter& reporter,
                     toolkit::WindowHandle dialog);

}  // namespace corvane::editors
