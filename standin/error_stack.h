#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::standin {

/// One entry of an error stack: what failed, where in this library, and with which data.
struct ErrorEntry {
    std::string text;
    std::string file;
    std::uint32_t line = 0;
    std::string data;
};

/// An entry that names the place in the source from which it is made. The defaults are the caller's place;
/// std::source_location would say the same, but clang 14 lacks it.
[[nodiscard]] ErrorEntry ErrorHere(std::string_view text, std::string_view data,
                                   std::string_view file = __builtin_FILE(),
                                   std::uint32_t line = __builtin_LINE());

/// The errors of one cryptocontext, last pushed, first popped: the failed operation comes before its causes.
/// An operation that can fail clears the stack when it begins, so that the errors of its predecessors are not
/// taken for its own; releasing memory leaves it alone.
using ErrorStack = std::vector<ErrorEntry>;

}  // namespace corvane::standin
