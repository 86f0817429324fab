#pragma once

#include <functional>

namespace corvane::test {

/// The longest that a state may take to come. Far beyond what any needs on a busy machine: it only ends a
/// test whose state never comes.
inline constexpr unsigned kLimitMilliseconds = 30000;

/// Asks again and again until `holds` answers true, or the limit has passed; tells which. Gives the processor
/// away in between (MsgWaitForMultipleObjects).
[[nodiscard]] bool WaitUntil(const std::function<bool()>& holds,
                             unsigned limitMilliseconds = kLimitMilliseconds);

}  // namespace corvane::test
