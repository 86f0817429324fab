#include "reporting/unsaved_changes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reporting/message_styles.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(MayLeave, WithoutChangesNothingIsAsked) {
    ReporterFixture fixture;
    EXPECT_TRUE(reporting::MayLeave(false, fixture.reporter, nullptr));
    EXPECT_THAT(fixture.presenter.Boxes(), IsEmpty());
}

TEST(MayLeave, WithChangesAsksWithNoAsTheDefaultAndLeavesOnYes) {
    ReporterFixture fixture;
    const toolkit::WindowHandle window = RecordingPresenter::Window(3);
    fixture.presenter.MakeLive(window);
    fixture.presenter.AnswerNext(6);
    EXPECT_TRUE(reporting::MayLeave(true, fixture.reporter, window));
    EXPECT_THAT(fixture.presenter.Boxes(),
                ElementsAre(ShownBox{.owner = window,
                                     .text = L"Some changes has not been saved. Exit without saving?",
                                     .title = reporting::AppTitle,
                                     .style = 0x124}));
}

TEST(MayLeave, AnyAnswerButYesKeepsTheWindowOpen) {
    for (const int answer : {7, 2, 1, 0}) {
        ReporterFixture fixture;
        fixture.presenter.AnswerNext(answer);
        EXPECT_FALSE(reporting::MayLeave(true, fixture.reporter, nullptr)) << "answer " << answer;
    }
}

TEST(ReasonAgainstEnd, IsToldOnlyWhereSomethingWouldBeLost) {
    EXPECT_STREQ(reporting::ReasonAgainstEnd(true), L"Some changes has not been saved.");
    EXPECT_EQ(reporting::ReasonAgainstEnd(false), nullptr);
}

}  // namespace
}  // namespace corvane::test
