#include "editors/profile/profile_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "editors/profile/cs_profile_list.h"
#include "tests/kit/samples/sample_profiles.h"

namespace corvane::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ProfileEditor : public ::testing::Test {
  protected:
    editors::ProfileForm Open(const store::Profile& profile) {
        return editors::OpenProfileForm(profile, catalogue_, shown_);
    }

    corvane::store::TextList catalogue_ = {L"CS one", L"CS two"};
    editors::ShownCsProfile shown_{.index = 7};
};

TEST_F(ProfileEditor, ANewProfileStartsWithTheFirstCsProfileOfTheCatalogueAndItsDefaults) {
    const editors::ProfileForm form = Open(store::Profile());
    EXPECT_EQ(editors::ProfileTitle(form), L"Add profile");
    EXPECT_EQ(editors::SettingsTitle(form), L"CS profile setting's: CS one");
    EXPECT_THAT(form.result.csProfiles, ElementsAre(L"CS one"));
    EXPECT_THAT(ListLengths(form.result), Each(1U));
    store::CsProfile expected;
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
    EXPECT_THROW(static_cast<void>(Open(store::Profile())), std::invalid_argument);
}

TEST_F(ProfileEditor, AStoredProfileShowsItsFirstCsProfile) {
    const store::Profile profile = ProfileWith(L"alpha", {L"CS two", L"CS one"});
    const editors::ProfileForm form = Open(profile);
    EXPECT_EQ(editors::ProfileTitle(form), L"Edit profile");
    EXPECT_EQ(editors::SettingsTitle(form), L"CS profile setting's: CS two");
    EXPECT_EQ(form.result, profile);
    EXPECT_EQ(form.shown, FilledCsProfile(L"CS two", 0));
    EXPECT_EQ(form.selectedCsProfile, 0);
    EXPECT_EQ(shown_.index, 0);
}

TEST_F(ProfileEditor, AStoredProfileKeepsCsProfilesThatTheCatalogueHasNoMore) {
    catalogue_.clear();
    const editors::ProfileForm form = Open(ProfileWith(L"alpha", {L"gone", L"gone too"}));
    EXPECT_THAT(form.result.csProfiles, ElementsAre(L"gone", L"gone too"));
    EXPECT_EQ(form.shown.name, L"gone");
}

TEST_F(ProfileEditor, AStoredProfileWithoutCsProfilesShowsTheSettingsOfANewOneAndKeepsNone) {
    store::Profile profile;
    profile.name = L"bare";
    editors::ProfileForm form = Open(profile);
    EXPECT_EQ(editors::SettingsTitle(form), L"CS profile setting's: ");
    EXPECT_EQ(form.shown, store::CsProfile());
    EXPECT_EQ(form.selectedCsProfile, -1);
    EXPECT_EQ(shown_.index, -1);
    editors::CommitProfile(form);
    EXPECT_EQ(form.result, profile);
}

TEST_F(ProfileEditor, ListsOfUnequalLengthAreBroughtToThatOfTheNames) {
    store::Profile profile = ProfileWith(L"alpha", {L"CS one", L"CS two"});
    profile.timeStampServers.clear();
    profile.notLoadCrl.resize(1);
    const editors::ProfileForm form = Open(profile);
    EXPECT_THAT(ListLengths(form.result), Each(2U));
    EXPECT_EQ(form.shown.timeStampServer, L"0");
    EXPECT_EQ(form.shown.notLoadCrl, 1);
    EXPECT_EQ(store::CsProfileAt(form.result, 1).notLoadCrl, 0);
}

TEST_F(ProfileEditor, AStoredPeriodIsShownInItsRange) {
    for (const auto& [stored, shownPeriod] :
         {std::pair{8760, 8760}, {8761, 8760}, {-1, 0}, {0, 0}, {2147483647, 8760}}) {
        store::Profile profile = ProfileWith(L"alpha", {L"CS one"});
        profile.crlUpdatePeriods = {stored};
        EXPECT_EQ(Open(profile).shown.crlUpdatePeriod, shownPeriod);
    }
}

TEST_F(ProfileEditor, AStoredTimeoutBelowZeroIsShownAsZero) {
    store::Profile profile = ProfileWith(L"alpha", {L"CS one"});
    profile.handlerTimeout = -5;
    EXPECT_EQ(Open(profile).result.handlerTimeout, 0);
}

