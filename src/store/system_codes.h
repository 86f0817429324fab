#pragma once

#include <cstdint>
#include <string>

namespace corvane::store {

/// What a path that leads nowhere gives.
inline constexpr std::uint32_t kCodePathNotFound = 3;

/// What the system's heap leaves as the last error when it has no memory left.
inline constexpr std::uint32_t kCodeNotEnoughMemory = 8;

/// What making something gives that is already there.
inline constexpr std::uint32_t kCodeFileExists = 80;

/// Tells whether a path begins somewhere: whether there is a drive's colon or a network path's double
/// backslash in it. Where a folder is expected, the client can do nothing with any other.
[[nodiscard]] inline bool IsDriveOrNetworkPath(const std::wstring& path) {
    return path.find(L':') != std::wstring::npos || path.find(L"\\\\") != std::wstring::npos;
}

}  // namespace corvane::store
