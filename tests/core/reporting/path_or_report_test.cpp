#include <gtest/gtest.h>

#include "app/reporting/app_title.h"
#include "app/reporting/message_styles.h"
#include "tests/support/reporter_fixture.h"

namespace corvane {
namespace {

using testing::RecordingPresenter;
using testing::ReporterFixture;
using testing::ShownBox;

TEST(PathOrReport, AChosenPathIsGivenWithoutAWord) {
    ReporterFixture fixture;
    EXPECT_EQ(PathOrReport({L"C:\\in", {}}, fixture.reporter, nullptr), L"C:\\in");
    EXPECT_TRUE(fixture.presenter.Boxes().empty());
}

TEST(PathOrReport, ACancelIsNoPathAndNoFailure) {
    ReporterFixture fixture;
    EXPECT_EQ(PathOrReport({}, fixture.reporter, nullptr), std::nullopt);
    EXPECT_TRUE(fixture.presenter.Boxes().empty());
}

TEST(PathOrReport, AFailureIsReportedOnceUnderItsOwner) {
    ReporterFixture fixture;
    const toolkit::WindowHandle owner = RecordingPresenter::Window(1);
    fixture.presenter.MakeLive(owner);
    const toolkit::PathChoice choice = {{}, toolkit::DialogFailure{"Showing file dialog (%s)", "a.dll", 126}};
    EXPECT_EQ(PathOrReport(choice, fixture.reporter, owner), std::nullopt);
    EXPECT_EQ(fixture.presenter.Boxes(),
              (std::vector<ShownBox>{{owner, L"Showing file dialog (a.dll).\r\nError 0x7E - System text 126.",
                                      AppTitle, kErrorStyle}}));
}

}  // namespace
}  // namespace corvane
