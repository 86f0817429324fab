#include <gtest/gtest.h>

#include <utility>

#include "toolkit/system/handles.h"

namespace corvane::test {
namespace {

// A handle is the address of the number that counts its closings.
struct CountingCloser {
    using Handle = int*;
    static bool IsOwned(Handle handle) { return handle != nullptr; }
    static void Close(Handle handle) { ++*handle; }
};
using CountedHandle = toolkit::UniqueHandle<CountingCloser>;

TEST(UniqueHandle, ClosesOnceAtTheEnd) {
    int closed = 0;
    {
        const CountedHandle handle(&closed);
        EXPECT_TRUE(handle);
        EXPECT_EQ(handle.Get(), &closed);
    }
    EXPECT_EQ(closed, 1);
}

TEST(UniqueHandle, NothingIsClosedWhereThereIsNone) {
    CountedHandle handle;
    EXPECT_FALSE(handle);
    handle.Reset();
    handle = CountedHandle();
    EXPECT_FALSE(handle);
}

TEST(UniqueHandle, AMovedHandleHasOneOwner) {
    int closed = 0;
    {
        CountedHandle first(&closed);
        CountedHandle second(std::move(first));
        CountedHandle third;
        third = std::move(second);
        EXPECT_EQ(third.Get(), &closed);
        EXPECT_EQ(closed, 0);
    }
    EXPECT_EQ(closed, 1);
}

TEST(UniqueHandle, TakingAnotherOneClosesTheFormer) {
    int first = 0;
    int second = 0;
    CountedHandle handle(&first);
    handle.Reset(&second);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 0);
    handle = CountedHandle();
    EXPECT_EQ(second, 1);
}

TEST(UniqueHandle, TheSameHandleAgainIsKept) {
    int closed = 0;
    CountedHandle handle(&closed);
    handle.Reset(&closed);
    EXPECT_EQ(closed, 0);
    EXPECT_TRUE(handle);
}

TEST(UniqueHandle, AHandleThatIsHandedOutIsNotClosed) {
    int closed = 0;
    {
        CountedHandle handle(&closed);
        EXPECT_EQ(handle.Release(), &closed);
        EXPECT_FALSE(handle);
    }
    EXPECT_EQ(closed, 0);
}

TEST(UniqueHandle, ReceivingClosesTheFormerAndOwnsTheNew) {
    int first = 0;
    int second = 0;
    {
        CountedHandle handle(&first);
        *handle.Receive() = &second;
        EXPECT_EQ(first, 1);
        EXPECT_EQ(handle.Get(), &second);
    }
    EXPECT_EQ(second, 1);
}

TEST(UniqueKernelHandle, BothWaysToSayNoneAreNone) {
    EXPECT_FALSE(toolkit::UniqueKernelHandle(nullptr));
    EXPECT_FALSE(toolkit::UniqueKernelHandle(INVALID_HANDLE_VALUE));
}

TEST(UniqueKernelHandle, TheSystemsHandleIsGone) {
    const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    ASSERT_NE(event, nullptr);
    {
        const toolkit::UniqueKernelHandle owner(event);
        EXPECT_TRUE(owner);
    }
    DWORD flags = 0;
    EXPECT_EQ(GetHandleInformation(event, &flags), FALSE);
}

}  // namespace
}  // namespace corvane::test
