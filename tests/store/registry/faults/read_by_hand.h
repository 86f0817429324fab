#pragma once

#include "store/records.h"
#include "tests/kit/fakes/memory_registry.h"

namespace corvane::test {

/// What a load that started now would come to, read from the stored values one by one and without any of the
/// product's code, so that one can check the other.
struct ReadByHand {
    /// False where a profile has no key for its rules, and no program starts.
    bool isWhole = true;
    /// The path of the key that is missing then.
    std::wstring missingKey;
    /// As far as it came.
    store::ConfigurationState state;
};

/// Reads a store with at least one profile that holds nothing but values of the types they should have.
[[nodiscard]] ReadByHand ReadStoreByHand(const MemoryRegistry& registry);

}  // namespace corvane::test
