#pragma once

#include <cstdint>

namespace corvane {

/// What a path that leads nowhere gives.
inline constexpr std::uint32_t kCodePathNotFound = 3;

/// What the system's heap leaves as the last error when it has no memory left.
inline constexpr std::uint32_t kCodeNotEnoughMemory = 8;

/// What making something gives that is already there.
inline constexpr std::uint32_t kCodeFileExists = 80;

}  // namespace corvane
