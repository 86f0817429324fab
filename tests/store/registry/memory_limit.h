#pragma once

#include <cstddef>

namespace corvane::test {

/// While it lives, asking for more than `sizeBytes` bytes with the allocation that does not throw fails. So a
/// test need not fill the machine to see what happens when memory is short.
class MemoryLimit {
  public:
    explicit MemoryLimit(std::size_t sizeBytes);
    ~MemoryLimit();
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;
    MemoryLimit(MemoryLimit&&) = delete;
    MemoryLimit& operator=(MemoryLimit&&) = delete;
};

}  // namespace corvane::test
