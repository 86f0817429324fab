#include "app/about_text.h"

#include <gtest/gtest.h>

namespace corvane::testing {
namespace {

TEST(AboutText, TheVersionLineEndsInTheVersionOfFourNumbers) {
    EXPECT_EQ(AboutVersionText(), L"QENT AC Velmaris - configuration (x64) Version " CORVANE_SHOWN_VERSION);
}

TEST(AboutText, NamesTheProduct) {
    EXPECT_STREQ(kAboutProductText, L"Client Velmaris");
    EXPECT_STREQ(kAboutTitle, L"About programm...");
}

}  // namespace
}  // namespace corvane::testing
