#include "certificates/session/clock.h"

#include <windows.h>

namespace corvane::certificates {

std::int64_t SystemClock::SecondsSince1970() const {
    // A FILETIME counts steps of 100 nanoseconds since 1601.
    constexpr std::int64_t kStepsPerSecond = 10'000'000;
    constexpr std::int64_t kSecondsFrom1601To1970 = 11'644'473'600;
    FILETIME now = {};
    GetSystemTimeAsFileTime(&now);
    constexpr unsigned kHighPartShift = 32;
    const std::int64_t steps =
        (static_cast<std::int64_t>(now.dwHighDateTime) << kHighPartShift) | now.dwLowDateTime;
    return steps / kStepsPerSecond - kSecondsFrom1601To1970;
}

}  // namespace corvane::certificates
