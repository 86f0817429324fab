#pragma once

#include <cstdint>

#include "provider/provider_functions.h"

namespace corvane::test {

/// A code of the provider's own, and the cryptocontext whose errors are asked for.
inline constexpr std::uint32_t kProviderCode = 0xE0700012;
inline constexpr provider::ProviderContext kSession = 0xFEDCBA9876543210;

}  // namespace corvane::test
