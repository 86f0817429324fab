#pragma once

#include <cstdint>

namespace corvane {

/// What the system's heap leaves as the last error when it has no memory left.
inline constexpr std::uint32_t kCodeNotEnoughMemory = 8;

}  // namespace corvane
