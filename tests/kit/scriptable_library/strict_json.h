#pragma once

#include <filesystem>
#include <initializer_list>
#include <nlohmann/json.hpp>

#include "tests/kit/scriptable_library/script_text.h"

namespace corvane::test {

/// Throws std::invalid_argument unless `value` is an object with these members and no others.
void RequireMembers(const nlohmann::json& value, std::initializer_list<const char*> members);

/// Reads and writes a file that holds one JSON value. Throws nlohmann::json::exception for anything else, and
/// std::invalid_argument for a file that cannot be opened.
[[nodiscard]] nlohmann::json ReadJson(const std::filesystem::path& file);
void WriteJson(const nlohmann::json& value, const std::filesystem::path& file);

/// A text whose code page only the test knows: each byte is the code point of its value, none is null.
/// BytesFromJson throws std::invalid_argument for a code point that is no byte.
[[nodiscard]] nlohmann::json BytesToJson(const ScriptText& bytes);
[[nodiscard]] ScriptText BytesFromJson(const nlohmann::json& value);

}  // namespace corvane::test
