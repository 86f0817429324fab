#include "app/rule_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/core/app/sample_state.h"

namespace corvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kNoSelection = -1;

// Everything that a command may be asked, with a row of the caller's choice.
void RunEveryCommand(ConfigurationState& state, int row) {
    EXPECT_EQ(MakeRuleFirst(state, row), std::nullopt);
    EXPECT_EQ(MoveRuleUp(state, row), std::nullopt);
    EXPECT_EQ(MoveRuleDown(state, row, 3), std::nullopt);
    EXPECT_EQ(MakeRuleLast(state, row), std::nullopt);
    EXPECT_EQ(CopyRule(state, row), std::nullopt);
    EXPECT_EQ(RuleAtRow(state, row), nullptr);
    ReplaceRule(state, row, RuleDescribed(L"new"));
}

TEST(RuleCommands, WithoutASelectionNothingHappens) {
    ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
    const ConfigurationState before = state;
    RunEveryCommand(state, kNoSelection);
    EXPECT_FALSE(DeleteRules(state, {}));
    EXPECT_EQ(state, before);
}

TEST(RuleCommands, WithoutACurrentProfileNothingHappens) {
    for (const wchar_t* const name : {L"", L"none such"}) {
        ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
        state.currentProfileName = name;
        const ConfigurationState before = state;
        RunEveryCommand(state, 0);
        AppendRule(state, RuleDescribed(L"new"));
        EXPECT_FALSE(DeleteRules(state, {0}));
        EXPECT_EQ(state, before);
    }
}

TEST(RuleCommands, AnEmptyCurrentNameIsNoProfileEvenIfOneHasNoName) {
    ConfigurationState state = StateWith({ProfileWithRules(L"", {L"a"})}, L"");
    AppendRule(state, RuleDescribed(L"new"));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a"));
    EXPECT_FALSE(state.isDirty);
}

TEST(RuleCommands, ARowBeyondTheRulesIsAFaultThatChangesNothing) {
    ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
    const ConfigurationState before = state;
    EXPECT_THROW(MakeRuleFirst(state, 3), std::invalid_argument);
    EXPECT_THROW(MoveRuleUp(state, 3), std::invalid_argument);
    EXPECT_THROW(MoveRuleDown(state, 3, 5), std::invalid_argument);
    EXPECT_THROW(MoveRuleDown(state, 2, 4), std::invalid_argument);
    EXPECT_THROW(MakeRuleLast(state, 3), std::invalid_argument);
    EXPECT_THROW(CopyRule(state, 3), std::invalid_argument);
    EXPECT_THROW(ReplaceRule(state, 3, RuleDescribed(L"new")), std::invalid_argument);
    EXPECT_THROW((void)RuleAtRow(state, 3), std::invalid_argument);
    EXPECT_THROW(DeleteRules(state, {1, 3}), std::invalid_argument);
    EXPECT_EQ(state, before);
}

TEST(RuleCommands, WorkOnTheFirstProfileOfTheCurrentName) {
    ConfigurationState state =
        StateWith({ProfileWithRules(L"other", {L"x"}), ProfileWithRules(L"main", {L"a"}),
                   ProfileWithRules(L"main", {L"y"})},
                  L"main");
    EXPECT_EQ(CopyRule(state, 0), 1U);
    EXPECT_THAT(RuleDescriptions(state, 0), ElementsAre(L"x"));
    EXPECT_THAT(RuleDescriptions(state, 1), ElementsAre(L"a", L"a"));
    EXPECT_THAT(RuleDescriptions(state, 2), ElementsAre(L"y"));
}

// Deliberate: while rules are not listed, rows and rules differ, and the row's position is what counts.
TEST(RuleCommands, TakeTheRowsPositionAsTheRulesPositionEvenIfRulesAreNotListed) {
    ConfigurationState state = StateWithRules({L"hidden", L"shown", L"c"});
    state.profiles[0].rules[0].operation.clear();
    ASSERT_NE(RuleAtRow(state, 0), nullptr);
    EXPECT_EQ(RuleAtRow(state, 0)->description, L"hidden");
    EXPECT_TRUE(DeleteRules(state, {0}));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"shown", L"c"));
}

TEST(RuleAtRow, GivesTheRuleOfTheState) {
    const ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_EQ(RuleAtRow(state, 1), &state.profiles[0].rules[1]);
}

TEST(MakeRuleFirst, MovesTheRuleBeforeAllOthersWhichKeepTheirOrder) {
    ConfigurationState state = StateWithRules({L"a", L"b", L"c", L"d"});
    EXPECT_EQ(MakeRuleFirst(state, 2), 0U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"c", L"a", L"b", L"d"));
    EXPECT_TRUE(state.isDirty);
}

