#pragma once

#include <optional>

#include "editors/rule/rule_form.h"
#include "reporting/refusal.h"
#include "toolkit/files/file_calls.h"

namespace corvane::editors {

/// Checks the form the way OK does and returns what is refused first, or none where the rule may be taken.
[[nodiscard]] std::optional<reporting::Refusal> CheckRule(const RuleForm& form, toolkit::FileCalls& files);

}  // namespace corvane::editors
