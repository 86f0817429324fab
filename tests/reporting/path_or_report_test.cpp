#include <gtest/gtest.h>

#include "reporting/message_styles.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {
namespace {

TEST(PathOrReport, AChosenPathIsGivenWithoutAWord) {
    ReporterFixture fixture;
    EXPECT_EQ(reporting::PathOrReport({L"C:\\in", {}}, fixture.reporter, nullptr), L"C:\\in");
    EXPECT_TRUE(fixture.presenter.Boxes().empty());
}

TEST(PathOrReport, ACancelIsNoPathAndNoFailure) {
    ReporterFixture fixture;
    EXPECT_EQ(reporting::PathOrReport({}, fixture.reporter, nullptr), std::nullopt);
    EXPECT_TRUE(fixture.presenter.Boxes().empty());
}

TEST(PathOrReport, AFailureIsReportedOnceUnderItsOwner) {
    ReporterFixture fixture;
    const toolkit::WindowHandle owner = RecordingPresenter::Window(1);
    fixture.presenter.MakeLive(owner);
    const toolkit::PathChoice choice = {{}, toolkit::DialogFailure{"Showing file dialog (%s)", "a.dll", 126}};
    EXPECT_EQ(reporting::PathOrReport(choice, fixture.reporter, owner), std::nullopt);
    EXPECT_EQ(fixture.presenter.Boxes(),
              (std::vector<ShownBox>{{owner, L"Showing file dialog (a.dll).\r\nError 0x7E - System text 126.",
                                      reporting::AppTitle, reporting::kErrorStyle}}));
}

}  // namespace
}  // namespace corvane::test
