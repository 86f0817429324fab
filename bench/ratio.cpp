#include "bench/ratio.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

double MillisecondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double MedianRatio(int turns, const std::function<double()>& measured,
                   const std::function<double()>& against) {
    std::vector<double> ratios;
    for (int turn = 0; turn <= turns; ++turn) {
        // Whoever comes first may find things colder, so the sides change places.
        double own = 0;
        double other = 0;
        if (turn % 2 == 0) {
            own = measured();
            other = against();
        } else {
            other = against();
            own = measured();
        }
        if (turn > 0) {
            ratios.push_back(own / other);
        }
    }
    const auto middle = ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() / 2);
    std::nth_element(ratios.begin(), middle, ratios.end());
    return *middle;
}