TEST_F(ProfileEditor, TheServerFieldFollowsItsBox) {
    editors::ProfileForm form = Open(ProfileWith(L"alpha", {L"CS one"}));
    EXPECT_TRUE(editors::IsTimeStampServerEnabled(form));
    editors::OnUseTimeStampServerClicked(form);
    EXPECT_EQ(form.shown.timeStampServer, L"http://0") << "changed by checking";
    form.shown.autoUseTimeStamp = 0;
    editors::OnUseTimeStampServerClicked(form);
    EXPECT_FALSE(editors::IsTimeStampServerEnabled(form));
    EXPECT_EQ(form.shown.timeStampServer, L"0");
    form.shown.autoUseTimeStamp = 1;
    editors::OnUseTimeStampServerClicked(form);
    EXPECT_EQ(form.shown.timeStampServer, L"0");
    EXPECT_FALSE(editors::IsTimeStampServerMissing(form));
}

TEST_F(ProfileEditor, AMissingServerIsOneThatIsUsedAndEmpty) {
    editors::ProfileForm form = Open(ProfileWith(L"alpha", {L"CS one"}));
    for (const wchar_t* const server : {L"0", L" ", L"x"}) {
        form.shown.timeStampServer = server;
        EXPECT_FALSE(editors::IsTimeStampServerMissing(form));
    }
    form.shown.timeStampServer.clear();
    EXPECT_TRUE(editors::IsTimeStampServerMissing(form));
    form.shown.autoUseTimeStamp = 0;
    EXPECT_FALSE(editors::IsTimeStampServerMissing(form));
}

TEST_F(ProfileEditor, WithoutVerificationTheLackOfATimeStampIsNoError) {
    editors::ProfileForm form = Open(ProfileWith(L"alpha", {L"CS one"}));
    EXPECT_TRUE(editors::IsNoTimeStampErrorEnabled(form));
    editors::OnVerifyTimeStampClicked(form);
    EXPECT_EQ(form.shown.noTimeStampIsError, 1) << "changed by checking";
    form.shown.autoVerifyTimeStamp = 0;
    editors::OnVerifyTimeStampClicked(form);
    EXPECT_FALSE(editors::IsNoTimeStampErrorEnabled(form));
    EXPECT_EQ(form.shown.noTimeStampIsError, 0);
}

TEST_F(ProfileEditor, AStoredLackOfATimeStampStaysCheckedWhileItsBoxIsDisabled) {
    store::Profile profile = ProfileWith(L"alpha", {L"CS one"});
    profile.autoVerifyTimeStamp = {0};
    editors::ProfileForm form = Open(profile);
    EXPECT_FALSE(editors::IsNoTimeStampErrorEnabled(form));
    EXPECT_EQ(form.shown.noTimeStampIsError, 1);
    editors::CommitProfile(form);
    EXPECT_EQ(form.result, profile);
}

TEST_F(ProfileEditor, ThePeriodIsPutIntoItsRangeAtOnce) {
    editors::ProfileForm form = Open(store::Profile());
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"9000", L"8760"}, {L"8761", L"8760"}, {L"8760", L"8760"},        {L"24", L"24"},
        {L"0", L"0"},       {L"", L"0"},        {L"99999999999", L"8760"}, {L"-1", L"0"},
        {L"abc", L"0"},     {L"007", L"7"},     {L"12a", L"12"},           {L"-99999999999", L"0"},
    };
    for (const auto& [typed, expected] : cases) {
        EXPECT_EQ(editors::OnCrlUpdatePeriodChanged(form, typed), expected);
        EXPECT_EQ(std::to_wstring(form.shown.crlUpdatePeriod), expected);
    }
}

TEST_F(ProfileEditor, TheTimeoutHoldsWhateverFitsAndHasNoUpperBound) {
    editors::ProfileForm form = Open(store::Profile());
    EXPECT_EQ(editors::OnHandlerTimeoutChanged(form, L"100000"), std::nullopt);
    EXPECT_EQ(form.result.handlerTimeout, 100000);
    EXPECT_EQ(editors::OnHandlerTimeoutChanged(form, L"99999999999"), L"2147483647");
    EXPECT_EQ(form.result.handlerTimeout, 2147483647);
    EXPECT_EQ(editors::OnHandlerTimeoutChanged(form, L""), std::nullopt);
    EXPECT_EQ(form.result.handlerTimeout, 0);
    EXPECT_EQ(editors::OnHandlerTimeoutChanged(form, L"-1"), L"0");
    EXPECT_EQ(form.result.handlerTimeout, 0);
    EXPECT_EQ(editors::OnHandlerTimeoutChanged(form, L"20x"), L"20");
    EXPECT_EQ(form.result.handlerTimeout, 20);
}

