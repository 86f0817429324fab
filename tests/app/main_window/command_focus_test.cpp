// Where the keyboard goes on after each command of the main window, and which rules are selected then.
#include <windows.h>

#include <commctrl.h>

#include <ostream>

#include "tests/kit/driver/probe.h"
#include "tests/kit/fixtures/editor_fixture.h"

namespace corvane::test {
namespace {

/// One command, given while row 2 (of rows 0 to 5) is the only selected one and the rule list has the focus.
struct Step {
    const char* name;
    int menuId;
    int buttonId;  ///< 0 where no button can be pressed.
    int answer;    ///< What ends the dialog or the question of the command; 0 for none.
    int focusAfterMenu;
    int focusAfterButton;
    std::vector<int> selected;
};

void PrintTo(const Step& step, std::ostream* stream) {
    *stream << step.name;
}

constexpr int kList = IDC_RULE_LIST;

const std::vector<Step> kSteps = {
    {"Save", IDM_SAVE, IDC_SAVE_BUTTON, 0, kList, IDC_SAVE_BUTTON, {2}},
    {"SaveByIcon", IDM_SAVE, IDC_SAVE_ICON_BUTTON, 0, kList, IDC_SAVE_ICON_BUTTON, {2}},
    {"LogPathGivenUp", IDM_LOG_PATH, IDC_LOG_PATH_BUTTON, IDCANCEL, kList, IDC_LOG_PATH_BUTTON, {2}},
    {"Configurations", IDM_CONFIGURATIONS, 0, IDOK, kList, 0, {2}},
    {"AddProfileGivenUp",
     IDM_ADD_PROFILE,
     IDC_ADD_PROFILE_BUTTON,
     IDCANCEL,
     kList,
     IDC_ADD_PROFILE_BUTTON,
     {2}},
    {"EditProfile", IDM_EDIT_PROFILE, IDC_EDIT_PROFILE_BUTTON, IDOK, kList, IDC_EDIT_PROFILE_BUTTON, {2}},
    {"EditProfileGivenUp",
     IDM_EDIT_PROFILE,
     IDC_EDIT_PROFILE_BUTTON,
     IDCANCEL,
     kList,
     IDC_EDIT_PROFILE_BUTTON,
     {2}},
    {"DeleteProfile",
     IDM_DELETE_PROFILE,
     IDC_DELETE_PROFILE_BUTTON,
     IDYES,
     IDC_PROFILE_LIST,
     IDC_PROFILE_LIST,
     {}},
    {"DeleteProfileGivenUp",
     IDM_DELETE_PROFILE,
     IDC_DELETE_PROFILE_BUTTON,
     IDNO,
     kList,
     IDC_DELETE_PROFILE_BUTTON,
     {2}},
    {"ImportRulesGivenUp",
     IDM_IMPORT_RULES,
     IDC_IMPORT_RULES_BUTTON,
     IDCANCEL,
     kList,
     IDC_IMPORT_RULES_BUTTON,
     {2}},
    {"ExportRulesGivenUp",
     IDM_EXPORT_RULES,
     IDC_EXPORT_RULES_BUTTON,
     IDCANCEL,
     kList,
     IDC_EXPORT_RULES_BUTTON,
     {2}},
    {"OpenProfile", IDM_OPEN_PROFILE, 0, 0, kList, 0, {}},
    {"AddRuleGivenUp", IDM_ADD_RULE, IDC_ADD_RULE_BUTTON, IDCANCEL, kList, IDC_ADD_RULE_BUTTON, {2}},
    {"CopyRule", IDM_COPY_RULE, IDC_COPY_RULE_BUTTON, 0, kList, kList, {3}},
    {"EditRuleGivenUp", IDM_EDIT_RULE, IDC_EDIT_RULE_BUTTON, IDCANCEL, kList, IDC_EDIT_RULE_BUTTON, {2}},
    {"DeleteRule", IDM_DELETE_RULE, IDC_DELETE_RULE_BUTTON, IDYES, kList, IDC_DELETE_RULE_BUTTON, {}},
    {"DeleteRuleGivenUp", IDM_DELETE_RULE, IDC_DELETE_RULE_BUTTON, IDNO, kList, IDC_DELETE_RULE_BUTTON, {2}},
    {"MakeFirst", IDM_MAKE_FIRST, IDC_MAKE_FIRST_BUTTON, 0, kList, kList, {0}},
    {"MoveUp", IDM_MOVE_UP, IDC_MOVE_UP_BUTTON, 0, kList, kList, {1}},
    {"MoveDown", IDM_MOVE_DOWN, IDC_MOVE_DOWN_BUTTON, 0, kList, kList, {3}},
    {"MakeLast", IDM_MAKE_LAST, IDC_MAKE_LAST_BUTTON, 0, kList, kList, {5}},
};

class FocusAfter : public EditorTest, public ::testing::WithParamInterface<Step> {
  protected:
    void StartInTheRuleList() {
        StartWithSample();
        Rules().PostLeftClick(Rules().CellCentre(2, kDescriptionColumn));
        Rules().WaitForFocus();
        Rules().WaitForSelection({2});
    }
    /// Ends what the command has opened, and waits until it is through.
    void Finish() const {
        if (GetParam().answer != 0) {
            const Window dialog = Editor().WaitForWindow(Main());
            dialog.Post(WM_COMMAND, static_cast<WPARAM>(GetParam().answer));
            dialog.WaitUntilGone();
            WaitForMain();
        }
        Settle();
        ExpectNoDialog();
    }
};

INSTANTIATE_TEST_SUITE_P(EachCommand, FocusAfter, ::testing::ValuesIn(kSteps),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

TEST_P(FocusAfter, TheCommandOfTheMenu) {
    StartInTheRuleList();
    Main().PostMenuCommand(GetParam().menuId);
    Finish();
    Control(GetParam().focusAfterMenu).WaitForFocus();
    EXPECT_EQ(Rules().SelectedRows(), GetParam().selected);
}

TEST_P(FocusAfter, TheCommandOfTheButton) {
    StartInTheRuleList();
    if (GetParam().buttonId == 0) {
        // No button that can be pressed gives this command, and the hidden one stays so.
        for (const int hidden : {IDC_CONFIGURATIONS_BUTTON, IDC_OPEN_PROFILE_BUTTON}) {
            EXPECT_FALSE(Control(hidden).IsVisible()) << "control " << hidden;
        }
        return;
    }
    Control(GetParam().buttonId).PostClick();
    Finish();
    Control(GetParam().focusAfterButton).WaitForFocus();
    EXPECT_EQ(Rules().SelectedRows(), GetParam().selected);
}

class FocusAndSelection : public EditorTest {
  protected:
    void SelectInTheRuleList(int row) const {
        Rules().PostLeftClick(Rules().CellCentre(row, kDescriptionColumn));
        Rules().WaitForFocus();
        Rules().WaitForSelection({row});
    }
};

TEST_F(FocusAndSelection, AfterASearchAreTheFieldAndNothing) {
    StartWithSample();
    SelectInTheRuleList(2);
    Control(IDC_SEARCH_EDIT).PostLeftClick({4, 4});
    Control(IDC_SEARCH_EDIT).WaitForFocus();
    Control(IDC_SEARCH_EDIT).Type(L"o");
    Settle();
    EXPECT_TRUE(Control(IDC_SEARCH_EDIT).HasFocus());
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{});
}

TEST_F(FocusAndSelection, AfterAClickOnAProfileAreTheProfilesAndNoRule) {
    StartWithSample();
    SelectInTheRuleList(2);
    OpenProfile(L"beta");
    Profiles().WaitForFocus();
    EXPECT_EQ(Profiles().SelectedRows(), std::vector<int>{1});
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{});
}

TEST_F(FocusAndSelection, StayWhereTheyAreAfterACellIsDescribed) {
    StartWithSample();
    SelectInTheRuleList(2);
    Rules().PostRightClick(Rules().CellCentre(2, kDescriptionColumn));
    ExpectMessageBox(Main(), SampleDescriptions()[kResign], kInformation, IDOK, L"Description");
    WaitForMain();
    Rules().WaitForFocus();
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{2});
}

