#include "app/about/about_text.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

TEST(AboutText, TheVersionLineEndsInTheVersionOfFourNumbers) {
    EXPECT_EQ(app::AboutVersionText(),
              L"QENT AC Velmaris - configuration (x64) Version " CORVANE_SHOWN_VERSION);
}

TEST(AboutText, NamesTheProduct) {
    EXPECT_STREQ(app::kAboutProductText, L"Client Velmaris");
    EXPECT_STREQ(app::kAboutTitle, L"About programm...");
}

}  // namespace
}  // namespace corvane::test
