#pragma once

#include <string>
#include <vector>

#include "tests/driver/registry.h"

namespace corvane::test {

using StoredTree = std::map<std::wstring, driver::RegistryValues>;

/// What differs between two trees, a line of words for each value or key that only one of them has; empty
/// when they are the same.
[[nodiscard]] std::vector<std::string> DifferencesOf(const StoredTree& expected, const StoredTree& stored);

}  // namespace corvane::test
