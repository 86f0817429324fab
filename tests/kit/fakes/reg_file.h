#pragma once

#include <string>
#include <string_view>

#include "tests/kit/fakes/registry_snapshot.h"

namespace corvane::test {

/// The keys and values of a registry file ("Windows Registry Editor Version 5.00"), UTF-16 or UTF-8, whose
/// keys are all under HKEY_CURRENT_USER. Keys and values are written, never deleted. Throws
/// std::runtime_error, with the line, on anything else.
[[nodiscard]] RegistrySnapshot ParseRegFile(std::string_view fileBytes);

/// The bytes of the file at `path`; throws std::runtime_error where it cannot be read.
[[nodiscard]] std::string ReadWholeFile(const char* path);

}  // namespace corvane::test
