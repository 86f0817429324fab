#include "tests/store/registry/memory_limit.h"

#include <cstdint>
#include <new>

namespace {

std::size_t limitBytes = SIZE_MAX;

}  // namespace

// Replaces the library's: as the standard wants it, on top of the one that throws.
void* operator new[](std::size_t sizeBytes, const std::nothrow_t& /*tag*/) noexcept {
    if (sizeBytes > limitBytes) {
        return nullptr;
    }
    try {
        return ::operator new[](sizeBytes);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

namespace corvane::test {

MemoryLimit::MemoryLimit(std::size_t sizeBytes) {
    limitBytes = sizeBytes;
}

MemoryLimit::~MemoryLimit() {
    limitBytes = SIZE_MAX;
}

}  // namespace corvane::test
