// Every dialog of the editor comes to a screen of another scale while it is open, and back.

#include "tests/kit/audit/scale_change_audit.h"
#include "tests/kit/fixtures/rule_editor_fixture.h"

namespace corvane::test {
namespace {

class ScaleChange : public RuleEditorTest {
  protected:
    void StartOnSample() {
        WriteSampleConfiguration();
        WriteRegistryValue(kProgramKey, L"ExtExt", Texts{L"docx", L"pdf", L"xml"});
        Start();
    }
    [[nodiscard]] Window OpenByMenu(int command) const {
        Main().PostMenuCommand(command);
        return Editor().WaitForDialog(Main());
    }
    [[nodiscard]] Window OpenByButton(const Window& dialog, int buttonId) const {
        dialog.Control(buttonId).PostClick();
        return Editor().WaitForDialog(dialog);
    }
    void Leave(const Window& dialog, const Window& owner) const {
        dialog.Post(WM_CLOSE);
        dialog.WaitUntilGone();
        owner.WaitUntilEnabled();
    }
};

TEST_F(ScaleChange, MainWindow) {
    StartOnSample();
    Rules().Select({1});
    const Texts rules = ShownRules();
    for (int row = 0; row < Rules().RowCount(); ++row) {
        Rules().SetChecked(row, row % 2 == 1);
    }
    ExpectScaleChangesKeepResizablePlaces(Main(), "main_window");
    EXPECT_EQ(ShownRules(), rules);
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{1});
    for (int row = 0; row < Rules().RowCount(); ++row) {
        EXPECT_EQ(Rules().IsChecked(row), row % 2 == 1) << "row " << row;
    }
}

TEST_F(ScaleChange, AboutBox) {
    StartOnSample();
    Main().Post(WM_SYSCOMMAND, IDM_ABOUT);
    ExpectScaleChangesKeepPlaces(Editor().WaitForDialog(Main()), "about");
}

TEST_F(ScaleChange, DescriptionBox) {
    StartOnSample();
    Rules().PostRightClick(Rules().CellCentre(kResign, kExtraColumn));
    ExpectScaleChangesKeepResizablePlaces(Editor().WaitForDialog(Main()), "description_box");
}

TEST_F(ScaleChange, LogSettings) {
    StartOnSample();
    ExpectScaleChangesKeepPlaces(OpenByMenu(IDM_LOG_PATH), "log_settings");
}

TEST_F(ScaleChange, Configurations) {
    StartOnSample();
    const Window dialog = OpenByMenu(IDM_CONFIGURATIONS);
    ExpectScaleChangesKeepPlaces(dialog, "configurations");
    ExpectScaleChangesKeepPlaces(OpenByButton(dialog, IDC_CONFIG_ADD_BUTTON), "extension");
}

TEST_F(ScaleChange, ProfileEditor) {
    StartOnSample();
    const Window dialog = OpenByMenu(IDM_EDIT_PROFILE);
    ExpectScaleChangesKeepPlaces(dialog, "profile_editor");
    ExpectScaleChangesKeepPlaces(OpenByButton(dialog, IDC_PROFILE_ADD_CS_PROFILE_BUTTON),
                                 "cs_profile_choice");
}

TEST_F(ScaleChange, RuleEditor) {
    StartWithRules({FullRule(L"MOVE"), FullRule(L"PACK"), FullRule(L"RESG")});
    for (int row = 0; row < 3; ++row) {
        const Window dialog = OpenStored(row);
        ExpectScaleChangesKeepPlaces(dialog, "rule_editor_" + std::to_string(row));
        Leave(dialog, Main());
    }
}

TEST_F(ScaleChange, MaskDialogAndErrorBox) {
    StartWithRules({});
    const Window dialog = OpenNew();
    const Window mask = OpenByButton(dialog, IDC_RULE_ADD_MASK_BUTTON);
    ExpectScaleChangesKeepPlaces(mask, "mask");
    Leave(mask, dialog);
    dialog.Control(IDOK).PostClick();
    ExpectScaleChangesKeepPlaces(Editor().WaitForWindow(dialog), "error_box");
}

TEST_F(ScaleChange, ADialogThatIsOpenedAfterwardsWorks) {
    StartOnSample();
    ExpectScaleChangesKeepResizablePlaces(Main(), "main_window_before");
    Leave(OpenByMenu(IDM_LOG_PATH), Main());
    ExpectNoDialog();
}

}  // namespace
}  // namespace corvane::test
