#include "app/rule_list/rule_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/kit/samples/sample_configuration.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kNoSelection = -1;

// Everything that a command may be asked, with a row of the caller's choice.
void RunEveryCommand(store::ConfigurationState& state, int row) {
    EXPECT_EQ(app::MakeRuleFirst(state, row), std::nullopt);
    EXPECT_EQ(app::MoveRuleUp(state, row), std::nullopt);
    EXPECT_EQ(app::MoveRuleDown(state, row, 3), std::nullopt);
    EXPECT_EQ(app::MakeRuleLast(state, row), std::nullopt);
    EXPECT_EQ(app::CopyRule(state, row), std::nullopt);
    EXPECT_EQ(app::RuleAtRow(state, row), nullptr);
    app::ReplaceRule(state, row, RuleDescribed(L"new"));
}

TEST(RuleCommands, WithoutASelectionNothingHappens) {
    store::ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
    const store::ConfigurationState before = state;
    RunEveryCommand(state, kNoSelection);
    EXPECT_FALSE(app::DeleteRules(state, {}));
    EXPECT_EQ(state, before);
}

TEST(RuleCommands, WithoutACurrentProfileNothingHappens) {
    for (const wchar_t* const name : {L"", L"none such"}) {
        store::ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
        state.currentProfileName = name;
        const store::ConfigurationState before = state;
        RunEveryCommand(state, 0);
        app::AppendRule(state, RuleDescribed(L"new"));
        EXPECT_FALSE(app::DeleteRules(state, {0}));
        EXPECT_EQ(state, before);
    }
}

TEST(RuleCommands, AnEmptyCurrentNameIsNoProfileEvenIfOneHasNoName) {
    store::ConfigurationState state = StateWith({ProfileWithRules(L"", {L"a"})}, L"");
    app::AppendRule(state, RuleDescribed(L"new"));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a"));
    EXPECT_FALSE(state.isDirty);
}

TEST(RuleCommands, ARowBeyondTheRulesIsAFaultThatChangesNothing) {
    store::ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
    const store::ConfigurationState before = state;
    EXPECT_THROW(app::MakeRuleFirst(state, 3), std::invalid_argument);
    EXPECT_THROW(app::MoveRuleUp(state, 3), std::invalid_argument);
    EXPECT_THROW(app::MoveRuleDown(state, 3, 5), std::invalid_argument);
    EXPECT_THROW(app::MoveRuleDown(state, 2, 4), std::invalid_argument);
    EXPECT_THROW(app::MakeRuleLast(state, 3), std::invalid_argument);
    EXPECT_THROW(app::CopyRule(state, 3), std::invalid_argument);
    EXPECT_THROW(app::ReplaceRule(state, 3, RuleDescribed(L"new")), std::invalid_argument);
    EXPECT_THROW((void)app::RuleAtRow(state, 3), std::invalid_argument);
    EXPECT_THROW(app::DeleteRules(state, {1, 3}), std::invalid_argument);
    EXPECT_EQ(state, before);
}

TEST(RuleCommands, WorkOnTheFirstProfileOfTheCurrentName) {
    store::ConfigurationState state =
        StateWith({ProfileWithRules(L"other", {L"x"}), ProfileWithRules(L"main", {L"a"}),
                   ProfileWithRules(L"main", {L"y"})},
                  L"main");
    EXPECT_EQ(app::CopyRule(state, 0), 1U);
    EXPECT_THAT(RuleDescriptions(state, 0), ElementsAre(L"x"));
    EXPECT_THAT(RuleDescriptions(state, 1), ElementsAre(L"a", L"a"));
    EXPECT_THAT(RuleDescriptions(state, 2), ElementsAre(L"y"));
}

// Deliberate: while rules are not listed, rows and rules differ, and the row's position is what counts.
TEST(RuleCommands, TakeTheRowsPositionAsTheRulesPositionEvenIfRulesAreNotListed) {
    store::ConfigurationState state = StateWithRules({L"hidden", L"shown", L"c"});
    state.profiles[0].rules[0].operation.clear();
    ASSERT_NE(app::RuleAtRow(state, 0), nullptr);
    EXPECT_EQ(app::RuleAtRow(state, 0)->description, L"hidden");
    EXPECT_TRUE(app::DeleteRules(state, {0}));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"shown", L"c"));
}

TEST(RuleAtRow, GivesTheRuleOfTheState) {
    const store::ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_EQ(app::RuleAtRow(state, 1), &state.profiles[0].rules[1]);
}

TEST(MakeRuleFirst, MovesTheRuleBeforeAllOthersWhichKeepTheirOrder) {
    store::ConfigurationState state = StateWithRules({L"a", L"b", L"c", L"d"});
    EXPECT_EQ(app::MakeRuleFirst(state, 2), 0U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"c", L"a", L"b", L"d"));
    EXPECT_TRUE(state.isDirty);
}

TEST(MakeRuleFirst, OfTheFirstRuleSetsTheDirtyFlagAllTheSame) {
    store::ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_EQ(app::MakeRuleFirst(state, 0), 0U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"b"));
    EXPECT_TRUE(state.isDirty);
}

