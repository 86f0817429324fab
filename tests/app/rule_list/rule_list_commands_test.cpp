#include "tests/kit/fixtures/editor_fixture.h"

namespace corvane::test {
namespace {

/// Each command has a button and a menu item; both must do the same.
enum class Route { kButton, kMenu };

class RuleCommands : public EditorTest, public ::testing::WithParamInterface<Route> {
  protected:
    void Run(int buttonId, int menuId) const {
        Post(buttonId, menuId);
        Settle();
    }
    void Post(int buttonId, int menuId) const {
        if (GetParam() == Route::kButton) {
            Control(buttonId).PostClick();
        } else {
            Main().PostMenuCommand(menuId);
        }
    }
    /// The sample's rules in another order.
    static Texts Descriptions(const std::vector<int>& order) {
        const Texts all = SampleDescriptions();
        Texts texts;
        for (const int rule : order) {
            texts.push_back(all[static_cast<std::size_t>(rule)]);
        }
        return texts;
    }
    void ExpectOrder(const std::vector<int>& order) const { EXPECT_EQ(ShownRules(), Descriptions(order)); }
    void ExpectSelected(int row) const {
        EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{row});
        Rules().WaitForFocus();
    }
};

INSTANTIATE_TEST_SUITE_P(By, RuleCommands, ::testing::Values(Route::kButton, Route::kMenu),
                         [](const auto& parameter) {
                             return parameter.param == Route::kButton ? "Button" : "Menu";
                         });

TEST_P(RuleCommands, MakeFirstMovesTheRuleToTheTop) {
    StartWithSample();
    Rules().Select({kPack});
    Run(IDC_MAKE_FIRST_BUTTON, IDM_MAKE_FIRST);
    ExpectOrder({kPack, kEncrypt, kMove, kResign, kExecute, kDelete});
    EXPECT_EQ(Rules().Column(kNumberColumn), (Texts{L"1", L"2", L"3", L"4", L"5", L"6"}));
    ExpectSelected(0);
    ExpectUnsavedChanges();
}

TEST_P(RuleCommands, MakeFirstOfTheFirstRuleStillHasToBeSaved) {
    StartWithSample();
    Rules().Select({0});
    Run(IDC_MAKE_FIRST_BUTTON, IDM_MAKE_FIRST);
    ExpectOrder({kEncrypt, kMove, kResign, kPack, kExecute, kDelete});
    ExpectUnsavedChanges();
}

TEST_P(RuleCommands, MoveUpExchangesWithTheRuleAbove) {
    StartWithSample();
    Rules().Select({kResign});
    Run(IDC_MOVE_UP_BUTTON, IDM_MOVE_UP);
    ExpectOrder({kEncrypt, kResign, kMove, kPack, kExecute, kDelete});
    ExpectSelected(1);
    ExpectUnsavedChanges();
}

TEST_P(RuleCommands, MoveUpOfTheFirstRuleKeepsTheOrderAndStillHasToBeSaved) {
    StartWithSample();
    Rules().Select({0});
    Run(IDC_MOVE_UP_BUTTON, IDM_MOVE_UP);
    ExpectOrder({kEncrypt, kMove, kResign, kPack, kExecute, kDelete});
    ExpectSelected(0);
    ExpectUnsavedChanges();
}

TEST_P(RuleCommands, MoveDownExchangesWithTheRuleBelow) {
    StartWithSample();
    Rules().Select({kEncrypt});
    Run(IDC_MOVE_DOWN_BUTTON, IDM_MOVE_DOWN);
    ExpectOrder({kMove, kEncrypt, kResign, kPack, kExecute, kDelete});
    ExpectSelected(1);
    ExpectUnsavedChanges();
}

TEST_P(RuleCommands, MoveDownOfTheLastRuleDoesNothingAtAll) {
    StartWithSample();
    Rules().Select({kDelete});
    Run(IDC_MOVE_DOWN_BUTTON, IDM_MOVE_DOWN);
    ExpectOrder({kEncrypt, kMove, kResign, kPack, kExecute, kDelete});
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{kDelete});
    ExpectNothingToSave();
}

TEST_P(RuleCommands, MakeLastMovesTheRuleToTheEndAndShowsIt) {
    StartWithSample();
    Rules().Select({kMove});
    Run(IDC_MAKE_LAST_BUTTON, IDM_MAKE_LAST);
    ExpectOrder({kEncrypt, kResign, kPack, kExecute, kDelete, kMove});
    ExpectSelected(kSampleRuleCount - 1);
    EXPECT_TRUE(Rules().IsInView(kSampleRuleCount - 1));
    ExpectUnsavedChanges();
}

TEST_P(RuleCommands, OrderingTakesTheFirstOfSeveralSelectedRules) {
    StartWithSample();
    Rules().Select({kResign, kPack});
    Run(IDC_MOVE_UP_BUTTON, IDM_MOVE_UP);
    ExpectOrder({kEncrypt, kResign, kMove, kPack, kExecute, kDelete});
    ExpectSelected(1);
}

