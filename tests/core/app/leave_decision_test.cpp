#include "app/leave_decision.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/reporting/app_title.h"
#include "app/reporting/unsaved_changes.h"
#include "tests/support/reporter_fixture.h"

namespace corvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(MayLeave, WithoutChangesNothingIsAsked) {
    ReporterFixture fixture;
    EXPECT_TRUE(MayLeave(false, fixture.reporter, nullptr));
    EXPECT_THAT(fixture.presenter.Boxes(), IsEmpty());
}

TEST(MayLeave, WithChangesAsksWithNoAsTheDefaultAndLeavesOnYes) {
    ReporterFixture fixture;
    const toolkit::WindowHandle window = RecordingPresenter::Window(3);
    fixture.presenter.MakeLive(window);
    fixture.presenter.AnswerNext(6);
    EXPECT_TRUE(MayLeave(true, fixture.reporter, window));
    EXPECT_THAT(fixture.presenter.Boxes(),
                ElementsAre(ShownBox{.owner = window,
                                     .text = L"Some changes has not been saved. Exit without saving?",
                                     .title = AppTitle,
                                     .style = 0x124}));
}

TEST(MayLeave, AnyAnswerButYesKeepsTheWindowOpen) {
    for (const int answer : {7, 2, 1, 0}) {
        ReporterFixture fixture;
        fixture.presenter.AnswerNext(answer);
        EXPECT_FALSE(MayLeave(true, fixture.reporter, nullptr)) << "answer " << answer;
    }
}

TEST(ReasonAgainstEnd, IsToldOnlyWhereSomethingWouldBeLost) {
    EXPECT_STREQ(ReasonAgainstEnd(true), L"Some changes has not been saved.");
    EXPECT_EQ(ReasonAgainstEnd(false), nullptr);
}

}  // namespace
}  // namespace corvane::testing
