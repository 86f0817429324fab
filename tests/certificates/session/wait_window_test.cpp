#include "certificates/session/wait_window.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

TEST(WaitWindowPlace, IsInTheMiddleOfTheParent) {
    const store::WindowRectangle parent{.top = 100, .bottom = 700, .left = 200, .right = 1000};
    const store::WindowRectangle window{.top = 0, .bottom = 80, .left = 0, .right = 300};
    EXPECT_EQ(certificates::WaitWindowPlace(parent, window),
              (certificates::ScreenPoint{.left = 450, .top = 360}));
}

TEST(WaitWindowPlace, HalvesAreRoundedTowardZeroEachForItself) {
    const store::WindowRectangle parent{.top = 0, .bottom = 101, .left = -201, .right = 0};
    const store::WindowRectangle window{.top = 5, .bottom = 8, .left = 10, .right = 15};
    EXPECT_EQ(certificates::WaitWindowPlace(parent, window),
              (certificates::ScreenPoint{.left = -201 + 100 - 2, .top = 50 - 1}));
}

TEST(WaitWindowPlace, AWindowWiderThanItsParentStandsOutOnBothSides) {
    const store::WindowRectangle parent{.top = 0, .bottom = 10, .left = 0, .right = 11};
    const store::WindowRectangle window{.top = 0, .bottom = 30, .left = 0, .right = 31};
    EXPECT_EQ(certificates::WaitWindowPlace(parent, window),
              (certificates::ScreenPoint{.left = -10, .top = -10}));
}

TEST(WaitWindow, ItsTextAsksForUpTo30Seconds) {
    EXPECT_STREQ(certificates::kWaitText,
                 L"Please, wait, cryptocontext initialization can take up to 30 seconds.");
}

}  // namespace
}  // namespace corvane::test
