#include "toolkit/system/application.h"

#include <gtest/gtest.h>

#include <optional>
#include <thread>

#include "toolkit/system/handles.h"

namespace corvane::test {
namespace {

// Another program that runs at the same time must not meet these.
std::wstring OwnName(const wchar_t* what) {
    return L"Toolkit tests " + std::to_wstring(GetCurrentProcessId()) + L" " + what;
}

// Whether a thread of its own could take the mutex at once.
bool IsFreeForOthers(const std::wstring& name) {
    bool isFree = false;
    std::thread([&] {
        const toolkit::UniqueKernelHandle mutex(OpenMutexW(SYNCHRONIZE, FALSE, name.c_str()));
        isFree = mutex && WaitForSingleObject(mutex.Get(), 0) == WAIT_OBJECT_0;
    }).join();
    return isFree;
}

TEST(NamedMutex, ExistsAsLongAsTheObjectLives) {
    const std::wstring name = OwnName(L"exists");
    EXPECT_FALSE(toolkit::NamedMutex::Exists(name));
    {
        const toolkit::NamedMutex mutex(name);
        EXPECT_TRUE(mutex.IsHeld());
        EXPECT_EQ(mutex.FailureCode(), 0U);
        EXPECT_TRUE(toolkit::NamedMutex::Exists(name));
    }
    EXPECT_FALSE(toolkit::NamedMutex::Exists(name));
}

TEST(NamedMutex, ExistsWhereItMayNotBeOpened) {
    // Nobody may do anything with it, as nobody may with that of a copy that runs with more rights.
    SECURITY_DESCRIPTOR security{};
    ACL nobody{};
    ASSERT_NE(InitializeSecurityDescriptor(&security, SECURITY_DESCRIPTOR_REVISION), FALSE);
    ASSERT_NE(InitializeAcl(&nobody, sizeof nobody, ACL_REVISION), FALSE);
    ASSERT_NE(SetSecurityDescriptorDacl(&security, TRUE, &nobody, FALSE), FALSE);
    SECURITY_ATTRIBUTES attributes{sizeof attributes, &security, FALSE};
    const std::wstring name = OwnName(L"denied");
    const toolkit::UniqueKernelHandle denied(CreateMutexW(&attributes, FALSE, name.c_str()));
    ASSERT_TRUE(denied);
    const toolkit::UniqueKernelHandle mine(OpenMutexW(MUTEX_ALL_ACCESS, FALSE, name.c_str()));
    ASSERT_FALSE(mine);
    ASSERT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
    EXPECT_TRUE(toolkit::NamedMutex::Exists(name));
}

TEST(NamedMutex, IsOwnedFromTheStartAndReleasedInTheEnd) {
    const std::wstring name = OwnName(L"owned");
    std::optional<toolkit::NamedMutex> mutex(name);
    const toolkit::UniqueKernelHandle other(OpenMutexW(SYNCHRONIZE, FALSE, name.c_str()));
    ASSERT_TRUE(other);
    EXPECT_FALSE(IsFreeForOthers(name));
    mutex.reset();
    EXPECT_TRUE(IsFreeForOthers(name)) << "released, although others keep it alive";
}

TEST(NamedMutex, ANameTakenByAnotherKindOfObjectIsAFailureWithItsCode) {
    const std::wstring name = OwnName(L"event");
    const toolkit::UniqueKernelHandle event(CreateEventW(nullptr, FALSE, FALSE, name.c_str()));
    ASSERT_TRUE(event);
    EXPECT_FALSE(toolkit::NamedMutex::Exists(name));
    const toolkit::NamedMutex mutex(name);
    EXPECT_FALSE(mutex.IsHeld());
    EXPECT_EQ(mutex.FailureCode(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
}

}  // namespace
}  // namespace corvane::test
