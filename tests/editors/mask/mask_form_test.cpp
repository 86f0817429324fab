#include "editors/mask/mask_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reporting/message_styles.h"
#include "res/ids.h"
#include "tests/kit/fixtures/reporter_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(MaskForm, AnEmptyMaskIsRefused) {
    const toolkit::WindowHandle dialog = RecordingPresenter::Window(7);
    ReporterFixture fixture;
    fixture.presenter.MakeLive(dialog);
    const std::optional<reporting::Refusal> refusal = editors::MaskForm().Check();
    EXPECT_FALSE(fixture.IsAccepted(refusal, dialog));
    EXPECT_EQ(refusal.value_or(reporting::Refusal()).controlId, IDC_MASK_COMBO);
    EXPECT_THAT(
        fixture.presenter.Boxes(),
        ElementsAre(ShownBox{
            .owner = dialog, .text = L"No Mask selected.", .title = reporting::AppTitle, .style = 0x30}));
}

TEST(MaskForm, AnyOtherMaskIsTakenAsTypedWithItsBlanks) {
    ReporterFixture fixture;
    for (const wchar_t* const mask : {L"*.txt", L"  *.txt  ", L" ", L"\t", L"???", L"a|b\\c", L"*.ТХТ"}) {
        const editors::MaskForm form{.suggestions = {L"*.txt"}, .text = mask};
        EXPECT_TRUE(fixture.IsAccepted(form.Check(), nullptr));
        EXPECT_EQ(form.text, mask);
    }
    EXPECT_THAT(fixture.presenter.Boxes(), IsEmpty());
}

TEST(MaskFormTexts, AreTheDialogs) {
    EXPECT_STREQ(editors::kMaskTitle, L"Mask");
    EXPECT_STREQ(editors::kMaskExitText, L"Exit");
}

}  // namespace
}  // namespace corvane::test
