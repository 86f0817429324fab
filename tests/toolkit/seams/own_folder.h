#pragma once

#include <filesystem>

namespace toolkit::testing {

/// The folder that this program was started from.
[[nodiscard]] std::filesystem::path OwnFolder();

}  // namespace toolkit::testing
