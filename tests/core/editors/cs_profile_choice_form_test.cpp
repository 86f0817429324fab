#include "editors/cs_profile_choice_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/reporting/app_title.h"
#include "app/reporting/message_styles.h"
#include "tests/support/reporter_fixture.h"

namespace corvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(CsProfileChoice, GivesTheNameAtTheSelectedIndex) {
    ReporterFixture fixture;
    CsProfileChoiceForm form{.catalogue = {L"CS one", L"CS two"}};
    EXPECT_EQ(form.Name(), L"CS one") << "the first is selected";
    form.index = 1;
    EXPECT_TRUE(form.Confirm(fixture.reporter, nullptr));
    EXPECT_EQ(form.Name(), L"CS two");
    EXPECT_THAT(fixture.presenter.Boxes(), IsEmpty());
}

TEST(CsProfileChoice, WithNothingToChooseIsRefused) {
    ReporterFixture fixture;
    const toolkit::WindowHandle dialog = RecordingPresenter::Window(7);
    fixture.presenter.MakeLive(dialog);
    const CsProfileChoiceForm form{.catalogue = {}, .index = -1};
    EXPECT_FALSE(form.Confirm(fixture.reporter, dialog));
    EXPECT_THAT(fixture.presenter.Boxes(),
                ElementsAre(ShownBox{dialog, L"No CS profiles found.", AppTitle, kRefusalStyle}));
    EXPECT_EQ(form.Name(), L"");
}

TEST(CsProfileChoice, HasTheDialogsTexts) {
    EXPECT_STREQ(kCsProfileChoiceTitle, L"Add CS profile");
    EXPECT_STREQ(kCsProfileChoiceLabelText, L"Choose CS profile");
    EXPECT_STREQ(kCsProfileChoiceExitText, L"Exit");
}

}  // namespace
}  // namespace corvane::testing
