#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace scriptable {

/// A text of a script; none stands for a null pointer.
using ScriptText = std::optional<std::string>;

/// The bytes as printable ASCII: a quotation mark and a backslash with a backslash before it, every other
/// byte outside 0x20 to 0x7E as \xHH.
[[nodiscard]] std::string Escaped(std::string_view bytes);

/// A text as a script and the log of calls write it: escaped between quotation marks, or null.
[[nodiscard]] std::string Quoted(const ScriptText& text);

/// The words of a line, parted by blanks: quoted texts without their marks, bare words as they are. The bare
/// word null is none.
[[nodiscard]] std::vector<ScriptText> WordsOf(std::string_view line);

}  // namespace scriptable
