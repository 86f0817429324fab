#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace corvane::test {

/// Wide text as UTF-8, for messages.
[[nodiscard]] std::string Utf8(std::wstring_view text);

/// Says in words that the driven program is not where a test needs it: what was expected, what came, and of
/// which control. The test framework shows the text of an exception, so the driver needs none of its own.
class Failure : public std::runtime_error {
  public:
    explicit Failure(std::wstring_view what) : std::runtime_error(Utf8(what)) {}
};

}  // namespace corvane::test
