#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::standin {

/// The files of a folder (with trailing backslash) whose names end in one of `extensions` (with their point,
/// letter case ignored), in name order. Nothing when the folder does not exist (FindFirstFileW).
[[nodiscard]] std::optional<std::vector<std::wstring>> FilesOfFolder(
    const std::wstring& folder, const std::vector<std::wstring_view>& extensions);

/// The whole content of a file, or nothing when it cannot be read (CreateFileW, ReadFile).
[[nodiscard]] std::optional<std::string> ReadWholeFile(const std::wstring& path);

}  // namespace corvane::standin
