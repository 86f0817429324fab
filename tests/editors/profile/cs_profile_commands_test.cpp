#include "editors/profile/cs_profile_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "editors/profile/profile_form.h"
#include "reporting/message_styles.h"
#include "res/ids.h"
#include "tests/kit/fixtures/reporter_fixture.h"
#include "tests/kit/samples/sample_profiles.h"

namespace corvane::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CsProfileCommands : public ::testing::Test {
  protected:
    CsProfileCommands() { fixture_.presenter.MakeLive(dialog_); }

    void Open(const corvane::store::TextList& csProfiles) {
        form_ = editors::OpenProfileForm(ProfileWith(L"alpha", csProfiles), {L"A", L"B", L"C"}, shown_);
    }
    // What the dialog does when the user selects an entry, or presses a button.
    void Select(int index) {
        form_.selectedCsProfile = index;
        if (!editors::LeaveCsProfile(form_, shown_)) {
            editors::ChangeShownCsProfile(form_, shown_);
        }
    }
    void Add(const std::wstring& name) {
        if (!editors::LeaveCsProfile(form_, shown_)) {
            editors::AddCsProfile(form_, name, shown_, fixture_.text);
        }
    }
    void Delete(int answer = reporting::kAnswerYes) {
        fixture_.presenter.AnswerNext(answer);
        const std::optional<reporting::Refusal> refusal = editors::CheckCsProfileDeletion(form_);
        toMend_ = refusal.value_or(reporting::Refusal()).controlId;
        if (fixture_.IsAccepted(refusal, dialog_) &&
            fixture_.IsAgreed(editors::CsProfileDeletionQuestion(form_), dialog_)) {
            editors::DeleteCsProfile(form_, shown_);
        }
    }
    void AddRule(const std::wstring& csProfile, const corvane::store::TextList& recipients,
                 const std::vector<store::SignerGroup>& lists) {
        store::Rule rule;
        rule.csProfile = csProfile;
        rule.recipients = recipients;
        rule.signerGroups = lists;
        form_.result.rules.push_back(rule);
    }
    [[nodiscard]] ShownBox Box(const wchar_t* text, std::uint32_t style) const {
        return {dialog_, text, reporting::AppTitle, style};
    }
    [[nodiscard]] const std::vector<ShownBox>& Boxes() const { return fixture_.presenter.Boxes(); }

    toolkit::WindowHandle dialog_ = RecordingPresenter::Window(7);
    ReporterFixture fixture_;
    editors::ShownCsProfile shown_;
    editors::ProfileForm form_;
    int toMend_ = 0;  ///< The control that the last refusal sends the user to.
};

TEST_F(CsProfileCommands, ASelectionKeepsTheShownSettingsAndShowsTheOthers) {
    Open({L"A", L"B"});
    form_.shown.timeStampServer = L"typed";
    form_.shown.crlUpdatePeriod = 77;
    form_.shown.notAddCertificate = 0;
    Select(1);
    EXPECT_EQ(form_.shown, FilledCsProfile(L"B", 1));
    EXPECT_EQ(shown_.index, 1);
    store::CsProfile expected = FilledCsProfile(L"A", 0);
    expected.timeStampServer = L"typed";
    expected.crlUpdatePeriod = 77;
    expected.notAddCertificate = 0;
    EXPECT_EQ(store::CsProfileAt(form_.result, 0), expected);
    Select(0);
    EXPECT_EQ(form_.shown, expected);
}

TEST_F(CsProfileCommands, LeavingWithAnEmptyServerThatIsNotUsedKeepsZero) {
    Open({L"A", L"B"});
    form_.shown.autoUseTimeStamp = 0;
    form_.shown.timeStampServer.clear();
    Select(1);
    EXPECT_EQ(store::CsProfileAt(form_.result, 0).timeStampServer, L"0");
}

