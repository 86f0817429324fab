#pragma once

#include "editors/rule/rule_cs_profile_change.h"
#include "editors/rule/rule_form.h"
#include "store/records.h"

namespace corvane::editors {

/// The form with which the editor opens on `rule` of `profile`. A rule without an operation is a new one and
/// gives nothing but that to the form. Opening any other rule sets `accepted`, opening a new one leaves it.
[[nodiscard]] RuleForm OpenRule(const store::Profile& profile, const store::Rule& rule,
                                AcceptedCsProfile& accepted);

}  // namespace corvane::editors
