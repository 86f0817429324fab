#pragma once

#include <functional>
#include <optional>
#include <string>

/// One row of the table: what is measured, against what, and how large the ratio may be, where it has a
/// limit.
struct RatioRow {
    std::string what;
    std::string against;
    double ratio = 0;
    std::optional<double> target;
};

/// Milliseconds that a piece of work takes.
[[nodiscard]] double MillisecondsOf(const std::function<void()>& work);

/// The median of what measured() / against() gives over some turns, each side taken once in every turn, so
/// that a machine whose speed drifts disturbs both alike. The first turn warms up and is not counted.
[[nodiscard]] double MedianRatio(int turns, const std::function<double()>& measured,
                                 const std::function<double()>& against);