TEST_F(ProfileEditor, OkTakesTheShownSettingsForTheSelectedCsProfile) {
    editors::ProfileForm form = Open(ProfileWith(L"alpha", {L"CS one", L"CS two"}));
    form.result.name = L" beta ";
    form.result.renameConfFiles = 1;
    form.shown = store::CsProfile();
    form.shown.useAuthorityAccess = 1;
    editors::CommitProfile(form);
    EXPECT_EQ(form.result.name, L" beta ") << "the name is taken as typed";
    EXPECT_EQ(form.result.renameConfFiles, 1);
    store::CsProfile expected = form.shown;
    expected.name = L"CS one";
    EXPECT_EQ(store::CsProfileAt(form.result, 0), expected);
    EXPECT_EQ(store::CsProfileAt(form.result, 1), FilledCsProfile(L"CS two", 1));
}

TEST_F(ProfileEditor, AnEmptyServerIsCommittedAsZero) {
    editors::ProfileForm form = Open(ProfileWith(L"alpha", {L"CS one"}));
    form.shown.autoUseTimeStamp = 0;
    form.shown.timeStampServer.clear();
    editors::CommitProfile(form);
    EXPECT_THAT(form.result.timeStampServers, ElementsAre(L"0"));
}

TEST_F(ProfileEditor, AServerIsTakenAsTyped) {
    editors::ProfileForm form = Open(ProfileWith(L"alpha", {L"CS one"}));
    form.shown.timeStampServer = L" http://x ";
    editors::CommitProfile(form);
    EXPECT_THAT(form.result.timeStampServers, ElementsAre(L" http://x "));
}

TEST_F(ProfileEditor, RulesAreLeftAlone) {
    store::Profile profile = ProfileWith(L"alpha", {L"CS one"});
    store::Rule rule;
    rule.csProfile = L"CS one";
    rule.recipients = {L"CN=First"};
    profile.rules = {rule, store::Rule()};
    editors::ProfileForm form = Open(profile);
    editors::CommitProfile(form);
    EXPECT_EQ(form.result, profile);
}

class ProfileSettingsToKeep : public ProfileEditor {
  protected:
    ProfileSettingsToKeep() {
        store::Profile profile = ProfileWith(L"alpha", {L"CS one", L"CS two"});
        // As a registry may hold it and the editor does not show it.
        profile.timeStampServers[1] = L"";
        profile.crlUpdatePeriods[1] = editors::kLongestCrlUpdatePeriod + 1;
        profile.rules.resize(1);
        form_ = Open(profile);
        opened_ = editors::SettingsToKeep(form_);
    }

    [[nodiscard]] bool IsChanged() const { return editors::SettingsToKeep(form_) != opened_; }

    editors::ProfileForm form_;
    store::Profile opened_;
};

TEST_F(ProfileSettingsToKeep, AreTheSameWhereNothingWasChanged) {
    EXPECT_FALSE(IsChanged());
    EXPECT_THAT(opened_.rules, IsEmpty());
}

TEST_F(ProfileSettingsToKeep, AreTheSameWhereAnotherCsProfileWasLookedAt) {
    for (const int index : {1, 0, 1}) {
        editors::KeepShownSettings(form_, form_.selectedCsProfile);
        editors::ShowCsProfile(form_, index, shown_);
        EXPECT_FALSE(IsChanged()) << "CS profile " << index;
    }
}

TEST_F(ProfileSettingsToKeep, DifferByWhateverWasChanged) {
    const editors::ProfileForm opened = form_;
    const auto expectChanged = [&](const char* what, auto&& change) {
        form_ = opened;
        change(form_);
        EXPECT_TRUE(IsChanged()) << what;
    };
    expectChanged("name", [](editors::ProfileForm& form) { form.result.name += L"x"; });
    expectChanged("timeout", [](editors::ProfileForm& form) { ++form.result.handlerTimeout; });
    expectChanged("report", [](editors::ProfileForm& form) { form.result.verifyFile ^= 1; });
    expectChanged("shown setting", [](editors::ProfileForm& form) { form.shown.notLoadCrl ^= 1; });
    expectChanged("shown server", [](editors::ProfileForm& form) { form.shown.timeStampServer += L"x"; });
    expectChanged("CS profiles", [](editors::ProfileForm& form) { editors::EraseCsProfile(form.result, 1); });
}

}  // namespace
}  // namespace corvane::test
