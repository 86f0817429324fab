#pragma once

#include <string>

namespace corvane {

/// Tells whether a path begins somewhere: whether there is a drive's colon or a network path's double
/// backslash in it. Where a folder is expected, the client can do nothing with any other.
[[nodiscard]] inline bool IsDriveOrNetworkPath(const std::wstring& path) {
    return path.find(L':') != std::wstring::npos || path.find(L"\\\\") != std::wstring::npos;
}

}  // namespace corvane
