#pragma once

#include <string>

#include "editors/rule/rule_form.h"

namespace corvane::test {

/// A change of operation control by control, in the order in which users of the editor know it to happen: a
/// second reading of the rules, kept apart from the product's table so that one checks the other.
void TakeStepsOneByOne(editors::RuleForm& form, const std::wstring& from, const std::wstring& to);

}  // namespace corvane::test
