#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "provider/provider_functions.h"
#include "toolkit/text/system_text.h"

namespace corvane::reporting {

/// One entry of the provider's error stack.
struct ProviderError {
    std::wstring text;
    std::wstring file;
    std::uint32_t line = 0;
    std::wstring data;
};

/// The most entries that one reading takes. A library whose stack never ends would hang the program and
/// eat its memory; no message that a person reads has use for more.
inline constexpr std::size_t kMostProviderErrors = 4096;

/// Pops the error stack of `context` (0: of a failed XSIG_Initialize) and gives its entries, first popped
/// first, at most kMostProviderErrors of them. A text without data is empty, one with a NUL inside ends
/// there. Every text that the library hands out is released with XSIG_FreeMem under `releaseContext`, those
/// that come with its last, refusing answer too (XSIG_GetErrorLineEx).
[[nodiscard]] std::vector<ProviderError> PopProviderErrors(const provider::ProviderFunctions& provider,
                                                           provider::ProviderContext context,
                                                           provider::ProviderContext releaseContext,
                                                           const toolkit::SystemText& systemText);

}  // namespace corvane::reporting
