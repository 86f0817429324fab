#include "app/command_texts.h"

#include <gtest/gtest.h>

namespace corvane::testing {
namespace {

TEST(CommandTexts, DeletingThreeRulesAsksWithTheirNumber) {
    EXPECT_EQ(DeleteRulesQuestion(3), L"Delete 3 rule(s)?");
    EXPECT_EQ(DeleteRulesQuestion(10000), L"Delete 10000 rule(s)?");
}

TEST(CommandTexts, DeletingAProfileAsksWithItsName) {
    EXPECT_EQ(DeleteProfileQuestion(L"main"), L"Delete profile 'main'?");
    EXPECT_EQ(DeleteProfileQuestion(L"100%s"), L"Delete profile '100%s'?");
}

TEST(CommandTexts, RefusalsAreTheUsersWords) {
    EXPECT_STREQ(kLastProfileText, L"Last profile cannot be deleted.");
}

}  // namespace
}  // namespace corvane::testing
