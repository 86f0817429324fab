#include "tests/kit/fixtures/editor_fixture.h"

#include <commctrl.h>

#include "tests/kit/driver/waiting.h"

namespace corvane::test {
namespace {

class RuleList : public EditorTest {};
class Search : public EditorTest {};
class CheckBoxes : public EditorTest {
  protected:
    /// Gives the focus to the rule list by a click on a row, as a user does.
    void EnterRuleList(int row) const {
        Rules().PostLeftClick(Rules().CellCentre(row, kDescriptionColumn));
        Rules().WaitForFocus();
    }
    void LeaveRuleList() const {
        Control(IDC_SEARCH_EDIT).PostLeftClick({4, 4});
        Control(IDC_SEARCH_EDIT).WaitForFocus();
    }
};

TEST_F(RuleList, HasNineColumnsWithAnEmptyFirstHeading) {
    StartWithSample();
    EXPECT_EQ(Rules().Headings(), (Texts{L"", L"Description", L"Rules", L"Input folder", L"Output folder",
                                         L"Error folder", L"Masks", L"CS profile", L"Extra"}));
    const DWORD wanted = LVS_EX_FULLROWSELECT | LVS_EX_CHECKBOXES | LVS_EX_LABELTIP;
    EXPECT_EQ(Rules().ExtendedListStyle() & wanted, wanted);
    EXPECT_EQ(Rules().Style() & LVS_SINGLESEL, 0U);
    EXPECT_NE(Rules().Style() & LVS_SHOWSELALWAYS, 0U);
}

TEST_F(RuleList, DividesItsWidthAmongTheColumns) {
    StartWithSample();
    const int scrollBar = GetSystemMetrics(SM_CXVSCROLL);
    const int first = Rules().ColumnWidth(0);
    const int other = Rules().ColumnWidth(1);
    EXPECT_EQ(first, 3 * scrollBar);
    for (int column = 2; column < kRuleColumnCount; ++column) {
        EXPECT_EQ(Rules().ColumnWidth(column), other) << "column " << column;
    }
    EXPECT_LE(first + 8 * other, Rules().ClientSize().cx);
}

TEST_F(RuleList, ShowsTheNineCellsOfEachRule) {
    StartWithSample();
    const Texts descriptions = SampleDescriptions();
    EXPECT_EQ(Rules().Row(kEncrypt), (Texts{L"1", descriptions[kEncrypt], L"Encrypt", L"C:\\in", L"C:\\out",
                                            L"C:\\failed", L"*.xml", L"CS one", L"; ZIP archivation"}));
    EXPECT_EQ(Rules().Row(kResign),
              (Texts{L"3", descriptions[kResign], L"Resign", L"C:\\in", L"C:\\out", L"C:\\failed", L"*.xml",
                     L"CS one", L"1; CS two; Detached signature->Attached signature"}));
    EXPECT_EQ(Rules().Cell(kPack, kExtraColumn), L"GZIP archivation; 10; 2048; 5; pack");
    EXPECT_EQ(Rules().Cell(kExecute, kExtraColumn), L"C:\\tool.exe; 7");
    EXPECT_EQ(Rules().Cell(kDelete, kExtraColumn), L"");
}

// Deliberate: an output folder "0" blanks the operation, a CS profile "0" blanks the error folder.
TEST_F(RuleList, BlanksTheOperationAndTheErrorFolderForStoredZeros) {
    StartWithSample();
    EXPECT_EQ(Rules().Row(kMove), (Texts{L"2", L"Move invoices", L"", L"C:\\in", L"0", L"", L"2", L"0",
                                         L"C:\\second; tmp; done"}));
}

TEST_F(RuleList, ChecksTheRulesThatAreSwitchedOn) {
    StartWithSample();
    EXPECT_EQ(Rules().Checks(), (std::vector<bool>{true, false, true, false, true, false}));
}

TEST_F(RuleList, LeavesOutRulesWithoutOperationAndKeepsTheRealNumbers) {
    WriteCatalogue({L"CS one"});
    WriteProfile(L"alpha", {L"CS one"});
    WriteRule(L"alpha", 0, PlainRule(L"ENCR", L"first"));
    WriteRule(L"alpha", 1, PlainRule(L"", L"without"));
    WriteRule(L"alpha", 2, PlainRule(L"DECR", L"third"));
    WriteRule(L"alpha", 3, PlainRule(L"XXXX", L"unknown"));
    Start();
    EXPECT_EQ(Rules().Column(kNumberColumn), (Texts{L"1", L"3", L"4"}));
    EXPECT_EQ(Rules().Column(kOperationColumn), (Texts{L"Encrypt", L"Decrypt", L"XXXX"}));
}

TEST_F(Search, ListsTheRulesWhoseDescriptionContainsTheText) {
    StartWithSample();
    Control(IDC_SEARCH_EDIT).SetText(L"ORDERS");
    EXPECT_EQ(ShownRules(), (Texts{L"Encrypt orders", L"Delete orders"}));
    EXPECT_EQ(Rules().Column(kNumberColumn), (Texts{L"1", L"6"}));
    Control(IDC_SEARCH_EDIT).SetText(L"");
    EXPECT_EQ(ShownRules(), SampleDescriptions());
    ExpectNothingToSave();
}

TEST_F(Search, IgnoresTheCaseOfCyrillicToo) {
    StartWithSample();
    Control(IDC_SEARCH_EDIT).SetText(L"\u041F\u0420\u0418\u041A\u0410\u0417");
    EXPECT_EQ(ShownRules(), Texts{SampleDescriptions()[kResign]});
}

TEST_F(Search, FollowsEachCharacterTyped) {
    StartWithSample();
    Control(IDC_SEARCH_EDIT).Type(L"o");
    EXPECT_EQ(ShownRules(), (Texts{L"Encrypt orders", L"Move invoices", L"Run tool", L"Delete orders"}));
    Control(IDC_SEARCH_EDIT).Type(L"o");
    EXPECT_EQ(ShownRules(), Texts{L"Run tool"});
    Control(IDC_SEARCH_EDIT).Type(L"x");
    EXPECT_EQ(Rules().RowCount(), 0);
}

// A command would otherwise work on a rule that nobody has selected in the list that is shown.
TEST_F(Search, LeavesNoRowSelected) {
    StartWithSample();
    Rules().Select({kEncrypt, kDelete});
    Control(IDC_SEARCH_EDIT).SetText(L"orders");
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{});
    Press(IDC_DELETE_RULE_BUTTON);
    ExpectNoDialog();
    Rules().Select({1});
    Control(IDC_SEARCH_EDIT).SetText(L"");
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{});
    ExpectNothingToSave();
}

