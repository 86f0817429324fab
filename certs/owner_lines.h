#pragma once

#include <string>
#include <string_view>

namespace corvane {

/// The owner's distinguished name with every attribute on a line of its own, broken by CR LF. The commas
/// stay. A comma inside a value breaks no line: only where the next "=" comes before the next comma, with
/// something in between, does an attribute begin.
[[nodiscard]] std::wstring OwnerLines(std::wstring_view owner);

}  // namespace corvane
