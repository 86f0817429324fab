#pragma once

#include <cstdint>
#include <string_view>

#include "provider/provider_functions.h"

namespace corvane::standin {

inline constexpr std::uint32_t kStatusOk = 0;
inline constexpr std::uint32_t kStatusOutOfMemory = 0xE0700001;
inline constexpr std::uint32_t kStatusUnexpected = 0xE0700002;
inline constexpr std::uint32_t kStatusUnknownCsProfile = 0xE0700010;
inline constexpr std::uint32_t kStatusUnknownContext = 0xE0700011;
inline constexpr std::uint32_t kStatusUnknownControlCode = 0xE0700012;
inline constexpr std::uint32_t kStatusForeignMemory = 0xE0700013;
inline constexpr std::uint32_t kStatusStackEmpty = 0xE0700014;
inline constexpr std::uint32_t kStatusLocalStoreClosed = 0xE0700040;
inline constexpr std::uint32_t kStatusNetworkStoreSilent = 0xE0700041;
inline constexpr std::uint32_t kStatusDistributionPointSilent = 0xE0700050;
inline constexpr std::uint32_t kStatusRevocationListRefused = 0xE0700051;

/// The status for an argument that cannot be used, counted from 1: 0xFFFFFFFF for the first, 0xFFFFFFFE for
/// the second and so on.
[[nodiscard]] constexpr std::uint32_t StatusBadArgument(std::uint32_t position) {
    return 0U - position;
}

/// The description of a status of this library, or an empty text for any other status.
[[nodiscard]] std::string_view StatusText(std::uint32_t status);

}  // namespace corvane::standin
