#include <gtest/gtest.h>

#include "toolkit/quiet_drives.h"

namespace toolkit {
namespace {

TEST(QuietDrives, AddsToTheThreadsModeAndPutsItBack) {
    DWORD former = 0;
    SetThreadErrorMode(SEM_NOGPFAULTERRORBOX, &former);
    {
        const QuietDrives quiet;
        EXPECT_EQ(GetThreadErrorMode(), static_cast<DWORD>(SEM_NOGPFAULTERRORBOX | SEM_FAILCRITICALERRORS));
    }
    EXPECT_EQ(GetThreadErrorMode(), static_cast<DWORD>(SEM_NOGPFAULTERRORBOX));
    SetThreadErrorMode(former, nullptr);
}

}  // namespace
}  // namespace toolkit
