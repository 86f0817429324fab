#pragma once

#include "config/records.h"
#include "editors/rule_cs_profile_change.h"
#include "editors/rule_form.h"

namespace corvane {

/// The form with which the editor opens on `rule` of `profile`. A rule without an operation is a new one and
/// gives nothing but that to the form. Opening any other rule sets `accepted`, opening a new one leaves it.
[[nodiscard]] RuleForm OpenRule(const Profile& profile, const Rule& rule, AcceptedCsProfile& accepted);

}  // namespace corvane
