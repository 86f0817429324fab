#include "app/main_window/profile_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/kit/samples/sample_configuration.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

store::ConfigurationState StateNamed(const store::TextList& names, const wchar_t* current) {
    std::vector<store::Profile> profiles;
    for (const std::wstring& name : names) {
        profiles.push_back(ProfileWithRules(name, {L"rule of " + name}));
    }
    return StateWith(std::move(profiles), current);
}

store::TextList NamesOfProfiles(const store::ConfigurationState& state) {
    store::TextList names;
    for (const store::Profile& profile : state.profiles) {
        names.push_back(profile.name);
    }
    return names;
}

TEST(OpenProfileNamed, MakesTheProfileTheCurrentOneAndTellsWhatToShow) {
    store::ConfigurationState state = StateNamed({L"a", L"b"}, L"a");
    state.profiles[1].csProfiles = {L"x", L"y", L"z"};
    EXPECT_EQ(app::OpenProfileNamed(state, L"b"),
              (app::OpenedProfile{.name = L"b", .csProfileCount = 3, .position = 1}));
    EXPECT_EQ(state.currentProfileName, L"b");
    EXPECT_FALSE(state.isDirty);
}

TEST(OpenProfileNamed, TakesTheFirstOfTwoProfilesOfTheSameName) {
    store::ConfigurationState state = StateNamed({L"a", L"b", L"b"}, L"");
    state.profiles[1].csProfiles = {L"x"};
    EXPECT_EQ(app::OpenProfileNamed(state, L"b"),
              (app::OpenedProfile{.name = L"b", .csProfileCount = 1, .position = 1}));
}

TEST(OpenProfileNamed, ANameThatNoProfileHasIsTheCurrentOneAllTheSame) {
    store::ConfigurationState state = StateNamed({L"a"}, L"a");
    EXPECT_EQ(app::OpenProfileNamed(state, L"A"), std::nullopt);
    EXPECT_EQ(state.currentProfileName, L"A");
}

TEST(DeleteProfile, RemovesTheProfileAndItsName) {
    store::ConfigurationState state = StateNamed({L"a", L"b", L"c"}, L"b");
    EXPECT_TRUE(app::DeleteProfile(state, state.profileNames, 1));
    EXPECT_THAT(state.profileNames, ElementsAre(L"a", L"c"));
    EXPECT_THAT(NamesOfProfiles(state), ElementsAre(L"a", L"c"));
    EXPECT_TRUE(state.isDirty);
}

// While the window takes the deleted profile from the screen, no check box may reach another profile.
TEST(DeleteProfile, LeavesNoCurrentNameUntilTheWindowIsThrough) {
    for (const std::size_t row : {0U, 1U, 2U}) {
        store::ConfigurationState state = StateNamed({L"a", L"b", L"c"}, L"a");
        EXPECT_TRUE(app::DeleteProfile(state, store::TextList(state.profileNames), row));
        EXPECT_EQ(state.currentProfileName, L"") << "row " << row;
    }
}

// Deliberate: the walk over the rows does not correct its index for the removed one.
TEST(DeleteProfile, TellsWhichNameBecomesTheCurrentOne) {
    const store::TextList all = {L"a", L"b", L"c", L"d", L"e"};
    struct Case {
        std::size_t rowCount;
        std::size_t selectedRow;
        const wchar_t* nextCurrentName;
    };
    for (const Case& wanted : {Case{2, 0, L""}, Case{2, 1, L""}, Case{3, 0, L"c"}, Case{3, 1, L""},
                               Case{3, 2, L""}, Case{5, 1, L"e"}, Case{5, 2, L"e"}, Case{5, 3, L""}}) {
        const store::TextList rows(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(wanted.rowCount));
        store::ConfigurationState state = StateNamed(rows, L"a");
        EXPECT_EQ(app::DeleteProfile(state, rows, wanted.selectedRow),
                  (app::DeletedProfile{.nextCurrentName = wanted.nextCurrentName}))
            << "row " << wanted.selectedRow << " of " << wanted.rowCount;
    }
}

TEST(DeleteProfile, TheOnlyProfileIsRefused) {
    store::ConfigurationState state = StateNamed({L"a"}, L"a");
    const store::ConfigurationState before = state;
    EXPECT_EQ(app::DeleteProfile(state, {L"a"}, 0), std::nullopt);
    EXPECT_EQ(state, before);
}

TEST(DeleteProfile, TheRefusalLeavesTheVisitedRowsTextAsTheCurrentName) {
    store::ConfigurationState state = StateNamed({L"a"}, L"");
    EXPECT_EQ(app::DeleteProfile(state, {L"a"}, 0), std::nullopt);
    EXPECT_EQ(state.currentProfileName, L"a");
    EXPECT_FALSE(state.isDirty);
}

TEST(DeleteProfile, ARowThatIsNoneIsAFaultThatChangesNothing) {
    store::ConfigurationState state = StateNamed({L"a", L"b"}, L"a");
    const store::ConfigurationState before = state;
    EXPECT_THROW(app::DeleteProfile(state, {L"a", L"b"}, 2), std::invalid_argument);
    EXPECT_THROW(app::DeleteProfile(state, {L"a", L"b", L"row without a profile"}, 2), std::invalid_argument);
    EXPECT_EQ(state, before);
}

