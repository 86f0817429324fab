#include <gtest/gtest.h>

#include "reporting/message_styles.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {
namespace {

TEST(ShowMessage, EveryBoxHasTheProgramsTitleAndTheStyleAskedFor) {
    ReporterFixture fixture;
    fixture.reporter.ShowMessage(nullptr, L"Last profile cannot be deleted.", reporting::kRefusalStyle);
    ASSERT_EQ(fixture.presenter.Boxes().size(), 1U);
    EXPECT_EQ(fixture.presenter.Boxes().front(), (ShownBox{nullptr, L"Last profile cannot be deleted.",
                                                           L"QENT AC Velmaris - configuration", 0x30}));
}

TEST(ShowMessage, StylesHaveTheValuesOfTheSystemsStyleWord) {
    EXPECT_EQ(reporting::kRefusalStyle, 0x30U);
    EXPECT_EQ(reporting::kContinueStyle, 0x31U);
    EXPECT_EQ(reporting::kConfirmationStyle, 0x124U);
    EXPECT_EQ(reporting::kErrorStyle, 0x10U);
}

TEST(ShowMessage, GivesTheSystemsAnswer) {
    ReporterFixture fixture;
    fixture.presenter.AnswerNext(reporting::kAnswerYes);
    fixture.presenter.AnswerNext(reporting::kAnswerNo);
    EXPECT_EQ(fixture.reporter.ShowMessage(nullptr, L"Delete 2 rule(s)?", reporting::kConfirmationStyle), 6);
    EXPECT_EQ(fixture.reporter.ShowMessage(nullptr, "Delete 2 rule(s)?", reporting::kConfirmationStyle), 7);
}

TEST(ShowMessage, ALiveOwnerOwnsTheBox) {
    ReporterFixture fixture;
    const toolkit::WindowHandle owner = RecordingPresenter::Window(7);
    fixture.presenter.MakeLive(owner);
    fixture.reporter.ShowMessage(owner, L"No Mask selected.", reporting::kRefusalStyle);
    EXPECT_EQ(fixture.presenter.Boxes().front().owner, owner);
}

TEST(ShowMessage, AnOwnerThatIsGoneMeansABoxWithoutOwner) {
    ReporterFixture fixture;
    const toolkit::WindowHandle owner = RecordingPresenter::Window(7);
    fixture.presenter.MakeLive(owner);
    fixture.presenter.MakeDead(owner);
    fixture.reporter.ShowMessage(owner, L"wide", reporting::kRefusalStyle);
    fixture.reporter.ShowMessage(owner, "narrow", reporting::kRefusalStyle);
    ASSERT_EQ(fixture.presenter.Boxes().size(), 2U);
    EXPECT_EQ(fixture.presenter.Boxes()[0].owner, nullptr);
    EXPECT_EQ(fixture.presenter.Boxes()[1].owner, nullptr);
}

TEST(ShowMessage, AnEightBitTextIsWidenedFromTheSystemsCodePage) {
    ReporterFixture fixture(CodePage::kCyrillic);
    fixture.reporter.ShowMessage(nullptr, "\xCF\xF0\xEE\xF4\xE8\xEB\xFC", reporting::kRefusalStyle);
    EXPECT_EQ(fixture.presenter.OnlyText(), L"Профиль");
}

TEST(ShowMessage, PercentSignsInATextAreOrdinaryCharacters) {
    ReporterFixture fixture;
    fixture.reporter.ShowMessage(nullptr, "100%s %d", reporting::kRefusalStyle);
    EXPECT_EQ(fixture.presenter.OnlyText(), L"100%s %d");
}

}  // namespace
}  // namespace corvane::test