TEST(MakeRuleFirst, OfTheFirstRuleSetsTheDirtyFlagAllTheSame) {
    ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_EQ(MakeRuleFirst(state, 0), 0U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"b"));
    EXPECT_TRUE(state.isDirty);
}

TEST(MoveRuleUp, ChangesPlacesWithTheRuleBefore) {
    ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
    EXPECT_EQ(MoveRuleUp(state, 2), 1U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"c", L"b"));
    EXPECT_TRUE(state.isDirty);
}

TEST(MoveRuleUp, OfTheFirstRuleKeepsTheOrderAndSetsTheDirtyFlag) {
    ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_EQ(MoveRuleUp(state, 0), 0U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"b"));
    EXPECT_TRUE(state.isDirty);
}

TEST(MoveRuleDown, ChangesPlacesWithTheRuleAfter) {
    ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
    EXPECT_EQ(MoveRuleDown(state, 0, 3), 1U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"b", L"a", L"c"));
    EXPECT_TRUE(state.isDirty);
}

TEST(MoveRuleDown, OnTheLastRowChangesNothingAndLeavesTheDirtyFlag) {
    ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_EQ(MoveRuleDown(state, 1, 2), std::nullopt);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"b"));
    EXPECT_FALSE(state.isDirty);
    state.isDirty = true;
    EXPECT_EQ(MoveRuleDown(state, 1, 2), std::nullopt);
    EXPECT_TRUE(state.isDirty);
}

TEST(MoveRuleDown, OnTheLastRowOfAFilteredListDoesNothingThoughRulesFollow) {
    ConfigurationState state = StateWithRules({L"a", L"b", L"c", L"d"});
    EXPECT_EQ(MoveRuleDown(state, 1, 2), std::nullopt);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"b", L"c", L"d"));
    EXPECT_FALSE(state.isDirty);
}

TEST(MakeRuleLast, MovesTheRuleAfterAllOthersWhichKeepTheirOrder) {
    ConfigurationState state = StateWithRules({L"a", L"b", L"c", L"d"});
    EXPECT_EQ(MakeRuleLast(state, 1), 3U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"c", L"d", L"b"));
    EXPECT_TRUE(state.isDirty);
}

TEST(MakeRuleLast, OfTheLastRuleSetsTheDirtyFlagAllTheSame) {
    ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_EQ(MakeRuleLast(state, 1), 1U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"b"));
    EXPECT_TRUE(state.isDirty);
}

TEST(CopyRule, InsertsTheCopyRightAfterTheRule) {
    ConfigurationState state = StateWithRules({L"a", L"b"});
    state.profiles[0].rules[0].signerGroups = {{L"g", {L"CN=A"}}};
    EXPECT_EQ(CopyRule(state, 0), 1U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"a", L"b"));
    EXPECT_EQ(state.profiles[0].rules[1], state.profiles[0].rules[0]);
    EXPECT_TRUE(state.isDirty);
}

TEST(CopyRule, OfTheLastRuleAppends) {
    ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_EQ(CopyRule(state, 1), 2U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"b", L"b"));
}

TEST(DeleteRules, RemovesExactlyTheThreeSelectedRules) {
    ConfigurationState state = StateWithRules({L"a", L"b", L"c", L"d", L"e"});
    EXPECT_TRUE(DeleteRules(state, {0, 2, 4}));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"b", L"d"));
    EXPECT_TRUE(state.isDirty);
}

TEST(DeleteRules, RemovesNeighboursAndOneAlone) {
    ConfigurationState state = StateWithRules({L"a", L"b", L"c", L"d"});
    EXPECT_TRUE(DeleteRules(state, {1, 2}));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"d"));
    EXPECT_TRUE(DeleteRules(state, {1}));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a"));
}

TEST(DeleteRules, RemovesAll) {
    ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_TRUE(DeleteRules(state, {0, 1}));
    EXPECT_THAT(RuleDescriptions(state), IsEmpty());
}

TEST(DeleteRules, RowsOutOfOrderOrTwiceAreAFaultThatChangesNothing) {
    ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
    const ConfigurationState before = state;
    EXPECT_THROW(DeleteRules(state, {1, 0}), std::invalid_argument);
    EXPECT_THROW(DeleteRules(state, {1, 1}), std::invalid_argument);
    EXPECT_EQ(state, before);
}

TEST(AppendRule, AddsTheRuleAtTheEndAndSetsTheDirtyFlag) {
    ConfigurationState state = StateWithRules({L"a"});
    AppendRule(state, RuleDescribed(L"new"));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"new"));
    EXPECT_TRUE(state.isDirty);
}

TEST(ReplaceRule, PutsTheEditedRuleInItsPlaceAndSetsTheDirtyFlag) {
    ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
    ReplaceRule(state, 1, RuleDescribed(L"new"));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"new", L"c"));
    EXPECT_TRUE(state.isDirty);
}

}  // namespace
}  // namespace corvane::testing
