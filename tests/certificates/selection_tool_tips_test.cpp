#include "tests/certificates/selection_driver.h"
#include "tests/driver/tool_tips.h"

namespace corvane::test {
namespace {

class SelectionToolTips : public SelectionTest {};

TEST_F(SelectionToolTips, AppearWhereTheMouseRests) {
    OpenRecipients();
    EXPECT_EQ(driver::ToolTipUnderTheMouse(Dialog(), Control(IDC_SELECTION_ADD_BUTTON)), L"Add");
    EXPECT_EQ(driver::ToolTipUnderTheMouse(Dialog(), Control(IDC_SELECTION_REMOVE_BUTTON)), L"Remove");
}

}  // namespace
}  // namespace corvane::test
