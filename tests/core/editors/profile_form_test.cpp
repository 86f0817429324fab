#include "editors/profile_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "editors/cs_profile_list.h"
#include "editors/profile_commit.h"
#include "editors/profile_opening.h"
#include "tests/core/editors/sample_profiles.h"

namespace corvane::testing {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ProfileEditor : public ::testing::Test {
  protected:
    ProfileForm Open(const Profile& profile) { return OpenProfileForm(profile, catalogue_, shown_); }

    corvane::TextList catalogue_ = {L"CS one", L"CS two"};
    ShownCsProfile shown_{.index = 7};
};

TEST_F(ProfileEditor, ANewProfileStartsWithTheFirstCsProfileOfTheCatalogueAndItsDefaults) {
    const ProfileForm form = Open(Profile());
    EXPECT_EQ(ProfileTitle(form), L"Add profile");
    EXPECT_EQ(SettingsTitle(form), L"CS profile setting's: CS one");
    EXPECT_THAT(form.result.csProfiles, ElementsAre(L"CS one"));
    EXPECT_THAT(ListLengths(form.result), Each(1U));
    CsProfile expected;
    expected.name = L"CS one";
    EXPECT_EQ(form.shown, expected);
    EXPECT_EQ(form.shown.notUseDirectory, 1);
    EXPECT_EQ(form.shown.timeStampServer, L"0");
    EXPECT_EQ(form.shown.crlUpdatePeriod, 1);
    EXPECT_EQ(form.result.handlerTimeout, 15);
    EXPECT_EQ(form.selectedCsProfile, 0);
    EXPECT_EQ(shown_.index, 0);
    EXPECT_THAT(form.deletedCsProfiles, IsEmpty());
}

TEST_F(ProfileEditor, ANewProfileWithoutAnyCsProfileCannotBeOpened) {
    catalogue_.clear();
    EXPECT_THROW(static_cast<void>(Open(Profile())), std::invalid_argument);
}

TEST_F(ProfileEditor, AStoredProfileShowsItsFirstCsProfile) {
    const Profile profile = ProfileWith(L"alpha", {L"CS two", L"CS one"});
    const ProfileForm form = Open(profile);
    EXPECT_EQ(ProfileTitle(form), L"Edit profile");
    EXPECT_EQ(SettingsTitle(form), L"CS profile setting's: CS two");
    EXPECT_EQ(form.result, profile);
    EXPECT_EQ(form.shown, FilledCsProfile(L"CS two", 0));
    EXPECT_EQ(form.selectedCsProfile, 0);
    EXPECT_EQ(shown_.index, 0);
}

TEST_F(ProfileEditor, AStoredProfileKeepsCsProfilesThatTheCatalogueHasNoMore) {
    catalogue_.clear();
    const ProfileForm form = Open(ProfileWith(L"alpha", {L"gone", L"gone too"}));
    EXPECT_THAT(form.result.csProfiles, ElementsAre(L"gone", L"gone too"));
    EXPECT_EQ(form.shown.name, L"gone");
}

TEST_F(ProfileEditor, AStoredProfileWithoutCsProfilesShowsTheSettingsOfANewOneAndKeepsNone) {
    Profile profile;
    profile.name = L"bare";
    ProfileForm form = Open(profile);
    EXPECT_EQ(SettingsTitle(form), L"CS profile setting's: ");
    EXPECT_EQ(form.shown, CsProfile());
    EXPECT_EQ(form.selectedCsProfile, -1);
    EXPECT_EQ(shown_.index, -1);
    CommitProfile(form);
    EXPECT_EQ(form.result, profile);
}

TEST_F(ProfileEditor, ListsOfUnequalLengthAreBroughtToThatOfTheNames) {
    Profile profile = ProfileWith(L"alpha", {L"CS one", L"CS two"});
    profile.timeStampServers.clear();
    profile.notLoadCrl.resize(1);
    const ProfileForm form = Open(profile);
    EXPECT_THAT(ListLengths(form.result), Each(2U));
    EXPECT_EQ(form.shown.timeStampServer, L"0");
    EXPECT_EQ(form.shown.notLoadCrl, 1);
    EXPECT_EQ(CsProfileAt(form.result, 1).notLoadCrl, 0);
}

TEST_F(ProfileEditor, AStoredPeriodIsShownInItsRange) {
    for (const auto& [stored, shownPeriod] :
         {std::pair{8760, 8760}, {8761, 8760}, {-1, 0}, {0, 0}, {2147483647, 8760}}) {
        Profile profile = ProfileWith(L"alpha", {L"CS one"});
        profile.crlUpdatePeriods = {stored};
        EXPECT_EQ(Open(profile).shown.crlUpdatePeriod, shownPeriod);
    }
}

TEST_F(ProfileEditor, AStoredTimeoutBelowZeroIsShownAsZero) {
    Profile profile = ProfileWith(L"alpha", {L"CS one"});
    profile.handlerTimeout = -5;
    EXPECT_EQ(Open(profile).result.handlerTimeout, 0);
}

TEST_F(ProfileEditor, TheServerFieldFollowsItsBox) {
    ProfileForm form = Open(ProfileWith(L"alpha", {L"CS one"}));
    EXPECT_TRUE(IsTimeStampServerEnabled(form));
    OnUseTimeStampServerClicked(form);
    EXPECT_EQ(form.shown.timeStampServer, L"http://0") << "changed by checking";
    form.shown.autoUseTimeStamp = 0;
    OnUseTimeStampServerClicked(form);
    EXPECT_FALSE(IsTimeStampServerEnabled(form));
    EXPECT_EQ(form.shown.timeStampServer, L"0");
    form.shown.autoUseTimeStamp = 1;
    OnUseTimeStampServerClicked(form);
    EXPECT_EQ(form.shown.timeStampServer, L"0");
    EXPECT_FALSE(IsTimeStampServerMissing(form));
}

TEST_F(ProfileEditor, AMissingServerIsOneThatIsUsedAndEmpty) {
    ProfileForm form = Open(ProfileWith(L"alpha", {L"CS one"}));
    for (const wchar_t* const server : {L"0", L" ", L"x"}) {
        form.shown.timeStampServer = server;
        EXPECT_FALSE(IsTimeStampServerMissing(form));
    }
    form.shown.timeStampServer.clear();
    EXPECT_TRUE(IsTimeStampServerMissing(form));
    form.shown.autoUseTimeStamp = 0;
    EXPECT_FALSE(IsTimeStampServerMissing(form));
}

TEST_F(ProfileEditor, WithoutVerificationTheLackOfATimeStampIsNoError) {
    ProfileForm form = Open(ProfileWith(L"alpha", {L"CS one"}));
    EXPECT_TRUE(IsNoTimeStampErrorEnabled(form));
    OnVerifyTimeStampClicked(form);
    EXPECT_EQ(form.shown.noTimeStampIsError, 1) << "changed by checking";
    form.shown.autoVerifyTimeStamp = 0;
    OnVerifyTimeStampClicked(form);
    EXPECT_FALSE(IsNoTimeStampErrorEnabled(form));
    EXPECT_EQ(form.shown.noTimeStampIsError, 0);
}

TEST_F(ProfileEditor, AStoredLackOfATimeStampStaysCheckedWhileItsBoxIsDisabled) {
    Profile profile = ProfileWith(L"alpha", {L"CS one"});
    profile.autoVerifyTimeStamp = {0};
    ProfileForm form = Open(profile);
    EXPECT_FALSE(IsNoTimeStampErrorEnabled(form));
    EXPECT_EQ(form.shown.noTimeStampIsError, 1);
    CommitProfile(form);
    EXPECT_EQ(form.result, profile);
}

TEST_F(ProfileEditor, ThePeriodIsPutIntoItsRangeAtOnce) {
    ProfileForm form = Open(Profile());
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"9000", L"8760"}, {L"8761", L"8760"}, {L"8760", L"8760"},        {L"24", L"24"},
        {L"0", L"0"},       {L"", L"0"},        {L"99999999999", L"8760"}, {L"-1", L"0"},
        {L"abc", L"0"},     {L"007", L"7"},     {L"12a", L"12"},           {L"-99999999999", L"0"},
    };
    for (const auto& [typed, expected] : cases) {
        EXPECT_EQ(OnCrlUpdatePeriodChanged(form, typed), expected);
        EXPECT_EQ(std::to_wstring(form.shown.crlUpdatePeriod), expected);
    }
}

