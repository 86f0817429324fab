#pragma once

#include <cstdint>

namespace corvane::certificates {

/// The time of day.
class Clock {
  public:
    virtual ~Clock() = default;

    /// The current time in seconds since 1970-01-01 UTC; negative before.
    [[nodiscard]] virtual std::int64_t SecondsSince1970() const = 0;

  protected:
    Clock() = default;
    Clock(const Clock&) = default;
    Clock& operator=(const Clock&) = default;
    Clock(Clock&&) = default;
    Clock& operator=(Clock&&) = default;
};

/// The system's clock (GetSystemTimeAsFileTime).
class SystemClock final : public Clock {
  public:
    [[nodiscard]] std::int64_t SecondsSince1970() const override;
};

}  // namespace corvane::certificates
