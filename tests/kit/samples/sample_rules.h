#pragma once

#include <string>

#include "editors/rule/rule_form.h"
#include "store/records.h"
#include "tests/kit/samples/operation_witness.h"

namespace corvane::test {

/// Whether `code` stands in a list of codes with a blank between them.
[[nodiscard]] bool IsOneOf(const std::wstring& code, const std::wstring& codes);

/// A profile with the CS profiles "First", "Second" and "Third".
[[nodiscard]] store::Profile SampleProfile();

/// A rule in which every field has a value of its own, whatever the operation.
[[nodiscard]] store::Rule FullRule(const std::wstring& code);

/// The form of a rule, opened by itself.
[[nodiscard]] editors::RuleForm Opened(const store::Rule& rule);

/// Selects an operation, as the user does.
void SelectOperation(editors::RuleForm& form, const std::wstring& code);

}  // namespace corvane::test
