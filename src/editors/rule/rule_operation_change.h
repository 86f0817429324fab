#pragma once

#include "editors/rule/rule_form.h"

namespace corvane::editors {

/// The user selected an operation: the form goes over from the operation that it shows to the selected one.
/// What the user entered is kept, emptied or reset as the two operations want it. With no operation selected
/// nothing happens.
void ChangeOperation(RuleForm& form);

}  // namespace corvane::editors