TEST(MoveRuleUp, ChangesPlacesWithTheRuleBefore) {
    store::ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
    EXPECT_EQ(app::MoveRuleUp(state, 2), 1U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"c", L"b"));
    EXPECT_TRUE(state.isDirty);
}

TEST(MoveRuleUp, OfTheFirstRuleKeepsTheOrderAndSetsTheDirtyFlag) {
    store::ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_EQ(app::MoveRuleUp(state, 0), 0U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"b"));
    EXPECT_TRUE(state.isDirty);
}

TEST(MoveRuleDown, ChangesPlacesWithTheRuleAfter) {
    store::ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
    EXPECT_EQ(app::MoveRuleDown(state, 0, 3), 1U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"b", L"a", L"c"));
    EXPECT_TRUE(state.isDirty);
}

TEST(MoveRuleDown, OnTheLastRowChangesNothingAndLeavesTheDirtyFlag) {
    store::ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_EQ(app::MoveRuleDown(state, 1, 2), std::nullopt);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"b"));
    EXPECT_FALSE(state.isDirty);
    state.isDirty = true;
    EXPECT_EQ(app::MoveRuleDown(state, 1, 2), std::nullopt);
    EXPECT_TRUE(state.isDirty);
}

TEST(MoveRuleDown, OnTheLastRowOfAFilteredListDoesNothingThoughRulesFollow) {
    store::ConfigurationState state = StateWithRules({L"a", L"b", L"c", L"d"});
    EXPECT_EQ(app::MoveRuleDown(state, 1, 2), std::nullopt);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"b", L"c", L"d"));
    EXPECT_FALSE(state.isDirty);
}

TEST(MakeRuleLast, MovesTheRuleAfterAllOthersWhichKeepTheirOrder) {
    store::ConfigurationState state = StateWithRules({L"a", L"b", L"c", L"d"});
    EXPECT_EQ(app::MakeRuleLast(state, 1), 3U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"c", L"d", L"b"));
    EXPECT_TRUE(state.isDirty);
}

TEST(MakeRuleLast, OfTheLastRuleSetsTheDirtyFlagAllTheSame) {
    store::ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_EQ(app::MakeRuleLast(state, 1), 1U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"b"));
    EXPECT_TRUE(state.isDirty);
}

TEST(CopyRule, InsertsTheCopyRightAfterTheRule) {
    store::ConfigurationState state = StateWithRules({L"a", L"b"});
    state.profiles[0].rules[0].signerGroups = {{L"g", {L"CN=A"}}};
    EXPECT_EQ(app::CopyRule(state, 0), 1U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"a", L"b"));
    EXPECT_EQ(state.profiles[0].rules[1], state.profiles[0].rules[0]);
    EXPECT_TRUE(state.isDirty);
}

TEST(CopyRule, OfTheLastRuleAppends) {
    store::ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_EQ(app::CopyRule(state, 1), 2U);
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"b", L"b"));
}

TEST(DeleteRules, RemovesExactlyTheThreeSelectedRules) {
    store::ConfigurationState state = StateWithRules({L"a", L"b", L"c", L"d", L"e"});
    EXPECT_TRUE(app::DeleteRules(state, {0, 2, 4}));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"b", L"d"));
    EXPECT_TRUE(state.isDirty);
}

TEST(DeleteRules, RemovesNeighboursAndOneAlone) {
    store::ConfigurationState state = StateWithRules({L"a", L"b", L"c", L"d"});
    EXPECT_TRUE(app::DeleteRules(state, {1, 2}));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"d"));
    EXPECT_TRUE(app::DeleteRules(state, {1}));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a"));
}

TEST(DeleteRules, RemovesAll) {
    store::ConfigurationState state = StateWithRules({L"a", L"b"});
    EXPECT_TRUE(app::DeleteRules(state, {0, 1}));
    EXPECT_THAT(RuleDescriptions(state), IsEmpty());
}

TEST(DeleteRules, RowsOutOfOrderOrTwiceAreAFaultThatChangesNothing) {
    store::ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
    const store::ConfigurationState before = state;
    EXPECT_THROW(app::DeleteRules(state, {1, 0}), std::invalid_argument);
    EXPECT_THROW(app::DeleteRules(state, {1, 1}), std::invalid_argument);
    EXPECT_EQ(state, before);
}

TEST(AppendRule, AddsTheRuleAtTheEndAndSetsTheDirtyFlag) {
    store::ConfigurationState state = StateWithRules({L"a"});
    app::AppendRule(state, RuleDescribed(L"new"));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"new"));
    EXPECT_TRUE(state.isDirty);
}

TEST(ReplaceRule, PutsTheEditedRuleInItsPlaceAndSetsTheDirtyFlag) {
    store::ConfigurationState state = StateWithRules({L"a", L"b", L"c"});
    app::ReplaceRule(state, 1, RuleDescribed(L"new"));
    EXPECT_THAT(RuleDescriptions(state), ElementsAre(L"a", L"new", L"c"));
    EXPECT_TRUE(state.isDirty);
}

}  // namespace
}  // namespace corvane::test
