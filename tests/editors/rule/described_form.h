#pragma once

#include <string>

#include "editors/rule/rule_form.h"

namespace corvane::test {

/// Every control of the form and everything that it holds, in words, one line each, so that two forms can be
/// compared and a difference is read at once.
[[nodiscard]] std::string DescribeForm(const editors::RuleForm& form);

}  // namespace corvane::test
