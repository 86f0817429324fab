#include "tests/kit/driver/tool_tips.h"
#include "tests/kit/fixtures/selection_fixture.h"

namespace corvane::test {
namespace {

class SelectionToolTips : public SelectionTest {};

TEST_F(SelectionToolTips, AppearWhereTheMouseRests) {
    OpenRecipients();
    EXPECT_EQ(ToolTipUnderTheMouse(Dialog(), Control(IDC_SELECTION_ADD_BUTTON)), L"Add");
    EXPECT_EQ(ToolTipUnderTheMouse(Dialog(), Control(IDC_SELECTION_REMOVE_BUTTON)), L"Remove");
}

}  // namespace
}  // namespace corvane::test