TEST_F(Search, TheDeleteKeyInItsFieldDeletesACharacterAndNoRule) {
    StartWithSample();
    Control(IDC_SEARCH_EDIT).SetText(L"o");
    Rules().Select({0});
    Control(IDC_SEARCH_EDIT).PostLeftClick({4, 4});
    Control(IDC_SEARCH_EDIT).WaitForFocus();
    Control(IDC_SEARCH_EDIT).Send(EM_SETSEL, 0, 0);
    Control(IDC_SEARCH_EDIT).PostKey(VK_DELETE);
    Control(IDC_SEARCH_EDIT).WaitForText(L"");
    ExpectNoDialog();
    EXPECT_EQ(ShownRules(), SampleDescriptions());
    ExpectNothingToSave();
}

TEST_F(Search, LooksAtTheDescriptionOnly) {
    StartWithSample();
    Control(IDC_SEARCH_EDIT).SetText(L"*.xml");
    EXPECT_EQ(Rules().RowCount(), 0);
}

TEST_F(Search, HoldsForTheProfileThatIsOpenedNext) {
    StartWithSample();
    Control(IDC_SEARCH_EDIT).SetText(L"hash");
    OpenProfile(L"beta");
    EXPECT_EQ(ShownRules(), Texts{L"Hash reports"});
}

TEST_F(CheckBoxes, AClickOnTheBoxSwitchesTheRule) {
    StartWithSample();
    Rules().PostLeftClick(Rules().CheckBoxCentre(kMove));
    Settle();
    EXPECT_EQ(Rules().Checks(), (std::vector<bool>{true, true, true, false, true, false}));
}

TEST_F(CheckBoxes, AreCopiedIntoTheRulesWhenTheListLosesTheFocus) {
    StartWithSample();
    EnterRuleList(kEncrypt);
    Rules().SetChecked(kEncrypt, false);
    Rules().SetChecked(kMove, true);
    LeaveRuleList();
    SaveAndLeave();
    EXPECT_EQ(StoredSwitches(L"alpha"), (std::vector<std::uint32_t>{0, 1, 1, 0, 1, 0}));
    EXPECT_EQ(StoredSwitches(L"beta"), (std::vector<std::uint32_t>{1, 0}));
}

TEST_F(CheckBoxes, AChangeNoticedWhenTheListLosesTheFocusHasToBeSaved) {
    StartWithSample();
    EnterRuleList(kEncrypt);
    Rules().SetChecked(kEncrypt, false);
    LeaveRuleList();
    ExpectUnsavedChanges();
}

TEST_F(CheckBoxes, NothingIsToBeSavedWhenTheyAreAsBefore) {
    StartWithSample();
    EnterRuleList(kEncrypt);
    Rules().SetChecked(kEncrypt, false);
    Rules().SetChecked(kEncrypt, true);
    LeaveRuleList();
    ExpectNothingToSave();
}

// Deliberate: rows stand for rules by position, and a row that does not exist counts as checked.
TEST_F(CheckBoxes, UnderAFilterGoToTheFirstRulesAndSwitchTheOthersOn) {
    StartWithSample();
    Control(IDC_SEARCH_EDIT).SetText(L"orders");
    ASSERT_EQ(Rules().RowCount(), 2);
    EXPECT_EQ(Rules().Checks(), (std::vector<bool>{true, false}));
    Rules().SetChecked(0, false);
    Rules().SetChecked(1, true);
    EnterRuleList(0);
    LeaveRuleList();
    SaveAndLeave();
    EXPECT_EQ(StoredSwitches(L"alpha"), (std::vector<std::uint32_t>{0, 1, 1, 1, 1, 1}));
}

TEST_F(CheckBoxes, UnderAFilterThatShowsAllAsTheyAreStillSwitchOthersOn) {
    StartWithSample();
    Control(IDC_SEARCH_EDIT).SetText(L"orders");
    EnterRuleList(0);
    LeaveRuleList();
    ExpectUnsavedChanges();
}

}  // namespace
}  // namespace corvane::test
