#pragma once

#include <string>

#include "editors/rule_form.h"

namespace corvane::testing {

/// Every control of the form and everything that it holds, in words, one line each, so that two forms can be
/// compared and a difference is read at once.
[[nodiscard]] std::string DescribeForm(const RuleForm& form);

}  // namespace corvane::testing
