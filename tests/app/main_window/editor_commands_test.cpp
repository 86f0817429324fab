#include "tests/kit/driver/failure.h"
#include "tests/kit/fixtures/editor_fixture.h"

namespace corvane::test {
namespace {

/// The commands whose editors the user gives up: nothing may have changed, on the screen or in store.
class GivenUpEditors : public EditorTest {
  protected:
    /// The command must have opened the editor that has this control; it is given up.
    void GiveUp(int controlOfEditor) {
        const Window editor = Editor().WaitForDialog(Main());
        EXPECT_TRUE(editor.HasControl(controlOfEditor)) << Utf8(editor.Name());
        editor.Post(WM_COMMAND, IDCANCEL);
        editor.WaitUntilGone();
        ExpectNothingChanged();
    }
    void ExpectNothingChanged() {
        WaitForMain();
        EXPECT_EQ(Profiles().Column(0), (Texts{L"alpha", L"beta", L"gamma"}));
        EXPECT_EQ(ShownRules(), SampleDescriptions());
        EXPECT_EQ(Control(IDC_PROFILE_CAPTION_EDIT).Text(), L"Profile: alpha");
        ExpectNothingToSave();
        EXPECT_EQ(ReadRegistryTree(L""), before_);
    }
    void StartSelected(int row) {
        WriteSampleConfiguration();
        before_ = ReadRegistryTree(L"");
        Start();
        if (row >= 0) {
            Rules().Select({row});
        }
    }

  private:
    std::map<std::wstring, RegistryValues> before_;
};

TEST_F(GivenUpEditors, AddProfileByButton) {
    StartSelected(-1);
    Control(IDC_ADD_PROFILE_BUTTON).PostClick();
    GiveUp(IDC_PROFILE_NAME_EDIT);
}

TEST_F(GivenUpEditors, AddProfileByMenu) {
    StartSelected(-1);
    Main().PostMenuCommand(IDM_ADD_PROFILE);
    GiveUp(IDC_PROFILE_NAME_EDIT);
}

TEST_F(GivenUpEditors, EditProfileByButton) {
    StartSelected(-1);
    Control(IDC_EDIT_PROFILE_BUTTON).PostClick();
    GiveUp(IDC_PROFILE_NAME_EDIT);
}

TEST_F(GivenUpEditors, EditProfileByMenu) {
    StartSelected(-1);
    Main().PostMenuCommand(IDM_EDIT_PROFILE);
    GiveUp(IDC_PROFILE_NAME_EDIT);
}

TEST_F(GivenUpEditors, EditProfileByDoubleClick) {
    StartSelected(-1);
    Profiles().PostLeftDoubleClick(Profiles().CellCentre(0, 0));
    GiveUp(IDC_PROFILE_NAME_EDIT);
}

TEST_F(GivenUpEditors, AddRuleByButton) {
    StartSelected(-1);
    Control(IDC_ADD_RULE_BUTTON).PostClick();
    GiveUp(IDC_RULE_OPERATION_COMBO);
}

TEST_F(GivenUpEditors, AddRuleByMenu) {
    StartSelected(-1);
    Main().PostMenuCommand(IDM_ADD_RULE);
    GiveUp(IDC_RULE_OPERATION_COMBO);
}

TEST_F(GivenUpEditors, EditRuleByButton) {
    StartSelected(kPack);
    Control(IDC_EDIT_RULE_BUTTON).PostClick();
    GiveUp(IDC_RULE_OPERATION_COMBO);
}

TEST_F(GivenUpEditors, EditRuleByMenu) {
    StartSelected(kPack);
    Main().PostMenuCommand(IDM_EDIT_RULE);
    GiveUp(IDC_RULE_OPERATION_COMBO);
}

TEST_F(GivenUpEditors, EditRuleByDoubleClick) {
    StartSelected(-1);
    Rules().PostLeftDoubleClick(Rules().CellCentre(kPack, kDescriptionColumn));
    GiveUp(IDC_RULE_OPERATION_COMBO);
}

TEST_F(GivenUpEditors, EditRuleWithoutASelection) {
    StartSelected(-1);
    Control(IDC_EDIT_RULE_BUTTON).PostClick();
    ExpectNoDialog();
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, ConfigurationsByMenu) {
    StartSelected(-1);
    Main().PostMenuCommand(IDM_CONFIGURATIONS);
    GiveUp(IDC_CONFIG_SIGNED_EDIT);
}

TEST_F(GivenUpEditors, ConfigurationsByItsHiddenButton) {
    StartSelected(-1);
    Main().Post(WM_COMMAND, MAKEWPARAM(IDC_CONFIGURATIONS_BUTTON, BN_CLICKED),
                reinterpret_cast<LPARAM>(Control(IDC_CONFIGURATIONS_BUTTON).Handle()));
    GiveUp(IDC_CONFIG_SIGNED_EDIT);
}

}  // namespace
}  // namespace corvane::test
