#pragma once

#include <cstddef>

// Only in the test program that links failing_memory.cpp: there the global operator new can be told to fail.

namespace corvane::test {

/// While it lives, the `index`-th allocation from here on (from 0) throws std::bad_alloc, or gives null where
/// it may not throw. One at a time.
class FailingMemory {
  public:
    explicit FailingMemory(std::size_t index);
    ~FailingMemory();
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;
    FailingMemory(FailingMemory&&) = delete;
    FailingMemory& operator=(FailingMemory&&) = delete;

    /// Whether there were so many allocations that one has failed.
    [[nodiscard]] bool HasFailed() const;
};

/// While it lives, allocations are those of the test and its stand-ins: they neither count nor fail.
class UncountedMemory {
  public:
    UncountedMemory();
    ~UncountedMemory();
    UncountedMemory(const UncountedMemory&) = delete;
    UncountedMemory& operator=(const UncountedMemory&) = delete;
    UncountedMemory(UncountedMemory&&) = delete;
    UncountedMemory& operator=(UncountedMemory&&) = delete;
};

/// How many allocations there are that were not given back.
[[nodiscard]] std::size_t LiveAllocations();

}  // namespace corvane::test
