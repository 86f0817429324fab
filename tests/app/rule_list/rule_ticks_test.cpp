#include "app/rule_list/rule_ticks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/kit/samples/sample_configuration.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

constexpr int kNoSuchRow = -1;
constexpr int kUnchecked = 0;
constexpr int kChecked = 1;

store::ConfigurationState StateWithSwitches(const store::NumberList& switches) {
    store::ConfigurationState state = StateWithRules(store::TextList(switches.size(), L"rule"));
    for (std::size_t position = 0; position < switches.size(); ++position) {
        state.profiles[0].rules[position].isOn = switches[position];
    }
    return state;
}

store::NumberList Switches(const store::ConfigurationState& state, std::size_t profilePosition = 0) {
    store::NumberList switches;
    for (const store::Rule& rule : state.profiles[profilePosition].rules) {
        switches.push_back(rule.isOn);
    }
    return switches;
}

// A list with these check boxes, which answers for rows that it does not have as a list does.
class ListWith : public app::CheckBoxes {
  public:
    explicit ListWith(std::vector<int> boxes) : boxes_(std::move(boxes)) {}

    [[nodiscard]] int CheckState(std::size_t row) const override {
        return row < boxes_.size() ? boxes_[row] : kNoSuchRow;
    }

  private:
    std::vector<int> boxes_;
};

// A list that must not be read.
class UnreadList : public app::CheckBoxes {
  public:
    [[nodiscard]] int CheckState(std::size_t row) const override {
        ADD_FAILURE() << "The box of row " << row << " was read.";
        return kChecked;
    }
};

TEST(SyncCheckBoxes, CopiesTheBoxesAndSetsTheDirtyFlag) {
    store::ConfigurationState state = StateWithSwitches({1, 0, 1});
    app::SyncCheckBoxes(state, ListWith({kUnchecked, kChecked, kChecked}));
    EXPECT_THAT(Switches(state), ElementsAre(0, 1, 1));
    EXPECT_TRUE(state.isDirty);
}

TEST(SyncCheckBoxes, BoxesAsTheRulesHaveThemLeaveTheDirtyFlag) {
    store::ConfigurationState state = StateWithSwitches({1, 0});
    app::SyncCheckBoxes(state, ListWith({kChecked, kUnchecked}));
    EXPECT_FALSE(state.isDirty);
    state.isDirty = true;
    app::SyncCheckBoxes(state, ListWith({kChecked, kUnchecked}));
    EXPECT_TRUE(state.isDirty);
}

TEST(SyncCheckBoxes, OneSwitchedOffAloneSetsTheDirtyFlag) {
    store::ConfigurationState state = StateWithSwitches({1, 1});
    app::SyncCheckBoxes(state, ListWith({kChecked, kUnchecked}));
    EXPECT_THAT(Switches(state), ElementsAre(1, 0));
    EXPECT_TRUE(state.isDirty);
}

TEST(SyncCheckBoxes, ACheckedRuleWhoseSwitchIsNeither0Nor1Becomes1) {
    store::ConfigurationState state = StateWithSwitches({5});
    app::SyncCheckBoxes(state, ListWith({kChecked}));
    EXPECT_THAT(Switches(state), ElementsAre(1));
    EXPECT_TRUE(state.isDirty);
}

// Deliberate: a row that does not exist counts as checked.
TEST(SyncCheckBoxes, RulesWhoseRowsTheFilterHidesAreSwitchedOn) {
    store::ConfigurationState state = StateWithSwitches({1, 1, 0, 0, 1});
    app::SyncCheckBoxes(state, ListWith({kUnchecked, kChecked}));
    EXPECT_THAT(Switches(state), ElementsAre(0, 1, 1, 1, 1));
    EXPECT_TRUE(state.isDirty);
}

TEST(SyncCheckBoxes, MissingRowsOfRulesThatAreOnChangeNothing) {
    store::ConfigurationState state = StateWithSwitches({1, 1, 1});
    app::SyncCheckBoxes(state, ListWith({kChecked}));
    EXPECT_THAT(Switches(state), ElementsAre(1, 1, 1));
    EXPECT_FALSE(state.isDirty);
}

TEST(SyncCheckBoxes, ARuleWithoutOperationIsLeftAlone) {
    store::ConfigurationState state = StateWithSwitches({7, 0});
    state.profiles[0].rules[0].operation.clear();
    app::SyncCheckBoxes(state, ListWith({kUnchecked, kUnchecked}));
    EXPECT_THAT(Switches(state), ElementsAre(7, 0));
    EXPECT_FALSE(state.isDirty);
}

// Deliberate: row i stands for rule i, although the rule without operation has no row.
TEST(SyncCheckBoxes, TheRowsPositionIsTheRulesPositionEvenBehindARuleThatIsNotListed) {
    store::ConfigurationState state = StateWithSwitches({0, 0, 0});
    state.profiles[0].rules[0].operation.clear();
    app::SyncCheckBoxes(state, ListWith({kChecked, kUnchecked}));
    EXPECT_THAT(Switches(state), ElementsAre(0, 0, 1));
}

TEST(SyncCheckBoxes, EveryProfileOfTheCurrentNameIsTakenAndNoOther) {
    store::ConfigurationState state =
        StateWith({ProfileWithRules(L"main", {L"a"}), ProfileWithRules(L"other", {L"b"}),
                   ProfileWithRules(L"main", {L"c"})},
                  L"main");
    app::SyncCheckBoxes(state, ListWith({kChecked}));
    EXPECT_THAT(Switches(state, 0), ElementsAre(1));
    EXPECT_THAT(Switches(state, 1), ElementsAre(0));
    EXPECT_THAT(Switches(state, 2), ElementsAre(1));
}

TEST(SyncCheckBoxes, WithoutACurrentProfileNameNoBoxIsRead) {
    store::ConfigurationState state = StateWith({ProfileWithRules(L"", {L"a"})}, L"");
    app::SyncCheckBoxes(state, UnreadList());
    EXPECT_THAT(Switches(state), ElementsAre(0));
    EXPECT_FALSE(state.isDirty);
}

TEST(TakeTicks, CopiesTheBoxesIntoTheProfileAndNoOther) {
    store::ConfigurationState state =
        StateWith({ProfileWithRules(L"main", {L"a"}), ProfileWithRules(L"main", {L"b", L"c"})}, L"main");
    app::TakeTicks(state, 1, ListWith({kUnchecked, kChecked}));
    EXPECT_THAT(Switches(state, 0), ElementsAre(0));
    EXPECT_THAT(Switches(state, 1), ElementsAre(0, 1));
    EXPECT_TRUE(state.isDirty);
}

TEST(TakeTicks, OneSwitchedOffAloneSetsTheDirtyFlag) {
    store::ConfigurationState state = StateWithSwitches({1, 1});
    app::TakeTicks(state, 0, ListWith({kChecked, kUnchecked}));
    EXPECT_THAT(Switches(state), ElementsAre(1, 0));
    EXPECT_TRUE(state.isDirty);
}

TEST(TakeTicks, BoxesThatShowWhatTheRulesAreChangeNothing) {
    store::ConfigurationState state = StateWithSwitches({5, 0});
    app::TakeTicks(state, 0, ListWith({kChecked, kUnchecked}));
    EXPECT_THAT(Switches(state), ElementsAre(5, 0));
    EXPECT_FALSE(state.isDirty);
}

}  // namespace
}  // namespace corvane::test
