#include "tests/kit/driver/tool_tips.h"

#include "tests/kit/fixtures/profile_editor_fixture.h"
#include "tests/kit/fixtures/rule_editor_fixture.h"

namespace corvane::test {
namespace {

class ToolTipsOfTheMainWindow : public EditorTest {};
class ToolTipsOfTheRuleEditor : public RuleEditorTest {};
class ToolTipsOfTheProfileEditor : public ProfileEditorTest {};

TEST_F(ToolTipsOfTheMainWindow, AppearWhereTheMouseRests) {
    StartWithSample();
    EXPECT_EQ(ToolTipUnderTheMouse(Main(), Control(IDC_SAVE_ICON_BUTTON)), L"Save");
    EXPECT_EQ(ToolTipUnderTheMouse(Main(), Control(IDC_MAKE_LAST_BUTTON)), L"Make last");
}

TEST_F(ToolTipsOfTheMainWindow, AppearInTheConfigurationsDialog) {
    StartWithSample();
    Main().PostMenuCommand(IDM_CONFIGURATIONS);
    const Window dialog = Editor().WaitForDialog(Main());
    EXPECT_EQ(ToolTipUnderTheMouse(dialog, dialog.Control(IDC_CONFIG_ADD_BUTTON)), L"Add");
    EXPECT_EQ(ToolTipUnderTheMouse(dialog, dialog.Control(IDC_CONFIG_DELETE_BUTTON)), L"Delete");
}

TEST_F(ToolTipsOfTheRuleEditor, AppearWhereTheMouseRests) {
    const Window dialog = StartAndOpen(FullRule(L"ENCR"));
    for (const int id : {IDC_RULE_OUTPUT_BUTTON, IDC_RULE_CERT_BUTTON}) {
        EXPECT_EQ(ToolTipUnderTheMouse(dialog, dialog.Control(id)), ToolTipTexts(dialog)[id]);
    }
}

TEST_F(ToolTipsOfTheProfileEditor, AppearWhereTheMouseRests) {
    StartWithSample();
    const Window dialog = OpenCurrent();
    EXPECT_EQ(ToolTipUnderTheMouse(dialog, dialog.Control(IDC_PROFILE_ADD_CS_PROFILE_BUTTON)), L"Add");
    EXPECT_EQ(ToolTipUnderTheMouse(dialog, dialog.Control(IDC_PROFILE_DELETE_CS_PROFILE_BUTTON)), L"Delete");
}

}  // namespace
}  // namespace corvane::test
