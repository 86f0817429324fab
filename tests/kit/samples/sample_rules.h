#pragma once

#include <array>
#include <string>

#include "editors/rule/rule_form.h"
#include "store/records.h"

namespace corvane::test {

/// The codes in the order of the operation choice, written down by the tests themselves.
inline constexpr std::array kCodes = {L"ENCR", L"DECR", L"HASH", L"B64E", L"B64D", L"SIGN", L"CHCK", L"CHKX",
                                      L"MOVE", L"DELE", L"LENC", L"LDEC", L"CDSG", L"DSIG", L"DCHK", L"DELS",
                                      L"RESG", L"SGEN", L"DCCX", L"ARCH", L"UNAR", L"PACK", L"UNPK", L"EXEC"};

/// The position of a code; throws std::invalid_argument for what is none.
[[nodiscard]] int IndexOfCode(const std::wstring& code);

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
