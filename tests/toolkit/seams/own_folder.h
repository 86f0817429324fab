#pragma once

#include <filesystem>

namespace corvane::test {

/// The folder that this program was started from.
[[nodiscard]] std::filesystem::path OwnFolder();

}  // namespace corvane::test
