// What a user has ticked is in the configuration before any command works on it.
#include <windows.h>

#include <algorithm>
#include <functional>
#include <ostream>

#include "tests/kit/fixtures/editor_fixture.h"

namespace corvane::test {
namespace {

/// A command that leaves the ticked rule in the list, given while the list has the focus.
struct Command {
    const char* name;
    int menuId;
    int answer;  ///< What ends the dialog or the question of the command; 0 for none.
};

void PrintTo(const Command& command, std::ostream* stream) {
    *stream << command.name;
}

class Ticks : public EditorTest {
  protected:
    void TickWithoutFocus(int row) const {
        Rules().PostLeftClick(Rules().CheckBoxCentre(row));
        Settle();
    }
    void EnterRuleList(int row) const {
        Rules().PostLeftClick(Rules().CellCentre(row, kDescriptionColumn));
        Rules().WaitForFocus();
    }
    /// Whether the shown rule with the description of a sample rule is checked; it must be there.
    [[nodiscard]] bool IsChecked(int rule) const {
        const Texts shown = ShownRules();
        const auto row =
            std::find(shown.begin(), shown.end(), SampleDescriptions()[static_cast<std::size_t>(rule)]);
        EXPECT_NE(row, shown.end()) << "rule " << rule << " is not shown";
        return row != shown.end() && Rules().IsChecked(static_cast<int>(row - shown.begin()));
    }
    static std::uint32_t StoredSwitch(int rule) {
        const Texts stored = StoredRuleTexts(L"alpha", L"Descryption");
        const auto found =
            std::find(stored.begin(), stored.end(), SampleDescriptions()[static_cast<std::size_t>(rule)]);
        EXPECT_NE(found, stored.end()) << "rule " << rule << " is not stored";
        return found == stored.end()
                   ? 0
                   : StoredSwitches(L"alpha")[static_cast<std::size_t>(found - stored.begin())];
    }
    void Give(const Command& command) const {
        Main().PostMenuCommand(command.menuId);
        if (command.answer != 0) {
            const Window dialog = Editor().WaitForWindow(Main());
            dialog.Post(WM_COMMAND, static_cast<WPARAM>(command.answer));
            dialog.WaitUntilGone();
            WaitForMain();
        }
        Settle();
    }
};

class TicksBefore : public Ticks, public ::testing::WithParamInterface<Command> {};

INSTANTIATE_TEST_SUITE_P(
    EachCommand, TicksBefore,
    ::testing::Values(
        Command{"Save", IDM_SAVE, 0}, Command{"LogPathGivenUp", IDM_LOG_PATH, IDCANCEL},
        Command{"Configurations", IDM_CONFIGURATIONS, IDOK}, Command{"AddProfile", IDM_ADD_PROFILE, IDCANCEL},
        Command{"EditProfile", IDM_EDIT_PROFILE, IDOK}, Command{"ImportRules", IDM_IMPORT_RULES, IDCANCEL},
        Command{"ExportRules", IDM_EXPORT_RULES, IDCANCEL}, Command{"OpenProfile", IDM_OPEN_PROFILE, 0},
        Command{"AddRule", IDM_ADD_RULE, IDCANCEL}, Command{"CopyRule", IDM_COPY_RULE, 0},
        Command{"EditRule", IDM_EDIT_RULE, IDCANCEL}, Command{"DeleteRule", IDM_DELETE_RULE, IDYES},
        Command{"MakeFirst", IDM_MAKE_FIRST, 0}, Command{"MoveUp", IDM_MOVE_UP, 0},
        Command{"MoveDown", IDM_MOVE_DOWN, 0}, Command{"MakeLast", IDM_MAKE_LAST, 0}),
    [](const auto& parameter) { return std::string(parameter.param.name); });

// One ticked, one unticked, by message as other programs do, in a list that keeps the focus.
TEST_P(TicksBefore, TheCommandAreKeptAndSaved) {
    StartWithSample();
    EnterRuleList(kPack);
    Rules().SetChecked(kMove, true);
    Rules().SetChecked(kResign, false);
    Give(GetParam());
    EXPECT_TRUE(IsChecked(kMove));
    EXPECT_FALSE(IsChecked(kResign));
    Main().SendMenuCommand(IDM_SAVE);
    EXPECT_EQ(StoredSwitch(kMove), 1U);
    EXPECT_EQ(StoredSwitch(kResign), 0U);
    EXPECT_EQ(StoredSwitch(kEncrypt), 1U);
}

// Under Wine a click on a check box gives the list no focus, and so the list never loses it.
TEST_F(Ticks, MadeByAClickThatGivesNoFocusAreSaved) {
    StartWithSample();
    TickWithoutFocus(kMove);
    Press(IDC_SAVE_BUTTON);
    EXPECT_EQ(StoredSwitches(L"alpha"), (std::vector<std::uint32_t>{1, 1, 1, 0, 1, 0}));
    ExpectNothingToSave();
}

TEST_F(Ticks, MadeByAClickThatGivesNoFocusHaveToBeSaved) {
    StartWithSample();
    TickWithoutFocus(kMove);
    ExpectUnsavedChanges();
}

TEST_F(Ticks, MadeByTheSpaceBarAreSaved) {
    StartWithSample();
    EnterRuleList(kMove);
    Rules().PostKey(VK_SPACE);
    Main().PostMenuCommand(IDM_COPY_RULE);
    Settle();
    EXPECT_EQ(Rules().Checks(), (std::vector<bool>{true, true, true, true, false, true, false}));
    SaveAndLeave();
    EXPECT_EQ(StoredSwitches(L"alpha"), (std::vector<std::uint32_t>{1, 1, 1, 1, 0, 1, 0}));
}

TEST_F(Ticks, SurviveASearch) {
    StartWithSample();
    TickWithoutFocus(kMove);
    Control(IDC_SEARCH_EDIT).SetText(L"o");
    EXPECT_TRUE(IsChecked(kMove));
    Control(IDC_SEARCH_EDIT).SetText(L"");
    EXPECT_TRUE(IsChecked(kMove));
    SaveAndLeave();
    EXPECT_EQ(StoredSwitch(kMove), 1U);
}

TEST_F(Ticks, SurviveThatAnotherProfileIsClicked) {
    StartWithSample();
    TickWithoutFocus(kMove);
    OpenProfile(L"beta");
    EXPECT_EQ(Rules().Checks(), (std::vector<bool>{true, false}));
    OpenProfile(L"alpha");
    EXPECT_TRUE(IsChecked(kMove));
    ExpectUnsavedChanges();
}

TEST_F(Ticks, SurviveADoubleClickOnTheProfileAndOk) {
    StartWithSample();
    TickWithoutFocus(kMove);
    Profiles().PostLeftDoubleClick(Profiles().CellCentre(0, 0));
    const Window dialog = Editor().WaitForDialog(Main());
    dialog.Post(WM_COMMAND, IDOK);
    dialog.WaitUntilGone();
    WaitForMain();
    EXPECT_TRUE(IsChecked(kMove));
}

TEST_F(Ticks, SurviveADoubleClickOnAnotherRule) {
    StartWithSample();
    TickWithoutFocus(kMove);
    Rules().PostLeftDoubleClick(Rules().CellCentre(kPack, kDescriptionColumn));
    const Window dialog = Editor().WaitForDialog(Main());
    dialog.Post(WM_COMMAND, IDCANCEL);
    dialog.WaitUntilGone();
    WaitForMain();
    ExpectUnsavedChanges();
}

TEST_F(Ticks, SurviveTheDeleteKeyOnAnotherRule) {
    StartWithSample();
    TickWithoutFocus(kMove);
    Rules().Select({kPack});
    Rules().PostKey(VK_DELETE);
    ExpectBox(L"Delete 1 rule(s)?", kConfirmation, IDYES);
    EXPECT_TRUE(IsChecked(kMove));
}

TEST_F(Ticks, CountWhenWindowsShutsDown) {
    StartWithSample();
    TickWithoutFocus(kMove);
    EXPECT_EQ(Main().Send(WM_QUERYENDSESSION), FALSE);
}

TEST_F(Ticks, AreSavedByEnterFromTheList) {
    StartWithSample();
    EnterRuleList(kPack);
    Rules().SetChecked(kMove, true);
    Rules().PostKey(VK_RETURN);
    EXPECT_EQ(Editor().WaitForEnd(), 0U);
    EXPECT_EQ(StoredSwitches(L"alpha"), (std::vector<std::uint32_t>{1, 1, 1, 0, 1, 0}));
}

// A box that shows what the rule is changes nothing, even where another program has stored an odd number.
TEST_F(Ticks, NobodyHasMadeAreNoChange) {
    WriteSampleConfiguration();
    WriteRegistryValue(RuleKey(L"alpha", kEncrypt), L"Is on", 5U);
    Start();
    Main().SendMenuCommand(IDM_OPEN_PROFILE);
    ExpectNothingToSave();
}

// Deliberate: rows stand for rules by position, so the boxes wait until the list loses the focus.
TEST_F(Ticks, UnderAFilterWaitUntilTheListLosesTheFocus) {
    StartWithSample();
    Control(IDC_SEARCH_EDIT).SetText(L"orders");
    EnterRuleList(0);
    Rules().SetChecked(0, false);
    Main().SendMenuCommand(IDM_SAVE);
    EXPECT_EQ(StoredSwitches(L"alpha"), (std::vector<std::uint32_t>{1, 0, 1, 0, 1, 0}));
    Control(IDC_SEARCH_EDIT).PostLeftClick({4, 4});
    Control(IDC_SEARCH_EDIT).WaitForFocus();
    SaveAndLeave();
    EXPECT_EQ(StoredSwitches(L"alpha"), (std::vector<std::uint32_t>{0, 0, 1, 1, 1, 1}));
}

// Deliberate: the list does not have the row of the rule without operation, and rows stand for positions.
TEST_F(Ticks, BesideARuleWithoutOperationWaitUntilTheListLosesTheFocus) {
    WriteSampleConfiguration();
    WriteRegistryValue(RuleKey(L"beta", 0), L"Operation", L"");
    Start();
    OpenProfile(L"beta");
    EnterRuleList(0);
    Rules().SetChecked(0, true);
    Main().SendMenuCommand(IDM_SAVE);
    EXPECT_EQ(std::get<std::uint32_t>(ReadRegistryValue(RuleKey(L"beta", 1), L"Is on")), 0U);
}

}  // namespace
}  // namespace corvane::test
