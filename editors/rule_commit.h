#pragma once

#include "config/records.h"
#include "editors/rule_form.h"

namespace corvane {

/// The rule that a checked form stands for. It holds what the selected operation uses, as the user left it;
/// everything else is empty or 0, whatever the edited rule held. A rule that was edited is always switched
/// on.
[[nodiscard]] Rule CommitRule(const RuleForm& form);

}  // namespace corvane
