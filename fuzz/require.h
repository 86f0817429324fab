#pragma once

#include <cstdio>
#include <cstdlib>

namespace corvane::fuzz {

/// Ends the program with `promise`, so that the fuzzer keeps the input, unless the promise is kept.
inline void Require(bool isKept, const char* promise) {
    if (!isKept) {
        std::fprintf(stderr, "Broken promise: %s\n", promise);
        std::abort();
    }
}

}  // namespace corvane::fuzz
