#include "editors/rule/rule_cs_profile_change.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "editors/rule/rule_form.h"
#include "reporting/message_styles.h"
#include "tests/kit/fixtures/reporter_fixture.h"
#include "tests/kit/samples/sample_rules.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr wchar_t kRecipientsQuestion[] =
    L"Recipients field must be clean to change CS profile.\r\nDelete all recipients from rule?";
constexpr wchar_t kSignersQuestion[] =
    L"Signers field must be clean to change CS profile.\r\nDelete all signer lists from rule?";

class CsProfileChange : public ::testing::Test {
  protected:
    CsProfileChange() { fixture_.presenter.MakeLive(dialog_); }

    void Open(const store::Rule& rule) { form_ = editors::OpenRule(SampleProfile(), rule, accepted_); }

    void SelectCsProfile(int index) {
        form_.csProfile.index = index;
        editors::ChangeCsProfile(form_, accepted_, fixture_.reporter, dialog_);
    }

    [[nodiscard]] ShownBox Question(const wchar_t* text) const {
        return {.owner = dialog_, .text = text, .title = reporting::AppTitle, .style = 0x124};
    }

    [[nodiscard]] const std::vector<ShownBox>& Boxes() const { return fixture_.presenter.Boxes(); }

    toolkit::WindowHandle dialog_ = RecordingPresenter::Window(7);
    ReporterFixture fixture_;
    editors::AcceptedCsProfile accepted_;
    editors::RuleForm form_;
};

