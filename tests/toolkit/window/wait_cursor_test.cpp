#include "toolkit/wait_cursor.h"

#include <gtest/gtest.h>

namespace toolkit {
namespace {

TEST(WaitCursorTest, IsShownForAsLongAsTheWorkTakes) {
    const HCURSOR before = LoadCursorW(nullptr, IDC_IBEAM);
    SetCursor(before);
    {
        const WaitCursor waiting;
        EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    }
    EXPECT_EQ(GetCursor(), before);
}

}  // namespace
}  // namespace toolkit