TEST_F(CsProfileCommands, AMissingServerPutsTheSelectionBackAndKeepsWhatIsShown) {
    Open({L"A", L"B"});
    Select(1);
    form_.shown.timeStampServer.clear();
    const editors::ProfileForm before = form_;
    form_.selectedCsProfile = 0;
    EXPECT_EQ(editors::LeaveCsProfile(form_, shown_), reporting::Refuse(L"Please, type TSP data."));
    EXPECT_EQ(form_.selectedCsProfile, 1);
    EXPECT_EQ(form_.shown, before.shown);
    EXPECT_EQ(form_.result, before.result);
    EXPECT_EQ(shown_.index, 1);
    EXPECT_STREQ(editors::kNoTimeStampServerText, L"Please, type TSP data.");
}

TEST_F(CsProfileCommands, SelectingTheShownOrNoCsProfileChangesNothing) {
    Open({L"A", L"B"});
    form_.shown.crlUpdatePeriod = 77;
    for (const int index : {0, -1, 2}) {
        const editors::ProfileForm before = form_;
        Select(index);
        EXPECT_EQ(form_.shown, before.shown) << index;
        EXPECT_EQ(form_.result, before.result) << index;
        EXPECT_EQ(shown_.index, 0) << index;
    }
}

TEST_F(CsProfileCommands, AnAddedCsProfileStandsLastWithTheSettingsOfANewOneAndIsShown) {
    Open({L"A", L"B"});
    form_.shown.crlUpdatePeriod = 77;
    Add(L"C");
    EXPECT_THAT(form_.result.csProfiles, ElementsAre(L"A", L"B", L"C"));
    store::CsProfile fresh;
    fresh.name = L"C";
    EXPECT_EQ(form_.shown, fresh);
    EXPECT_EQ(store::CsProfileAt(form_.result, 2), fresh);
    EXPECT_EQ(store::CsProfileAt(form_.result, 0).crlUpdatePeriod, 77) << "the shown settings are kept";
    EXPECT_EQ(form_.selectedCsProfile, 2);
    EXPECT_EQ(shown_.index, 2);
    EXPECT_FALSE(editors::IsTimeStampServerEnabled(form_));
    EXPECT_FALSE(editors::IsNoTimeStampErrorEnabled(form_));
}