TEST_F(FocusAndSelection, StayWhereTheyAreAfterTheAboutBox) {
    StartWithSample();
    SelectInTheRuleList(2);
    Main().Post(WM_SYSCOMMAND, IDM_ABOUT);
    const Window box = Editor().WaitForDialog(Main());
    box.Control(IDOK).PostClick();
    box.WaitUntilGone();
    WaitForMain();
    Rules().WaitForFocus();
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{2});
}

TEST_F(FocusAndSelection, AfterAQuestionOnLeavingStayWhereTheyAre) {
    StartWithSample();
    SelectInTheRuleList(2);
    Main().PostMenuCommand(IDM_MOVE_UP);
    Rules().WaitForSelection({1});
    Main().PostMenuCommand(IDM_EXIT);
    ExpectBox(kUnsavedQuestion, kConfirmation, IDNO);
    WaitForMain();
    Rules().WaitForFocus();
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{1});
}

// While redrawing is off, Windows is reported to ignore what a list is told to scroll.
TEST_F(FocusAndSelection, ARefillScrollsTheListOnlyWhenItMayDraw) {
    WriteCatalogue({L"CS one"});
    WriteProfile(L"alpha", {L"CS one"});
    for (int rule = 0; rule < 40; ++rule) {
        WriteRule(L"alpha", rule, PlainRule(L"ENCR", L"rule " + std::to_wstring(rule)));
    }
    Start();
    Rules().Send(LVM_ENSUREVISIBLE, 39);
    const int top = Rules().TopRow();
    ASSERT_GT(top, 0);
    Rules().Select({39});
    const MessageWatch watch(Rules(), {WM_SETREDRAW, LVM_SCROLL});
    Main().SendMenuCommand(IDM_MOVE_UP);
    EXPECT_EQ(Rules().TopRow(), top);
    bool isDrawing = true;
    int scrolls = 0;
    for (const ProbeMessage& sent : watch.Sent()) {
        if (sent.message == WM_SETREDRAW) {
            isDrawing = sent.wParam != 0;
        } else {
            ++scrolls;
            EXPECT_TRUE(isDrawing);
        }
    }
    EXPECT_GT(scrolls, 0);
    EXPECT_TRUE(isDrawing);
}

}  // namespace
}  // namespace corvane::test
