#pragma once

#include "certs/clock.h"

namespace corvane {

/// The system's clock (GetSystemTimeAsFileTime).
class SystemClock final : public Clock {
  public:
    [[nodiscard]] std::int64_t SecondsSince1970() const override;
};

}  // namespace corvane
