#include "tests/kit/fakes/memory_registry.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

// What the registry in memory has of Windows and cannot be compared with Wine's; the rest is compared there.

namespace corvane::test {
namespace {

TEST(MemoryRegistry, MakesNoKeyWhoseNameIsLongerThan255Characters) {
    MemoryRegistry registry;
    store::RegistryCalls::Key key = nullptr;
    ASSERT_EQ(registry.Create(nullptr, std::wstring(255, L'n'), 0x2001F, nullptr, key), 0U);
    EXPECT_EQ(registry.Close(key), 0U);
    EXPECT_EQ(registry.Create(nullptr, std::wstring(256, L'm'), 0x2001F, nullptr, key), 87U);
    EXPECT_FALSE(registry.HasKey(std::wstring(256, L'm')));
}

TEST(MemoryRegistry, FailsOnFromTheCallThatItIsToldUntilItIsMended) {
    MemoryRegistry registry;
    registry.PutKey(L"One");
    store::RegistryCalls::Key key = nullptr;
    registry.FailCallsFrom(1, 5);
    EXPECT_EQ(registry.Open(nullptr, L"One", 0x2001F, nullptr, key), 0U);
    EXPECT_EQ(registry.Close(key), 5U) << "closed nonetheless";
    EXPECT_EQ(registry.Open(nullptr, L"One", 0x2001F, nullptr, key), 5U);
    EXPECT_EQ(registry.OpenKeys(), 0U);
    registry.Mend();
    EXPECT_EQ(registry.Open(nullptr, L"One", 0x2001F, nullptr, key), 0U);
    EXPECT_EQ(registry.Close(key), 0U);
}

}  // namespace
}  // namespace corvane::test
