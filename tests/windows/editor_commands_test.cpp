#include "tests/windows/editor_test.h"

namespace corvane {
namespace {

/// The commands whose editors the user gives up: nothing may have changed, on the screen or in store.
class GivenUpEditors : public EditorTest {
  protected:
    void ExpectNothingChanged() {
        Settle();
        // Whatever the command has opened is given up.
        for (const driver::Window& window : Editor().TopLevelWindows()) {
            if (window != Main()) {
                window.Post(WM_COMMAND, IDCANCEL);
                window.WaitUntilGone();
            }
        }
        WaitForMain();
        EXPECT_EQ(Profiles().Column(0), (driver::Texts{L"alpha", L"beta", L"gamma"}));
        EXPECT_EQ(ShownRules(), SampleDescriptions());
        EXPECT_EQ(Control(IDC_PROFILE_CAPTION_EDIT).Text(), L"Profile: alpha");
        ExpectNothingToSave();
        EXPECT_EQ(driver::ReadRegistryTree(L""), before_);
    }
    void StartSelected(int row) {
        WriteSampleConfiguration();
        before_ = driver::ReadRegistryTree(L"");
        Start();
        if (row >= 0) {
            Rules().Select({row});
        }
    }

  private:
    std::map<std::wstring, driver::RegistryValues> before_;
};

TEST_F(GivenUpEditors, AddProfileByButton) {
    StartSelected(-1);
    Control(IDC_ADD_PROFILE_BUTTON).PostClick();
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, AddProfileByMenu) {
    StartSelected(-1);
    Main().PostMenuCommand(IDM_ADD_PROFILE);
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, EditProfileByButton) {
    StartSelected(-1);
    Control(IDC_EDIT_PROFILE_BUTTON).PostClick();
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, EditProfileByMenu) {
    StartSelected(-1);
    Main().PostMenuCommand(IDM_EDIT_PROFILE);
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, EditProfileByDoubleClick) {
    StartSelected(-1);
    Profiles().PostLeftDoubleClick(Profiles().CellCentre(0, 0));
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, AddRuleByButton) {
    StartSelected(-1);
    Control(IDC_ADD_RULE_BUTTON).PostClick();
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, AddRuleByMenu) {
    StartSelected(-1);
    Main().PostMenuCommand(IDM_ADD_RULE);
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, EditRuleByButton) {
    StartSelected(kPack);
    Control(IDC_EDIT_RULE_BUTTON).PostClick();
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, EditRuleByMenu) {
    StartSelected(kPack);
    Main().PostMenuCommand(IDM_EDIT_RULE);
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, EditRuleByDoubleClick) {
    StartSelected(-1);
    Rules().PostLeftDoubleClick(Rules().CellCentre(kPack, kDescriptionColumn));
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, EditRuleWithoutASelection) {
    StartSelected(-1);
    Control(IDC_EDIT_RULE_BUTTON).PostClick();
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, ConfigurationsByMenu) {
    StartSelected(-1);
    Main().PostMenuCommand(IDM_CONFIGURATIONS);
    ExpectNothingChanged();
}

TEST_F(GivenUpEditors, ConfigurationsByItsHiddenButton) {
    StartSelected(-1);
    Main().Post(WM_COMMAND, MAKEWPARAM(IDC_CONFIGURATIONS_BUTTON, BN_CLICKED),
                reinterpret_cast<LPARAM>(Control(IDC_CONFIGURATIONS_BUTTON).Handle()));
    ExpectNothingChanged();
}

}  // namespace
}  // namespace corvane
