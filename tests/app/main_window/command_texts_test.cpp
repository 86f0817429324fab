#include "app/main_window/profile_commands.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

TEST(CommandTexts, DeletingThreeRulesAsksWithTheirNumber) {
    EXPECT_EQ(app::DeleteRulesQuestion(3), L"Delete 3 rule(s)?");
    EXPECT_EQ(app::DeleteRulesQuestion(10000), L"Delete 10000 rule(s)?");
}

TEST(CommandTexts, DeletingAProfileAsksWithItsName) {
    EXPECT_EQ(app::DeleteProfileQuestion(L"main"), L"Delete profile 'main'?");
    EXPECT_EQ(app::DeleteProfileQuestion(L"100%s"), L"Delete profile '100%s'?");
}

TEST(CommandTexts, RefusalsAreTheUsersWords) {
    EXPECT_STREQ(app::kLastProfileText, L"Last profile cannot be deleted.");
}

}  // namespace
}  // namespace corvane::test
