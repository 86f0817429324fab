#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "provider/provider_functions.h"
#include "reporting/error_reporter.h"
#include "toolkit/text/system_text.h"

namespace corvane::certificates {

/// The error stack of `context` (0: of a failed XSIG_Initialize) as the warnings of this floor show it, empty
/// where there is none. It pops the stack, at most kMostProviderErrors entries of it, and releases their
/// texts under context 0. The layout is its own, not that of AppendProviderErrorStack.
[[nodiscard]] std::wstring FormatErrorStack(const provider::ProviderFunctions& provider,
                                            provider::ProviderContext context,
                                            const toolkit::SystemText& systemText);

/// The description of a status, without the error stack of any cryptocontext.
[[nodiscard]] std::wstring DescribeStatus(reporting::ErrorReporter& reporter, std::uint32_t status);

/// The message of a failed provider call: what was attempted, the status with its description, and `details`
/// in a paragraph of their own.
[[nodiscard]] std::wstring ProviderCallMessage(std::wstring_view operation, std::uint32_t status,
                                               std::wstring_view description, std::wstring_view details);

/// Asks whether to go on after a failed provider call: `question` takes the description and the status, in
/// this order. Returns whether the user wants to.
[[nodiscard]] bool AskToContinue(reporting::ErrorReporter& reporter, toolkit::WindowHandle owner,
                                 std::wstring_view question, std::wstring_view description,
                                 std::uint32_t status);

}  // namespace corvane::certificates
