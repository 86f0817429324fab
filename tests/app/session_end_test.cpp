// Windows that shuts down while an editor is open.

#include <windows.h>

#include <functional>

#include "tests/kit/fixtures/profile_editor_fixture.h"

namespace corvane::test {
namespace {

class EditorAtSessionEnd : public ProfileEditorTest {
  protected:
    /// Opens a dialog of `owner` by a command.
    [[nodiscard]] Window OpenBy(const Window& owner, int command) const {
        owner.PostMenuCommand(command);
        return Editor().WaitForDialog(owner);
    }

    [[nodiscard]] static bool MayEnd(const Window& window) {
        return window.Send(WM_QUERYENDSESSION) != FALSE;
    }

    /// The dialog lets Windows end as it is opened, and not once something is changed in it. The main window
    /// has nothing against it, and the dialog goes on when Windows does.
    void ExpectAskedAfter(const Window& dialog, const std::function<void()>& change) const {
        EXPECT_TRUE(MayEnd(dialog)) << "nothing is changed";
        change();
        EXPECT_FALSE(MayEnd(dialog)) << "the change would be lost";
        EXPECT_TRUE(MayEnd(Main()));
        dialog.Send(WM_ENDSESSION, FALSE);
        EXPECT_TRUE(dialog.IsVisible());
        EXPECT_FALSE(MayEnd(dialog)) << "it is still unsaved";
    }
    void ExpectAskedAfterTyping(const Window& dialog, int editId) const {
        const std::wstring before = dialog.Control(editId).Text();
        ExpectAskedAfter(dialog, [&] { dialog.Control(editId).SetText(before + L"1"); });
        dialog.Control(editId).SetText(before);
        EXPECT_TRUE(MayEnd(dialog)) << "it is as it was";
    }
};

TEST_F(EditorAtSessionEnd, RuleEditor) {
    StartWithSample();
    Rules().Select({kEncrypt});
    ExpectAskedAfterTyping(OpenBy(Main(), IDM_EDIT_RULE), IDC_RULE_DESCRIPTION_EDIT);
}

TEST_F(EditorAtSessionEnd, EveryRuleThatIsOnlyLookedAt) {
    StartWithSample();
    for (int rule = 0; rule < kSampleRuleCount; ++rule) {
        Rules().Select({rule});
        const Window editor = OpenBy(Main(), IDM_EDIT_RULE);
        EXPECT_TRUE(MayEnd(editor)) << "rule " << rule;
        editor.Control(IDCANCEL).PostClick();
        editor.WaitUntilGone();
        WaitForMain();
    }
}

TEST_F(EditorAtSessionEnd, NewRule) {
    StartWithSample();
    ExpectAskedAfterTyping(OpenBy(Main(), IDM_ADD_RULE), IDC_RULE_INPUT_EDIT);
}

TEST_F(EditorAtSessionEnd, RuleEditorBehindAnotherDialog) {
    StartWithSample();
    const Window editor = OpenBy(Main(), IDM_ADD_RULE);
    editor.Control(IDC_RULE_INPUT_EDIT).SetText(L"C:\\typed");
    const Window mask = OpenBy(editor, IDC_RULE_ADD_MASK_BUTTON);
    EXPECT_TRUE(MayEnd(mask));
    EXPECT_FALSE(MayEnd(editor));
    mask.Control(IDCANCEL).PostClick();
    mask.WaitUntilGone();
    editor.WaitUntilEnabled();
    EXPECT_EQ(editor.Control(IDC_RULE_INPUT_EDIT).Text(), L"C:\\typed");
}

TEST_F(EditorAtSessionEnd, Mask) {
    StartWithSample();
    const Window editor = OpenBy(Main(), IDM_ADD_RULE);
    ExpectAskedAfterTyping(OpenBy(editor, IDC_RULE_ADD_MASK_BUTTON), IDC_MASK_COMBO);
}

TEST_F(EditorAtSessionEnd, ProfileEditor) {
    StartWithSample();
    ExpectAskedAfterTyping(OpenBy(Main(), IDM_EDIT_PROFILE), IDC_PROFILE_NAME_EDIT);
}

TEST_F(EditorAtSessionEnd, ProfileOfWhichAnotherCsProfileIsLookedAt) {
    StartWithSample();
    const Window editor = OpenCurrent();
    SelectCsProfile(editor, 1);
    EXPECT_TRUE(MayEnd(editor));
    PressIn(editor, IDC_PROFILE_NOT_LOAD_CRL_CHECK);
    EXPECT_FALSE(MayEnd(editor));
}

TEST_F(EditorAtSessionEnd, CsProfileChoice) {
    StartWithSample();
    const Window editor = OpenCurrent();
    const Window choice = OpenChoice(editor);
    ExpectAskedAfter(choice, [&] { choice.Control(IDC_CS_PROFILE_CHOICE_COMBO).Send(CB_SETCURSEL, 1); });
}

TEST_F(EditorAtSessionEnd, Configurations) {
    StartWithSample();
    ExpectAskedAfterTyping(OpenBy(Main(), IDM_CONFIGURATIONS), IDC_CONFIG_HASH_EDIT);
}

TEST_F(EditorAtSessionEnd, ConfigurationsThatWereAppliedOnly) {
    StartWithSample();
    const Window page = OpenBy(Main(), IDM_CONFIGURATIONS);
    page.Control(IDC_CONFIG_HASH_EDIT).SetText(L"new");
    page.Control(IDC_CONFIG_APPLY_BUTTON).Click();
    EXPECT_FALSE(MayEnd(page)) << "OK has not taken them yet";
}

TEST_F(EditorAtSessionEnd, Extension) {
    StartWithSample();
    const Window page = OpenBy(Main(), IDM_CONFIGURATIONS);
    ExpectAskedAfterTyping(OpenBy(page, IDC_CONFIG_ADD_BUTTON), IDC_EXTENSION_EDIT);
}

TEST_F(EditorAtSessionEnd, AddedExtension) {
    StartWithSample();
    const Window page = OpenBy(Main(), IDM_CONFIGURATIONS);
    const Window extension = OpenBy(page, IDC_CONFIG_ADD_BUTTON);
    ExpectAskedAfter(page, [&] {
        extension.Control(IDC_EXTENSION_EDIT).SetText(L"new");
        extension.Control(IDOK).PostClick();
        extension.WaitUntilGone();
        page.WaitUntilEnabled();
        SettleDialogOf(page.Control(IDC_CONFIG_SIGNED_EDIT));
    });
}

TEST_F(EditorAtSessionEnd, LogSettings) {
    StartWithSample();
    ExpectAskedAfterTyping(OpenBy(Main(), IDM_LOG_PATH), IDC_LOG_FOLDER_EDIT);
}

TEST_F(EditorAtSessionEnd, LogFileSize) {
    StartWithSample();
    ExpectAskedAfterTyping(OpenBy(Main(), IDM_LOG_PATH), IDC_LOG_SIZE_EDIT);
}

TEST_F(EditorAtSessionEnd, MainWindowAnswersForItsOwnChangesWhateverTheEditorHas) {
    StartWithSample();
    Rules().Select({kEncrypt});
    Press(IDC_MOVE_DOWN_BUTTON);
    const Window dialog = OpenBy(Main(), IDM_LOG_PATH);
    EXPECT_TRUE(MayEnd(dialog));
    EXPECT_FALSE(MayEnd(Main()));
    Main().Send(WM_ENDSESSION, FALSE);
    EXPECT_TRUE(dialog.IsVisible());
}

}  // namespace
}  // namespace corvane::test