TEST_F(ProfileEditor, TheTimeoutHoldsWhateverFitsAndHasNoUpperBound) {
    ProfileForm form = Open(Profile());
    EXPECT_EQ(OnHandlerTimeoutChanged(form, L"100000"), std::nullopt);
    EXPECT_EQ(form.result.handlerTimeout, 100000);
    EXPECT_EQ(OnHandlerTimeoutChanged(form, L"99999999999"), L"2147483647");
    EXPECT_EQ(form.result.handlerTimeout, 2147483647);
    EXPECT_EQ(OnHandlerTimeoutChanged(form, L""), std::nullopt);
    EXPECT_EQ(form.result.handlerTimeout, 0);
    EXPECT_EQ(OnHandlerTimeoutChanged(form, L"-1"), L"0");
    EXPECT_EQ(form.result.handlerTimeout, 0);
    EXPECT_EQ(OnHandlerTimeoutChanged(form, L"20x"), L"20");
    EXPECT_EQ(form.result.handlerTimeout, 20);
}

TEST_F(ProfileEditor, OkTakesTheShownSettingsForTheSelectedCsProfile) {
    ProfileForm form = Open(ProfileWith(L"alpha", {L"CS one", L"CS two"}));
    form.result.name = L" beta ";
    form.result.renameConfFiles = 1;
    form.shown = CsProfile();
    form.shown.useAuthorityAccess = 1;
    CommitProfile(form);
    EXPECT_EQ(form.result.name, L" beta ") << "the name is taken as typed";
    EXPECT_EQ(form.result.renameConfFiles, 1);
    CsProfile expected = form.shown;
    expected.name = L"CS one";
    EXPECT_EQ(CsProfileAt(form.result, 0), expected);
    EXPECT_EQ(CsProfileAt(form.result, 1), FilledCsProfile(L"CS two", 1));
}

