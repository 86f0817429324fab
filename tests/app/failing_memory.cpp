#include "tests/app/failing_memory.h"

#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

std::size_t failingIndex = SIZE_MAX;
std::size_t count = 0;
std::size_t uncountedDepth = 0;
std::size_t live = 0;

void* Allocate(std::size_t sizeBytes) noexcept {
    if (uncountedDepth == 0 && failingIndex != SIZE_MAX && count++ == failingIndex) {
        return nullptr;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc): it is what operator new stands on.
    void* const memory = std::malloc(sizeBytes == 0 ? 1 : sizeBytes);
    live += memory != nullptr ? 1U : 0U;
    return memory;
}

void* AllocateOrThrow(std::size_t sizeBytes) {
    void* const memory = Allocate(sizeBytes);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void Release(void* memory) noexcept {
    live -= memory != nullptr ? 1U : 0U;
    std::free(memory);  // NOLINT(cppcoreguidelines-no-malloc)
}

}  // namespace

void* operator new(std::size_t sizeBytes) {
    return AllocateOrThrow(sizeBytes);
}
void* operator new[](std::size_t sizeBytes) {
    return AllocateOrThrow(sizeBytes);
}
void* operator new(std::size_t sizeBytes, const std::nothrow_t& /*tag*/) noexcept {
    return Allocate(sizeBytes);
}
void* operator new[](std::size_t sizeBytes, const std::nothrow_t& /*tag*/) noexcept {
    return Allocate(sizeBytes);
}
void operator delete(void* memory) noexcept {
    Release(memory);
}
void operator delete[](void* memory) noexcept {
    Release(memory);
}
void operator delete(void* memory, std::size_t /*sizeBytes*/) noexcept {
    Release(memory);
}
void operator delete[](void* memory, std::size_t /*sizeBytes*/) noexcept {
    Release(memory);
}
void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept {
    Release(memory);
}
void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept {
    Release(memory);
}

namespace corvane::test {

FailingMemory::FailingMemory(std::size_t index) {
    count = 0;
    failingIndex = index;
}

FailingMemory::~FailingMemory() {
    failingIndex = SIZE_MAX;
}

bool FailingMemory::HasFailed() const {
    return count > failingIndex;
}

UncountedMemory::UncountedMemory() {
    ++uncountedDepth;
}

UncountedMemory::~UncountedMemory() {
    --uncountedDepth;
}

std::size_t LiveAllocations() {
    return live;
}

}  // namespace corvane::test