TEST_P(RuleCommands, OrderingWithoutASelectionDoesNothing) {
    StartWithSample();
    Run(IDC_MAKE_FIRST_BUTTON, IDM_MAKE_FIRST);
    Run(IDC_MOVE_UP_BUTTON, IDM_MOVE_UP);
    Run(IDC_MOVE_DOWN_BUTTON, IDM_MOVE_DOWN);
    Run(IDC_MAKE_LAST_BUTTON, IDM_MAKE_LAST);
    ExpectOrder({kEncrypt, kMove, kResign, kPack, kExecute, kDelete});
    ExpectNoDialog();
    ExpectNothingToSave();
}

TEST_P(RuleCommands, TheNewOrderIsWhatIsSaved) {
    StartWithSample();
    Rules().Select({kEncrypt});
    Run(IDC_MAKE_LAST_BUTTON, IDM_MAKE_LAST);
    Run(IDC_SAVE_ICON_BUTTON, IDM_SAVE);
    ExpectNothingToSave();
    EXPECT_EQ(StoredRuleTexts(L"alpha", L"Operation"),
              (Texts{L"MOVE", L"RESG", L"PACK", L"EXEC", L"DELE", L"ENCR"}));
    EXPECT_EQ(StoredSwitches(L"alpha"), (std::vector<std::uint32_t>{0, 1, 0, 1, 0, 1}));
}

TEST_P(RuleCommands, CopyPutsACopyBelowTheRule) {
    StartWithSample();
    Rules().Select({kResign});
    Run(IDC_COPY_RULE_BUTTON, IDM_COPY_RULE);
    ExpectOrder({kEncrypt, kMove, kResign, kResign, kPack, kExecute, kDelete});
    EXPECT_EQ(Rules().Cell(3, kExtraColumn), Rules().Cell(2, kExtraColumn));
    ExpectSelected(3);
    EXPECT_TRUE(Rules().IsInView(3));
    ExpectUnsavedChanges();
}

TEST_P(RuleCommands, CopyWithoutASelectionDoesNothing) {
    StartWithSample();
    Run(IDC_COPY_RULE_BUTTON, IDM_COPY_RULE);
    EXPECT_EQ(ShownRules(), SampleDescriptions());
    ExpectNothingToSave();
}

TEST_P(RuleCommands, ACopiedRuleIsSavedWithEverythingItCarries) {
    StartWithSample();
    Rules().Select({kResign});
    Run(IDC_COPY_RULE_BUTTON, IDM_COPY_RULE);
    SaveAndLeave();
    EXPECT_EQ(ReadRegistryTree(RuleKey(L"alpha", kResign)), ReadRegistryTree(RuleKey(L"alpha", kResign + 1)));
}

TEST_P(RuleCommands, DeleteRemovesExactlyTheSelectedRules) {
    StartWithSample();
    Rules().Select({kMove, kPack, kExecute});
    Post(IDC_DELETE_RULE_BUTTON, IDM_DELETE_RULE);
    ExpectBox(L"Delete 3 rule(s)?", kConfirmation, IDYES);
    Settle();
    ExpectOrder({kEncrypt, kResign, kDelete});
    ExpectUnsavedChanges();
}

TEST_P(RuleCommands, DeleteAnsweredWithNoKeepsTheRules) {
    StartWithSample();
    Rules().Select({kMove});
    Post(IDC_DELETE_RULE_BUTTON, IDM_DELETE_RULE);
    ExpectBox(L"Delete 1 rule(s)?", kConfirmation, IDNO);
    Settle();
    EXPECT_EQ(ShownRules(), SampleDescriptions());
    EXPECT_EQ(Rules().SelectedRows(), std::vector<int>{kMove});
    ExpectNothingToSave();
}

TEST_P(RuleCommands, DeleteWithoutASelectionAsksNothing) {
    StartWithSample();
    Run(IDC_DELETE_RULE_BUTTON, IDM_DELETE_RULE);
    ExpectNoDialog();
    ExpectNothingToSave();
}

// Deliberate: under a filter the commands take the row's position for the rule's.
TEST_P(RuleCommands, UnderAFilterDeleteTakesTheRuleAtTheRowsPosition) {
    StartWithSample();
    Control(IDC_SEARCH_EDIT).SetText(L"orders");
    Rules().Select({1});
    Post(IDC_DELETE_RULE_BUTTON, IDM_DELETE_RULE);
    ExpectBox(L"Delete 1 rule(s)?", kConfirmation, IDYES);
    Settle();
    Control(IDC_SEARCH_EDIT).SetText(L"");
    const Texts shown = ShownRules();
    EXPECT_EQ(shown, Descriptions({kEncrypt, kResign, kPack, kExecute, kDelete}));
}

class RuleKeys : public EditorTest {};

TEST_F(RuleKeys, TheDeleteKeyDeletesTheSelectedRules) {
    StartWithSample();
    Rules().Select({kEncrypt, kDelete});
    Rules().PostKey(VK_DELETE);
    ExpectBox(L"Delete 2 rule(s)?", kConfirmation, IDYES);
    Settle();
    EXPECT_EQ(Rules().RowCount(), 4);
    ExpectUnsavedChanges();
}

TEST_F(RuleKeys, OtherKeysDeleteNothing) {
    StartWithSample();
    Rules().Select({kEncrypt});
    Rules().PostKey(VK_BACK);
    Rules().PostKey(VK_INSERT);
    ExpectNoDialog();
    EXPECT_EQ(ShownRules(), SampleDescriptions());
}

}  // namespace
}  // namespace corvane::test
