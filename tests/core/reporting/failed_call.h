#pragma once

#include <cstdint>

#include "certs/provider/provider_records.h"

namespace corvane::testing {

/// A code of the provider's own, and the cryptocontext whose errors are asked for.
inline constexpr std::uint32_t kProviderCode = 0xE0700012;
inline constexpr ProviderContext kSession = 0xFEDCBA9876543210;

}  // namespace corvane::testing
