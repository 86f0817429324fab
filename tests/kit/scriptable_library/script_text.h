#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane::test {

/// A text that the library hands out or is called with: bytes in the code page of the test, or none for a
/// null pointer.
using ScriptText = std::optional<std::string>;

/// The bytes as printable ASCII: a quotation mark and a backslash with a backslash before it, every other
/// byte outside 0x20 to 0x7E as \xHH.
[[nodiscard]] std::string Escaped(std::string_view bytes);

/// A text as the arguments of a logged call show it: escaped between quotation marks, or null.
[[nodiscard]] std::string Quoted(const ScriptText& text);

}  // namespace corvane::test