TEST_F(ProfileEditor, AnEmptyServerIsCommittedAsZero) {
    ProfileForm form = Open(ProfileWith(L"alpha", {L"CS one"}));
    form.shown.autoUseTimeStamp = 0;
    form.shown.timeStampServer.clear();
    CommitProfile(form);
    EXPECT_THAT(form.result.timeStampServers, ElementsAre(L"0"));
}

TEST_F(ProfileEditor, AServerIsTakenAsTyped) {
    ProfileForm form = Open(ProfileWith(L"alpha", {L"CS one"}));
    form.shown.timeStampServer = L" http://x ";
    CommitProfile(form);
    EXPECT_THAT(form.result.timeStampServers, ElementsAre(L" http://x "));
}

TEST_F(ProfileEditor, RulesAreLeftAlone) {
    Profile profile = ProfileWith(L"alpha", {L"CS one"});
    Rule rule;
    rule.csProfile = L"CS one";
    rule.recipients = {L"CN=First"};
    profile.rules = {rule, Rule()};
    ProfileForm form = Open(profile);
    CommitProfile(form);
    EXPECT_EQ(form.result, profile);
}

class ProfileSettingsToKeep : public ProfileEditor {
  protected:
    ProfileSettingsToKeep() {
        Profile profile = ProfileWith(L"alpha", {L"CS one", L"CS two"});
        // As a registry may hold it and the editor does not show it.
        profile.timeStampServers[1] = L"";
        profile.crlUpdatePeriods[1] = kLongestCrlUpdatePeriod + 1;
        profile.rules.resize(1);
        form_ = Open(profile);
        opened_ = SettingsToKeep(form_);
    }

    [[nodiscard]] bool IsChanged() const { return SettingsToKeep(form_) != opened_; }

    ProfileForm form_;
    Profile opened_;
};

TEST_F(ProfileSettingsToKeep, AreTheSameWhereNothingWasChanged) {
    EXPECT_FALSE(IsChanged());
    EXPECT_THAT(opened_.rules, IsEmpty());
}

TEST_F(ProfileSettingsToKeep, AreTheSameWhereAnotherCsProfileWasLookedAt) {
    for (const int index : {1, 0, 1}) {
        KeepShownSettings(form_, form_.selectedCsProfile);
        ShowCsProfile(form_, index, shown_);
        EXPECT_FALSE(IsChanged()) << "CS profile " << index;
    }
}

TEST_F(ProfileSettingsToKeep, DifferByWhateverWasChanged) {
    const ProfileForm opened = form_;
    const auto expectChanged = [&](const char* what, auto&& change) {
        form_ = opened;
        change(form_);
        EXPECT_TRUE(IsChanged()) << what;
    };
    expectChanged("name", [](ProfileForm& form) { form.result.name += L"x"; });
    expectChanged("timeout", [](ProfileForm& form) { ++form.result.handlerTimeout; });
    expectChanged("report", [](ProfileForm& form) { form.result.verifyFile ^= 1; });
    expectChanged("shown setting", [](ProfileForm& form) { form.shown.notLoadCrl ^= 1; });
    expectChanged("shown server", [](ProfileForm& form) { form.shown.timeStampServer += L"x"; });
    expectChanged("CS profiles", [](ProfileForm& form) { EraseCsProfile(form.result, 1); });
}

}  // namespace
}  // namespace corvane::testing
