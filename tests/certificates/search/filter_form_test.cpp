#include "certificates/search/filter_form.h"

#include <gmock/gmock.h>

#include "reporting/message_styles.h"
#include "res/ids.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(FilterFormTest, TheTextsAreThoseThatUsersKnow) {
    EXPECT_STREQ(certificates::kFilterTitle, L"Filter");
    EXPECT_STREQ(certificates::kFilterFieldLabel, L"Search field:");
    EXPECT_STREQ(certificates::kFilterSampleLabel,
                 L"Type sample for certificate owner search\r\n(* represents any symbol):");
}

TEST(FilterFormTest, OffersNineFieldsAndTheEntireName) {
    const store::TextList choices = certificates::FilterForm::FieldChoices();
    ASSERT_EQ(choices.size(), 10U);
    EXPECT_EQ(choices[0], L"Common name (CN)");
    EXPECT_EQ(choices[8], L"Address RFC822 (EMAIL)");
    EXPECT_EQ(choices[9], L"<Search by entire name>");
}

TEST(FilterFormTest, NoFieldIsChosenAtFirst) {
    EXPECT_EQ(certificates::FilterForm().fieldIndex, -1);
    EXPECT_EQ(certificates::FilterForm().sample, L"");
}

TEST(FilterFormTest, OkIsEnabledByACharacterOrExactlyOneStar) {
    for (const wchar_t* sample : {L"a", L" a ", L"*a", L"*", L"?", L"\x0418*", L"\r", L"\x00A0"}) {
        EXPECT_TRUE(certificates::FilterForm::IsOkEnabled(sample));
    }
    for (const wchar_t* sample : {L"", L" ", L"\t", L"**", L"* ", L" *", L"  **  ", L" \t* *"}) {
        EXPECT_FALSE(certificates::FilterForm::IsOkEnabled(sample));
    }
}

TEST(FilterFormTest, WithoutAFieldOkIsRefusedAndNothingChanges) {
    ReporterFixture reports;
    const toolkit::WindowHandle dialog = RecordingPresenter::Window(4);
    reports.presenter.MakeLive(dialog);
    certificates::FilterForm form;
    form.sample = L" Iva* ";
    EXPECT_FALSE(reports.IsAccepted(form.Check(), dialog));
    EXPECT_EQ(form.Check().value_or(reporting::Refusal()).controlId, IDC_FILTER_FIELD_COMBO);
    EXPECT_EQ(form.sample, L" Iva* ");
    EXPECT_THAT(reports.presenter.Boxes(),
                ElementsAre(ShownBox{dialog, L"Select field for filter", reporting::AppTitle, 0x30}));
}

TEST(FilterFormTest, OkTrimsTheBlanksOfTheSample) {
    ReporterFixture reports;
    certificates::FilterForm form;
    form.fieldIndex = 9;
    form.sample = L"  Iva n* ";
    EXPECT_TRUE(reports.IsAccepted(form.Check(), nullptr));
    form.Commit();
    EXPECT_EQ(form.sample, L"Iva n*");
    EXPECT_THAT(reports.presenter.Boxes(), IsEmpty());
}

TEST(FilterFormTest, ThePatternOfAFieldIsItsKeyAndTheSample) {
    const TestSystemText text(CodePage::kCyrillic);
    certificates::FilterForm form;
    form.sample = L"Iva*";
    form.fieldIndex = 0;
    EXPECT_EQ(form.Pattern(text), L"CN=Iva*");
    form.fieldIndex = 8;
    EXPECT_EQ(form.Pattern(text), L"EMAIL=Iva*");
    form.sample = L"*";
    EXPECT_EQ(form.Pattern(text), L"EMAIL=*");
}

TEST(FilterFormTest, ThePatternOfTheEntireNameIsTheSample) {
    const TestSystemText text(CodePage::kCyrillic);
    certificates::FilterForm form;
    form.fieldIndex = 9;
    for (const wchar_t* sample : {L"CN=Iva*,C=RU", L"*"}) {
        form.sample = sample;
        EXPECT_EQ(form.Pattern(text), sample);
    }
}

}  // namespace
}  // namespace corvane::test