TEST_F(CsProfileChange, WithoutCertificatesIsAcceptedWithoutAQuestion) {
    Open(FullRule(L"HASH"));
    SelectCsProfile(2);
    EXPECT_EQ(form_.csProfile.index, 2);
    EXPECT_EQ(accepted_.index, 2);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(CsProfileChange, ToTheAcceptedOneAsksNothing) {
    Open(FullRule(L"ENCR"));
    SelectCsProfile(1);
    EXPECT_EQ(form_.recipients.size(), 2U);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(CsProfileChange, WithRecipientsAndNoRestoresTheSelectionAndKeepsThem) {
    Open(FullRule(L"ENCR"));
    fixture_.presenter.AnswerNext(reporting::kAnswerNo);
    SelectCsProfile(2);
    EXPECT_EQ(form_.csProfile.index, 1);
    EXPECT_EQ(accepted_.index, 1);
    EXPECT_THAT(form_.recipients, ElementsAre(L"CN=A", L"CN=B"));
    EXPECT_EQ(form_.cert.text, L"2");
    EXPECT_THAT(Boxes(), ElementsAre(Question(kRecipientsQuestion)));
}

TEST_F(CsProfileChange, AnyAnswerButYesIsANo) {
    for (const int answer : {reporting::kAnswerOk, reporting::kAnswerCancel, reporting::kAnswerNo, 0}) {
        Open(FullRule(L"ENCR"));
        fixture_.presenter.AnswerNext(answer);
        SelectCsProfile(0);
        EXPECT_EQ(form_.csProfile.index, 1) << answer;
        EXPECT_EQ(form_.recipients.size(), 2U) << answer;
    }
}

TEST_F(CsProfileChange, WithRecipientsAndYesClearsThemAndShowsZero) {
    Open(FullRule(L"ENCR"));
    fixture_.presenter.AnswerNext(reporting::kAnswerYes);
    SelectCsProfile(2);
    EXPECT_EQ(form_.csProfile.index, 2);
    EXPECT_EQ(accepted_.index, 2);
    EXPECT_THAT(form_.recipients, IsEmpty());
    EXPECT_EQ(form_.cert.text, L"0");
}

TEST_F(CsProfileChange, WithSignerListsAndNoRestoresTheSelectionAndKeepsThem) {
    Open(FullRule(L"CHCK"));
    fixture_.presenter.AnswerNext(reporting::kAnswerNo);
    SelectCsProfile(0);
    EXPECT_EQ(form_.csProfile.index, 1);
    EXPECT_EQ(form_.result.signerGroups.size(), 3U);
    EXPECT_EQ(form_.cert.text, L"3");
    EXPECT_THAT(Boxes(), ElementsAre(Question(kSignersQuestion)));
}

TEST_F(CsProfileChange, WithSignerListsAndYesClearsThemAndShowsZero) {
    Open(FullRule(L"CHCK"));
    fixture_.presenter.AnswerNext(reporting::kAnswerYes);
    SelectCsProfile(0);
    EXPECT_EQ(accepted_.index, 0);
    EXPECT_THAT(form_.result.signerGroups, IsEmpty());
    EXPECT_EQ(form_.cert.text, L"0");
}

TEST_F(CsProfileChange, RecipientsThatWereClearedStayClearedWhenTheSignerListsMustStay) {
    Open(FullRule(L"CHCK"));
    form_.recipients = {L"CN=A"};
    fixture_.presenter.AnswerNext(reporting::kAnswerYes);
    fixture_.presenter.AnswerNext(reporting::kAnswerNo);
    SelectCsProfile(0);
    EXPECT_THAT(Boxes(), ElementsAre(Question(kRecipientsQuestion), Question(kSignersQuestion)));
    EXPECT_THAT(form_.recipients, IsEmpty());
    EXPECT_EQ(form_.result.signerGroups.size(), 3U);
    EXPECT_EQ(form_.csProfile.index, 1);
    EXPECT_EQ(accepted_.index, 1);
}

TEST_F(CsProfileChange, IsGuardedAgainAfterAnAcceptedOne) {
    Open(FullRule(L"ENCR"));
    fixture_.presenter.AnswerNext(reporting::kAnswerYes);
    SelectCsProfile(2);
    form_.recipients = {L"CN=C"};
    fixture_.presenter.AnswerNext(reporting::kAnswerNo);
    SelectCsProfile(0);
    EXPECT_EQ(form_.csProfile.index, 2);
    EXPECT_THAT(Boxes(), SizeIs(2));
}

// Deliberate: one index for the whole program, and opening a new rule does not set it.
TEST_F(CsProfileChange, OfANewRuleIsNotGuardedTowardsTheOneOfTheRuleOpenedBefore) {
    Open(FullRule(L"HASH"));
    Open(store::Rule());
    form_.recipients = {L"CN=A"};
    SelectCsProfile(1);
    EXPECT_EQ(form_.csProfile.index, 1);
    EXPECT_EQ(form_.recipients.size(), 1U);
    EXPECT_THAT(Boxes(), IsEmpty());
}

// Deliberate as well: the selection goes back to that index, which this rule may never have had.
TEST_F(CsProfileChange, OfANewRuleGoesBackToTheOneOfTheRuleOpenedBefore) {
    Open(FullRule(L"HASH"));
    Open(store::Rule());
    form_.recipients = {L"CN=A"};
    fixture_.presenter.AnswerNext(reporting::kAnswerNo);
    SelectCsProfile(2);
    EXPECT_EQ(form_.csProfile.index, 1);
}

TEST_F(CsProfileChange, OfANewRuleWithNothingOpenedBeforeIsGuardedFromTheFirst) {
    Open(store::Rule());
    form_.recipients = {L"CN=A"};
    fixture_.presenter.AnswerNext(reporting::kAnswerNo);
    SelectCsProfile(2);
    EXPECT_EQ(form_.csProfile.index, 0);
    EXPECT_THAT(Boxes(), SizeIs(1));
}

TEST_F(CsProfileChange, GoesBackToTheOneBeforeWhereTheAcceptedOneDoesNotExistHere) {
    accepted_.index = 9;
    Open(store::Rule());
    form_.recipients = {L"CN=A"};
    fixture_.presenter.AnswerNext(reporting::kAnswerNo);
    SelectCsProfile(2);
    EXPECT_EQ(form_.csProfile.index, 0);
    EXPECT_EQ(accepted_.index, 9);
    fixture_.presenter.AnswerNext(reporting::kAnswerYes);
    SelectCsProfile(1);
    EXPECT_EQ(form_.csProfile.index, 1);
    EXPECT_EQ(accepted_.index, 1);
}

}  // namespace
}  // namespace corvane::test
