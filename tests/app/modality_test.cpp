// What the windows behind a dialog or a box can do: nothing.

#include <windows.h>

#include "tests/kit/driver/failure.h"
#include "tests/kit/fixtures/editor_fixture.h"

namespace corvane::test {
namespace {

class Modality : public EditorTest {
  protected:
    /// Whatever commands come in, nothing but the main window and `dialog` is there afterwards.
    void ExpectNothingElseOpens(const Window& dialog) const {
        Settle();
        for (const Window& window : Editor().TopLevelWindows()) {
            EXPECT_TRUE(window == Main() || window == dialog)
                << "an unexpected window: " << Utf8(window.Name());
        }
    }
};

TEST_F(Modality, CommandsPostedToTheMainWindowOpenNothingOverAnEditor) {
    StartWithSample();
    Rules().Select({kEncrypt});
    Control(IDC_EDIT_RULE_BUTTON).PostClick();
    const Window editor = Editor().WaitForDialog(Main());
    for (const int command :
         {IDM_ADD_RULE, IDM_EDIT_RULE, IDM_LOG_PATH, IDM_CONFIGURATIONS, IDM_ADD_PROFILE}) {
        Main().PostMenuCommand(command);
    }
    ExpectNothingElseOpens(editor);
    for (const int button : {IDC_ADD_RULE_BUTTON, IDC_EDIT_PROFILE_BUTTON, IDC_LOG_PATH_BUTTON}) {
        Control(button).PostClick();
    }
    Main().Post(WM_SYSCOMMAND, 16);
    Main().Post(WM_CLOSE);
    Rules().PostLeftDoubleClick(Rules().CellCentre(kMove, kDescriptionColumn));
    Rules().PostKey(VK_DELETE);
    ExpectNothingElseOpens(editor);
    editor.Control(IDCANCEL).PostClick();
    editor.WaitUntilGone();
    WaitForMain();
    ExpectNoDialog();
    EXPECT_EQ(ShownRules(), SampleDescriptions());
    ExpectNothingToSave();
}

TEST_F(Modality, CommandsSentToADisabledWindowAreNotCarriedOutEither) {
    StartWithSample();
    Control(IDC_LOG_PATH_BUTTON).PostClick();
    const Window dialog = Editor().WaitForDialog(Main());
    Rules().Select({kEncrypt});
    Main().SendMenuCommand(IDM_MOVE_DOWN);
    Control(IDC_COPY_RULE_BUTTON).Click();
    EXPECT_EQ(ShownRules(), SampleDescriptions());
    dialog.Control(IDCANCEL).PostClick();
    dialog.WaitUntilGone();
    WaitForMain();
    ExpectNothingToSave();
}

TEST_F(Modality, ADeletePostedDuringTheReportOfAFailingSaveDeletesNothing) {
    StartWithSample();
    Rules().Select({kEncrypt});
    Press(IDC_MOVE_DOWN_BUTTON);
    const Texts before = ShownRules();
    DeleteRegistryKey(kProgramKey);
    Control(IDC_SAVE_BUTTON).PostClick();
    const MessageBoxWindow report = Editor().WaitForMessageBox(Main());
    Main().PostMenuCommand(IDM_DELETE_RULE);
    Control(IDC_DELETE_RULE_BUTTON).PostClick();
    Rules().PostKey(VK_DELETE);
    ExpectNothingElseOpens(report);
    report.Answer(IDOK);
    WaitForMain();
    ExpectNoDialog();
    EXPECT_EQ(ShownRules(), before);
    ExpectUnsavedChanges();
}

TEST_F(Modality, TheFocusIsBackInTheListAfterAnEditorAndAfterABox) {
    StartWithSample();
    Rules().PostLeftClick(Rules().CellCentre(kMove, kDescriptionColumn));
    Rules().WaitForFocus();
    Main().PostMenuCommand(IDM_EDIT_RULE);
    const Window editor = Editor().WaitForDialog(Main());
    editor.Control(IDCANCEL).PostClick();
    editor.WaitUntilGone();
    WaitForMain();
    Rules().WaitForFocus();
    Main().PostMenuCommand(IDM_DELETE_RULE);
    Editor().WaitForMessageBox(Main()).Answer(IDNO);
    WaitForMain();
    Rules().WaitForFocus();
}

TEST_F(Modality, ADialogOfADialogLeavesEveryWindowBehindItDisabled) {
    StartWithSample();
    Control(IDC_ADD_RULE_BUTTON).PostClick();
    const Window editor = Editor().WaitForDialog(Main());
    editor.Control(IDC_RULE_ADD_MASK_BUTTON).PostClick();
    const Window mask = Editor().WaitForDialog(editor);
    EXPECT_FALSE(Main().IsEnabled());
    EXPECT_FALSE(editor.IsEnabled());
    editor.Post(WM_COMMAND, IDCANCEL);
    editor.Control(IDC_RULE_ADD_MASK_BUTTON).PostClick();
    editor.Control(IDC_RULE_INPUT_EDIT).SetText(L"C:\\typed");
    mask.Control(IDCANCEL).PostClick();
    mask.WaitUntilGone();
    editor.WaitUntilEnabled();
    EXPECT_FALSE(Main().IsEnabled());
    EXPECT_EQ(editor.Control(IDC_RULE_INPUT_EDIT).Text(), L"C:\\typed");
    editor.Control(IDCANCEL).PostClick();
    editor.WaitUntilGone();
    WaitForMain();
    ExpectNoDialog();
}

}  // namespace
}  // namespace corvane::test
