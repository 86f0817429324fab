#include "tests/kit/driver/probe.h"
#include "tests/kit/fixtures/editor_fixture.h"

namespace corvane::test {
namespace {

/// The ways out of the main window.
enum class WayOut { kButton, kMenu, kEscape, kCloseBox };

class LeavingWithoutSaving : public EditorTest, public ::testing::WithParamInterface<WayOut> {
  protected:
    void Leave() const {
        switch (GetParam()) {
            case WayOut::kButton:
                Control(IDCANCEL).PostClick();
                break;
            case WayOut::kMenu:
                Main().PostMenuCommand(IDM_EXIT);
                break;
            case WayOut::kEscape:
                Profiles().WaitForFocus();
                Profiles().PostKey(VK_ESCAPE);
                break;
            case WayOut::kCloseBox:
                Main().Post(WM_SYSCOMMAND, SC_CLOSE);
                break;
        }
    }
    void ChangeSomething() const {
        Rules().Select({kEncrypt});
        Press(IDC_MOVE_DOWN_BUTTON);
        OpenProfile(L"beta");
        Profiles().WaitForFocus();
    }
};

INSTANTIATE_TEST_SUITE_P(By, LeavingWithoutSaving,
                         ::testing::Values(WayOut::kButton, WayOut::kMenu, WayOut::kEscape,
                                           WayOut::kCloseBox),
                         [](const auto& parameter) {
                             switch (parameter.param) {
                                 case WayOut::kButton:
                                     return "Button";
                                 case WayOut::kMenu:
                                     return "Menu";
                                 case WayOut::kEscape:
                                     return "Escape";
                                 default:
                                     return "CloseBox";
                             }
                         });

TEST_P(LeavingWithoutSaving, EndsAtOnceWhenNothingChanged) {
    StartWithSample();
    Leave();
    EXPECT_EQ(Editor().WaitForEnd(), 0U);
}

TEST_P(LeavingWithoutSaving, AsksWhenSomethingChangedAndYesLosesIt) {
    WriteSampleConfiguration();
    const auto before = ReadRegistryTree(L"");
    Start();
    ChangeSomething();
    Leave();
    ExpectMessageBox(Main(), kUnsavedQuestion, kConfirmation, IDYES);
    EXPECT_EQ(Editor().WaitForEnd(), 0U);
    EXPECT_EQ(ReadRegistryTree(L""), before);
}

TEST_P(LeavingWithoutSaving, NoKeepsTheWindowAndEveryChange) {
    StartWithSample();
    ChangeSomething();
    Leave();
    ExpectBox(kUnsavedQuestion, kConfirmation, IDNO);
    ExpectNoDialog();
    OpenProfile(L"alpha");
    EXPECT_EQ(Rules().Cell(1, kDescriptionColumn), SampleDescriptions()[kEncrypt]);
    SaveAndLeave();
    EXPECT_EQ(StoredRuleTexts(L"alpha", L"Operation").front(), L"MOVE");
}

class SaveAndExit : public EditorTest {};

TEST_F(SaveAndExit, EndsWithoutAQuestionWhenNothingChanged) {
    StartWithSample();
    Control(IDOK).PostClick();
    EXPECT_EQ(Editor().WaitForEnd(), 0U);
}

TEST_F(SaveAndExit, SavesWhatChanged) {
    StartWithSample();
    Rules().Select({kEncrypt});
    Press(IDC_MOVE_DOWN_BUTTON);
    Control(IDOK).PostClick();
    EXPECT_EQ(Editor().WaitForEnd(), 0U);
    EXPECT_EQ(StoredRuleTexts(L"alpha", L"Operation"),
              (Texts{L"MOVE", L"ENCR", L"RESG", L"PACK", L"EXEC", L"DELE"}));
}

TEST_F(SaveAndExit, IsWhatEnterDoesInTheLists) {
    StartWithSample();
    Rules().Select({kEncrypt});
    Press(IDC_MOVE_DOWN_BUTTON);
    Rules().WaitForFocus();
    Rules().PostKey(VK_RETURN);
    EXPECT_EQ(Editor().WaitForEnd(), 0U);
    EXPECT_EQ(StoredRuleTexts(L"alpha", L"Operation").front(), L"MOVE");
}

// Deliberate: the list has the focus when the window closes, and a rule whose row the search hides counts as
// checked only when the list loses it; what is saved is saved before.
TEST_F(SaveAndExit, ByEnterFromAListThatTheSearchHasFilteredSwitchesNoRule) {
    StartWithSample();
    Control(IDC_SEARCH_EDIT).SetText(L"orders");
    Rules().PostLeftClick(Rules().CellCentre(0, kDescriptionColumn));
    Rules().WaitForFocus();
    Rules().PostKey(VK_RETURN);
    EXPECT_EQ(Editor().WaitForEnd(), 0U);
    EXPECT_EQ(StoredRuleTexts(L"alpha", L"Operation"), SampleOperations());
    EXPECT_EQ(StoredSwitches(L"alpha"), (std::vector<std::uint32_t>{1, 0, 1, 0, 1, 0}));
}

TEST_F(SaveAndExit, EnterOnAnotherButtonPressesThatButton) {
    StartWithSample();
    Press(IDC_SAVE_ICON_BUTTON);
    WriteRegistryValue(RuleKey(L"alpha", 0), L"Operation", L"");
    Profiles().PostLeftClick(Profiles().CellCentre(0, 0));
    Profiles().WaitForFocus();
    while (Main().FocusOfThread().Id() != IDC_SAVE_ICON_BUTTON) {
        Main().FocusOfThread().PostKey(VK_TAB);
        Settle();
    }
    Control(IDC_SAVE_ICON_BUTTON).PostKey(VK_RETURN);
    Settle();
    ExpectNoDialog();
    EXPECT_EQ(StoredRuleTexts(L"alpha", L"Operation"), SampleOperations());
}

TEST_F(SaveAndExit, IsTheDefaultButton) {
    StartWithSample();
    EXPECT_EQ(LOWORD(Main().Send(DM_GETDEFID)), IDOK);
}

TEST_F(SaveAndExit, AsksWhenTheSaveFailsAndNoStays) {
    StartWithSample();
    Rules().Select({kEncrypt});
    Press(IDC_MOVE_DOWN_BUTTON);
    DeleteRegistryKey(kProgramKey);
    Control(IDOK).PostClick();
    const std::wstring report =
        ReportText(L"Create (open) register key HKEY_CURRENT_USER\\SOFTWARE\\HOLVAN\\tarntray", 2);
    ExpectMessageBox(Main(), report, kReport, IDOK);
    ExpectBox(kUnsavedQuestion, kConfirmation, IDNO);
    EXPECT_EQ(Rules().Cell(1, kDescriptionColumn), SampleDescriptions()[kEncrypt]);
    Control(IDOK).PostClick();
    ExpectMessageBox(Main(), report, kReport, IDOK);
    ExpectMessageBox(Main(), kUnsavedQuestion, kConfirmation, IDYES);
    EXPECT_EQ(Editor().WaitForEnd(), 0U);
}

class Saving : public EditorTest {};

TEST_F(Saving, KeepsTheWindowOpenWithItsSelection) {
    StartWithSample();
    OpenProfile(L"beta");
    Rules().Select({1});
    Press(IDC_SAVE_BUTTON);
    ExpectNoDialog();
    EXPECT_EQ(Control(IDC_PROFILE_CAPTION_EDIT).Text(), L"Profile: beta");
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{1});
}

TEST_F(Saving, ByTheMenuAndBothButtonsClearsTheChange) {
    StartWithSample();
    const std::vector<int> routes = {IDC_SAVE_BUTTON, IDC_SAVE_ICON_BUTTON, IDM_SAVE};
    int firstRule = kEncrypt;
    for (const int route : routes) {
        Rules().Select({0});
        Press(IDC_MAKE_LAST_BUTTON);
        if (route == IDM_SAVE) {
            Main().SendMenuCommand(route);
        } else {
            Press(route);
        }
        ++firstRule;
        EXPECT_EQ(StoredRuleTexts(L"alpha", L"Operation").front(),
                  SampleOperations()[static_cast<std::size_t>(firstRule)])
            << "command " << route;
    }
    ExpectNothingToSave();
}

TEST_F(Saving, WritesEveryProfileAndRuleAndLeavesTheProvidersKeyAlone) {
    StartWithSample();
    const auto catalogue = ReadRegistryTree(kCatalogueKey);
    SaveAndLeave();
    EXPECT_EQ(RegistrySubkeys(kProgramKey), (Texts{L"alpha", L"beta", L"gamma"}));
    EXPECT_EQ(StoredRuleTexts(L"alpha", L"Operation"), SampleOperations());
    EXPECT_EQ(StoredRuleTexts(L"alpha", L"Descryption"), SampleDescriptions());
    EXPECT_EQ(StoredRuleTexts(L"beta", L"Operation"), (Texts{L"HASH", L"B64E"}));
    EXPECT_EQ(ReadRegistryValues(RuleKey(L"alpha", kResign) + L"\\Board"),
              (RegistryValues{{L"Signer Num", 2U}, {L"S0", L"CN=Chair"}, {L"S1", L"CN=Secretary"}}));
    EXPECT_EQ(ReadRegistryTree(kCatalogueKey), catalogue);
}

TEST_F(Saving, ASecondSaveWritesTheSame) {
    StartWithSample();
    Press(IDC_SAVE_BUTTON);
    const auto first = ReadRegistryTree(L"");
    ExpectNothingToSave();
    Start();
    EXPECT_EQ(ShownRules(), SampleDescriptions());
    SaveAndLeave();
    EXPECT_EQ(ReadRegistryTree(L""), first);
}

// The box is asked for its pointer as soon as the mouse is over it, and has the usual one.
TEST_F(Saving, ShowsTheHourglassButOverTheBoxesThatItShows) {
    SetCursorPos(1, 1);
    StartWithSample();
    DeleteRegistryKey(kProgramKey);
    Control(IDC_SAVE_BUTTON).PostClick();
    const MessageBoxWindow box = Editor().WaitForMessageBox(Main());
    EXPECT_EQ(PointerOf(box), kHourglass);
    box.Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(box.Handle()), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(PointerOf(box), kArrow);
    box.Answer(IDOK);
    WaitForMain();
    EXPECT_NE(PointerOf(Main()), kHourglass);
}

class SessionEnd : public EditorTest {};

TEST_F(SessionEnd, IsRefusedWhileChangesAreUnsaved) {
    StartWithSample();
    Rules().Select({kEncrypt});
    Press(IDC_MOVE_DOWN_BUTTON);
    EXPECT_EQ(Main().Send(WM_QUERYENDSESSION), FALSE);
    ExpectNoDialog();
    EXPECT_EQ(Rules().Cell(1, kDescriptionColumn), SampleDescriptions()[kEncrypt]);
    ExpectUnsavedChanges();
}

TEST_F(SessionEnd, IsAllowedWhenEverythingIsSaved) {
    StartWithSample();
    EXPECT_NE(Main().Send(WM_QUERYENDSESSION), FALSE);
    Rules().Select({kEncrypt});
    Press(IDC_MOVE_DOWN_BUTTON);
    Press(IDC_SAVE_BUTTON);
    EXPECT_NE(Main().Send(WM_QUERYENDSESSION), FALSE);
}

TEST_F(SessionEnd, CountsACheckBoxThatIsStillInTheFocusedList) {
    StartWithSample();
    Rules().PostLeftClick(Rules().CellCentre(kEncrypt, kDescriptionColumn));
    Rules().WaitForFocus();
    Rules().SetChecked(kEncrypt, false);
    EXPECT_EQ(Main().Send(WM_QUERYENDSESSION), FALSE);
}

class TabOrder : public EditorTest {};

TEST_F(TabOrder, VisitsEveryControlInReadingOrder) {
    StartWithSample();
    Profiles().WaitForFocus();
    const std::vector<int> expected = {IDC_PROFILE_LIST,
                                       IDC_RULE_LIST_CAPTION_EDIT,
                                       IDC_RULE_LIST,
                                       IDC_SAVE_BUTTON,
                                       IDOK,
                                       IDCANCEL,
                                       IDC_SAVE_ICON_BUTTON,
                                       IDC_LOG_PATH_BUTTON,
                                       IDC_ADD_RULE_BUTTON,
                                       IDC_COPY_RULE_BUTTON,
                                       IDC_EDIT_RULE_BUTTON,
                                       IDC_DELETE_RULE_BUTTON,
                                       IDC_MAKE_FIRST_BUTTON,
                                       IDC_MOVE_UP_BUTTON,
                                       IDC_MOVE_DOWN_BUTTON,
                                       IDC_MAKE_LAST_BUTTON,
                                       IDC_ADD_PROFILE_BUTTON,
                                       IDC_EDIT_PROFILE_BUTTON,
                                       IDC_DELETE_PROFILE_BUTTON,
                                       IDC_EXPORT_RULES_BUTTON,
                                       IDC_IMPORT_RULES_BUTTON,
                                       IDC_SEARCH_EDIT,
                                       IDC_PROFILE_CAPTION_EDIT};
    std::vector<int> visited;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const Window focused = Main().FocusOfThread();
        visited.push_back(focused.Id());
        focused.PostKey(VK_TAB);
        Settle();
    }
    EXPECT_EQ(visited, expected);
    EXPECT_EQ(Main().FocusOfThread().Id(), IDC_PROFILE_LIST) << "the order does not close";
}

}  // namespace
}  // namespace corvane::test
