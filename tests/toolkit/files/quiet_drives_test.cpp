#include <gtest/gtest.h>

#include "toolkit/files/quiet_drives.h"

namespace corvane::test {
namespace {

TEST(QuietDrives, AddsToTheThreadsModeAndPutsItBack) {
    DWORD former = 0;
    SetThreadErrorMode(SEM_NOGPFAULTERRORBOX, &former);
    {
        const toolkit::QuietDrives quiet;
        EXPECT_EQ(GetThreadErrorMode(), static_cast<DWORD>(SEM_NOGPFAULTERRORBOX | SEM_FAILCRITICALERRORS));
    }
    EXPECT_EQ(GetThreadErrorMode(), static_cast<DWORD>(SEM_NOGPFAULTERRORBOX));
    SetThreadErrorMode(former, nullptr);
}

}  // namespace
}  // namespace corvane::test
