#include "editors/profile/cs_profile_choice_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reporting/message_styles.h"
#include "res/ids.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(CsProfileChoice, GivesTheNameAtTheSelectedIndex) {
    ReporterFixture fixture;
    editors::CsProfileChoiceForm form{.catalogue = {L"CS one", L"CS two"}};
    EXPECT_EQ(form.Name(), L"CS one") << "the first is selected";
    form.index = 1;
    EXPECT_TRUE(fixture.IsAccepted(form.Check(), nullptr));
    EXPECT_EQ(form.Name(), L"CS two");
    EXPECT_THAT(fixture.presenter.Boxes(), IsEmpty());
}

TEST(CsProfileChoice, WithNothingToChooseIsRefused) {
    ReporterFixture fixture;
    const toolkit::WindowHandle dialog = RecordingPresenter::Window(7);
    fixture.presenter.MakeLive(dialog);
    const editors::CsProfileChoiceForm form{.catalogue = {}, .index = -1};
    EXPECT_FALSE(fixture.IsAccepted(form.Check(), dialog));
    EXPECT_EQ(form.Check().value_or(reporting::Refusal()).controlId, IDC_CS_PROFILE_CHOICE_COMBO);
    EXPECT_THAT(fixture.presenter.Boxes(),
                ElementsAre(ShownBox{dialog, L"No CS profiles found.", reporting::AppTitle,
                                     reporting::kRefusalStyle}));
    EXPECT_EQ(form.Name(), L"");
}

TEST(CsProfileChoice, HasTheDialogsTexts) {
    EXPECT_STREQ(editors::kCsProfileChoiceTitle, L"Add CS profile");
    EXPECT_STREQ(editors::kCsProfileChoiceLabelText, L"Choose CS profile");
    EXPECT_STREQ(editors::kCsProfileChoiceExitText, L"Exit");
}

}  // namespace
}  // namespace corvane::test
