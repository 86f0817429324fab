#include "toolkit/system/wait_cursor.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

TEST(WaitCursorTest, IsShownForAsLongAsTheWorkTakes) {
    const HCURSOR before = LoadCursorW(nullptr, IDC_IBEAM);
    SetCursor(before);
    {
        const toolkit::WaitCursor waiting;
        EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    }
    EXPECT_EQ(GetCursor(), before);
}

}  // namespace
}  // namespace corvane::test
