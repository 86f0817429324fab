#pragma once

#include "editors/rule/rule_form.h"
#include "store/records.h"

namespace corvane::editors {

/// The rule that a checked form stands for. It holds what the selected operation uses, as the user left it;
/// everything else is empty or 0, whatever the edited rule held. A rule that was edited is always switched
/// on.
[[nodiscard]] store::Rule CommitRule(const RuleForm& form);

}  // namespace corvane::editors