TEST_F(CsProfileCommands, AddingOneThatIsListedWhateverItsCaseChangesNothing) {
    Open({L"A", L"B"});
    form_.shown.crlUpdatePeriod = 77;
    const editors::ProfileForm before = form_;
    for (const wchar_t* const name : {L"B", L"b", L"A"}) {
        Add(name);
        EXPECT_EQ(form_.result, before.result);
        EXPECT_EQ(form_.shown, before.shown);
        EXPECT_EQ(shown_.index, 0);
    }
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(CsProfileCommands, AMissingServerKeepsFromAdding) {
    Open({L"A"});
    form_.shown.timeStampServer.clear();
    Add(L"B");
    EXPECT_THAT(form_.result.csProfiles, ElementsAre(L"A"));
}

TEST_F(CsProfileCommands, TheLastCsProfileCannotBeDeleted) {
    Open({L"A"});
    for (const int selected : {0, -1}) {
        fixture_.presenter.Clear();
        form_.selectedCsProfile = selected;
        Delete();
        EXPECT_EQ(toMend_, selected < 0 ? IDC_PROFILE_CS_PROFILE_LIST : 0);
        EXPECT_THAT(Boxes(), ElementsAre(Box(L"Last CS profile in list cannot be deleted.",
                                             reporting::kRefusalStyle)));
    }
    EXPECT_THAT(form_.result.csProfiles, ElementsAre(L"A"));
    EXPECT_THAT(form_.deletedCsProfiles, IsEmpty());
}

TEST_F(CsProfileCommands, DeletingWithoutASelectionIsRefused) {
    Open({L"A", L"B"});
    form_.selectedCsProfile = -1;
    Delete();
    EXPECT_EQ(toMend_, IDC_PROFILE_CS_PROFILE_LIST);
    Open({});
    Delete();
    EXPECT_EQ(toMend_, IDC_PROFILE_CS_PROFILE_LIST);
    const ShownBox refusal = Box(L"Select list item to delete.", reporting::kRefusalStyle);
    EXPECT_THAT(Boxes(), ElementsAre(refusal, refusal));
}

TEST_F(CsProfileCommands, DeletingAsksAndAnyAnswerButYesKeepsIt) {
    Open({L"A", L"B"});
    Select(1);
    form_.shown.crlUpdatePeriod = 77;
    const editors::ProfileForm before = form_;
    for (const int answer : {reporting::kAnswerNo, reporting::kAnswerCancel}) {
        fixture_.presenter.Clear();
        Delete(answer);
        EXPECT_THAT(Boxes(),
                    ElementsAre(Box(L"Delete CS profile 'B' from list?", reporting::kConfirmationStyle)));
        EXPECT_EQ(form_.result, before.result);
        EXPECT_EQ(form_.shown, before.shown);
        EXPECT_THAT(form_.deletedCsProfiles, IsEmpty());
    }
}

TEST_F(CsProfileCommands, ADeletedCsProfileIsGoneFromAllElevenListsAndTheFirstIsShown) {
    Open({L"A", L"B", L"C"});
    Select(1);
    form_.shown.crlUpdatePeriod = 77;
    Delete();
    EXPECT_THAT(form_.result.csProfiles, ElementsAre(L"A", L"C"));
    EXPECT_THAT(ListLengths(form_.result), Each(2U));
    EXPECT_EQ(store::CsProfileAt(form_.result, 1), FilledCsProfile(L"C", 2));
    EXPECT_EQ(form_.shown, FilledCsProfile(L"A", 0)) << "what was shown of the deleted one is discarded";
    EXPECT_EQ(form_.selectedCsProfile, 0);
    EXPECT_EQ(shown_.index, 0);
    EXPECT_THAT(form_.deletedCsProfiles, ElementsAre(L"B"));
}

TEST_F(CsProfileCommands, AMissingServerDoesNotKeepFromDeleting) {
    Open({L"A", L"B"});
    form_.shown.timeStampServer.clear();
    Delete();
    EXPECT_THAT(form_.result.csProfiles, ElementsAre(L"B"));
    EXPECT_EQ(form_.shown, FilledCsProfile(L"B", 1));
}

TEST_F(CsProfileCommands, TheQuestionNamesTheRulesThatHoldCertificatesOfIt) {
    Open({L"A", L"B"});
    AddRule(L"A", {L"CN=x"}, {});
    AddRule(L"B", {L"CN=x"}, {});
    AddRule(L"B", {}, {});
    AddRule(L"b", {L"CN=x"}, {});
    AddRule(L"B", {}, {{L"Board", {}}});
    form_.result.rules.back().resignProfile = L"A";
    AddRule(L"A", {L"CN=x"}, {});
    form_.result.rules.back().resignProfile = L"B";
    form_.result.name = L"being typed";
    Select(1);
    Delete(reporting::kAnswerNo);
    EXPECT_THAT(Boxes(),
                ElementsAre(Box(L"Rule(s) '2,5' of profile 'alpha' are using sertificates of CS profile 'B'."
                                L"\r\nValidation of these rules will be nessesary for proper work.\r\n"
                                L"Delete CS profile 'B' from list?",
                                reporting::kConfirmationStyle)));
}

TEST_F(CsProfileCommands, NamesWithPercentSignsAreShownAsTheyAre) {
    Open({L"%s%d", L"B"});
    AddRule(L"%s%d", {L"CN=x"}, {});
    Delete(reporting::kAnswerNo);
    EXPECT_EQ(fixture_.presenter.OnlyText(),
              L"Rule(s) '1' of profile 'alpha' are using sertificates of CS profile '%s%d'."
              L"\r\nValidation of these rules will be nessesary for proper work.\r\n"
              L"Delete CS profile '%s%d' from list?");
}

TEST_F(CsProfileCommands, ADeletedNameIsReportedOnce) {
    Open({L"A", L"B", L"B"});
    Select(1);
    Delete();
    Select(1);
    Delete();
    EXPECT_THAT(form_.result.csProfiles, ElementsAre(L"A"));
    EXPECT_THAT(form_.deletedCsProfiles, ElementsAre(L"B"));
}

TEST_F(CsProfileCommands, ADeletedCsProfileThatIsAddedAgainCountsAsKept) {
    Open({L"A", L"B"});
    Delete();
    EXPECT_THAT(form_.deletedCsProfiles, ElementsAre(L"A"));
    Add(L"A");
    EXPECT_THAT(form_.result.csProfiles, ElementsAre(L"B", L"A"));
    EXPECT_THAT(form_.deletedCsProfiles, IsEmpty());
    store::CsProfile fresh;
    fresh.name = L"A";
    EXPECT_EQ(form_.shown, fresh) << "its settings are those of a new one";
}

TEST_F(CsProfileCommands, OneAddedInAnotherCaseDoesNotBringTheDeletedNameBack) {
    Open({L"A", L"B"});
    Delete();
    Add(L"a");
    EXPECT_THAT(form_.result.csProfiles, ElementsAre(L"B", L"a"));
    EXPECT_THAT(form_.deletedCsProfiles, ElementsAre(L"A"));
}

TEST_F(CsProfileCommands, AProfileWithoutCsProfilesGetsItsFirst) {
    Open({});
    Add(L"A");
    EXPECT_THAT(form_.result.csProfiles, ElementsAre(L"A"));
    EXPECT_THAT(ListLengths(form_.result), Each(1U));
    EXPECT_EQ(form_.selectedCsProfile, 0);
    EXPECT_EQ(shown_.index, 0);
}

TEST_F(CsProfileCommands, EverySequenceKeepsTheListsOfOneLengthAndEachSettingWithItsName) {
    for (std::uint32_t seed = 0; seed < 300; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&random](std::size_t bound) { return static_cast<int>(random() % bound); };
        store::Profile profile = ProfileWith(L"alpha", {L"A", L"B"});
        profile.useAuthorityAccess.resize(static_cast<std::size_t>(below(4)));
        profile.notLoadCrl.resize(static_cast<std::size_t>(below(4)));
        form_ = editors::OpenProfileForm(profile, {L"A"}, shown_);
        std::map<std::wstring, std::int32_t> periods = {{L"A", 100}, {L"B", 101}};
        for (int step = 0; step < 40; ++step) {
            const std::wstring name(1, static_cast<wchar_t>(L'A' + below(6)));
            switch (below(4)) {
                case 0:
                    Select(below(form_.result.csProfiles.size()));
                    break;
                case 1:
                    periods.try_emplace(name, 1);
                    Add(name);
                    break;
                case 2:
                    if (form_.result.csProfiles.size() > 1) {
                        periods.erase(form_.shown.name);
                        Delete();
                    }
                    break;
                default:
                    form_.shown.crlUpdatePeriod = below(8761);
                    periods[form_.shown.name] = form_.shown.crlUpdatePeriod;
                    break;
            }
            ASSERT_THAT(ListLengths(form_.result), Each(periods.size())) << "seed " << seed;
            ASSERT_EQ(form_.selectedCsProfile, shown_.index) << "seed " << seed;
        }
        editors::CommitProfile(form_);
        for (std::size_t i = 0; i < periods.size(); ++i) {
            const store::CsProfile entry = store::CsProfileAt(form_.result, i);
            ASSERT_EQ(entry.crlUpdatePeriod, periods.at(entry.name)) << "seed " << seed;
        }
    }
}

}  // namespace
}  // namespace corvane::test
