#include "toolkit/system/libraries.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

using TickFunction = DWORD(WINAPI*)();

TEST(FindSystemFunction, FindsWhatTheModuleHas) {
    const auto function =
        toolkit::FindSystemFunction<DWORD(WINAPI*)()>(L"kernel32.dll", "GetCurrentProcessId");
    ASSERT_NE(function, nullptr);
    EXPECT_EQ(function(), GetCurrentProcessId());
}

TEST(FindSystemFunction, IsNullWithoutTheFunctionOrTheModule) {
    EXPECT_EQ(toolkit::FindSystemFunction<TickFunction>(L"kernel32.dll", "NoSuchFunction"), nullptr);
    EXPECT_EQ(toolkit::FindSystemFunction<TickFunction>(L"no_such_module.dll", "GetTickCount"), nullptr);
}

TEST(LateLibrary, FindsAFunctionOfALibraryOfTheSystem) {
    const toolkit::LateLibrary library(L"version.dll");
    EXPECT_NE(library.Find<TickFunction>("GetFileVersionInfoSizeW"), nullptr);
    EXPECT_EQ(library.Find<TickFunction>("NoSuchFunction"), nullptr);
    EXPECT_EQ(library.FailureCode(), static_cast<DWORD>(ERROR_PROC_NOT_FOUND));
}

TEST(LateLibrary, FindsNothingInALibraryThatIsMissing) {
    const toolkit::LateLibrary library(L"no_such_library.dll");
    EXPECT_EQ(library.Find<TickFunction>("GetTickCount"), nullptr);
    EXPECT_EQ(library.FailureCode(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
}

TEST(LateLibrary, StaysLoaded) {
    static_cast<void>(toolkit::LateLibrary(L"version.dll"));
    EXPECT_NE(GetModuleHandleW(L"version.dll"), nullptr);
}

}  // namespace
}  // namespace corvane::test