TEST(AppendProfile, AppendsProfileAndNameAndSetsTheDirtyFlag) {
    store::ConfigurationState state = StateNamed({L"a"}, L"a");
    app::AppendProfile(state, ProfileWithRules(L"new", {L"r"}));
    EXPECT_THAT(state.profileNames, ElementsAre(L"a", L"new"));
    EXPECT_THAT(NamesOfProfiles(state), ElementsAre(L"a", L"new"));
    EXPECT_THAT(RuleDescriptions(state, 1), ElementsAre(L"r"));
    EXPECT_EQ(state.currentProfileName, L"a");
    EXPECT_TRUE(state.isDirty);
}

// Deliberate: the attempt alone counts as a change.
TEST(HasNoProfileToEdit, WithoutProfilesSetsTheDirtyFlag) {
    store::ConfigurationState state;
    EXPECT_TRUE(app::HasNoProfileToEdit(state));
    EXPECT_TRUE(state.isDirty);
}

TEST(HasNoProfileToEdit, WithAProfileLeavesTheDirtyFlag) {
    store::ConfigurationState state = StateNamed({L"a"}, L"a");
    EXPECT_FALSE(app::HasNoProfileToEdit(state));
    EXPECT_FALSE(state.isDirty);
}

TEST(ReplaceCurrentProfile, PutsTheEditedProfileAndItsNewNameInPlace) {
    store::ConfigurationState state = StateNamed({L"a", L"b", L"c"}, L"b");
    store::Profile edited = state.profiles[1];
    edited.name = L"renamed";
    edited.handlerTimeout = 99;
    EXPECT_EQ(app::ReplaceCurrentProfile(state, edited, {}), 1U);
    EXPECT_EQ(state.currentProfileName, L"renamed");
    EXPECT_THAT(state.profileNames, ElementsAre(L"a", L"renamed", L"c"));
    EXPECT_EQ(state.profiles[1], edited);
    EXPECT_TRUE(state.isDirty);
}

TEST(ReplaceCurrentProfile, WithoutACurrentProfileNothingHappens) {
    store::ConfigurationState state = StateNamed({L"a"}, L"none such");
    const store::ConfigurationState before = state;
    EXPECT_EQ(app::ReplaceCurrentProfile(state, store::Profile(), {}), std::nullopt);
    EXPECT_EQ(state, before);
}

TEST(ReplaceCurrentProfile, RulesOfADeletedCsProfileGetTheFirstOne) {
    store::ConfigurationState state = StateNamed({L"a"}, L"a");
    store::Profile edited = ProfileWithRules(L"a", {L"1", L"2", L"3", L"4"});
    edited.csProfiles = {L"first", L"second"};
    edited.rules[0].csProfile = L"gone";
    edited.rules[0].resignProfile = L"second";
    edited.rules[1].csProfile = L"second";
    edited.rules[1].resignProfile = L"gone too";
    edited.rules[2].csProfile = L"gone too";
    edited.rules[2].resignProfile = L"gone";
    edited.rules[3].csProfile = L"Gone";
    EXPECT_EQ(app::ReplaceCurrentProfile(state, edited, {L"gone", L"gone too"}), 0U);
    const std::vector<store::Rule>& rules = state.profiles[0].rules;
    EXPECT_EQ(rules[0].csProfile, L"first");
    EXPECT_EQ(rules[0].resignProfile, L"second");
    EXPECT_EQ(rules[1].csProfile, L"second");
    EXPECT_EQ(rules[1].resignProfile, L"first");
    EXPECT_EQ(rules[2].csProfile, L"first");
    EXPECT_EQ(rules[2].resignProfile, L"first");
    EXPECT_EQ(rules[3].csProfile, L"Gone");
    EXPECT_EQ(rules[3].resignProfile, L"");
}

TEST(ReplaceCurrentProfile, RulesOfOtherProfilesKeepTheDeletedCsProfile) {
    store::ConfigurationState state = StateNamed({L"a", L"b"}, L"a");
    state.profiles[1].rules[0].csProfile = L"gone";
    store::Profile edited = state.profiles[0];
    edited.csProfiles = {L"first"};
    EXPECT_EQ(app::ReplaceCurrentProfile(state, edited, {L"gone"}), 0U);
    EXPECT_EQ(state.profiles[1].rules[0].csProfile, L"gone");
}

TEST(ReplaceCurrentProfile, DeletedCsProfilesWithNoneLeftAreAFaultThatChangesNothing) {
    store::ConfigurationState state = StateNamed({L"a"}, L"a");
    const store::ConfigurationState before = state;
    EXPECT_THROW(app::ReplaceCurrentProfile(state, ProfileWithRules(L"x", {}), {L"gone"}),
                 std::invalid_argument);
    EXPECT_EQ(state, before);
}

TEST(Captions, NameTheProfileAndTheNumberOfItsCsProfiles) {
    EXPECT_EQ(app::ProfileCaption(L"main"), L"Profile: main");
    EXPECT_EQ(app::ProfileCaption(L""), L"Profile: ");
    EXPECT_EQ(app::RuleListCaption(0), L"CS profile's num: 0");
    EXPECT_EQ(app::RuleListCaption(12), L"CS profile's num: 12");
}

TEST(Captions, AProfileNameWithPercentSignsIsShownAsItIs) {
    EXPECT_EQ(app::ProfileCaption(L"100%s"), L"Profile: 100%s");
}

}  // namespace
}  // namespace corvane::test
