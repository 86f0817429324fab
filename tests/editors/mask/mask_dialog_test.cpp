// The masks of a rule: the list of the rule editor with its commands, and the dialog that asks for one.

#include <windows.h>

#include <commctrl.h>

#include "tests/kit/fixtures/rule_editor_fixture.h"

namespace corvane::test {
namespace {

class MaskTest : public RuleEditorTest {
  protected:
    /// Opens a rule with these masks.
    [[nodiscard]] Window OpenWith(const Texts& masks) {
        StoredRule rule = FullRule(L"HASH");
        rule.masks = masks;
        return StartAndOpen(rule);
    }
    [[nodiscard]] Window OpenMaskDialog(const Window& dialog, int buttonId) const {
        dialog.Control(buttonId).PostClick();
        return Editor().WaitForDialog(dialog);
    }
    void CloseMaskDialog(const Window& dialog, const Window& mask, int buttonId) const {
        mask.Control(buttonId).PostClick();
        mask.WaitUntilGone();
        WaitForEditor(dialog);
    }
    static void ExpectMasks(const Window& dialog, const Texts& masks) {
        EXPECT_EQ(Masks(dialog).Column(0), masks);
    }
    static int ListWidth(const Window& dialog) { return static_cast<int>(Masks(dialog).ClientSize().cx); }
};

class RuleMasks : public MaskTest {};
class MaskDialog : public MaskTest {};

TEST_F(RuleMasks, AddAppendsAMaskAlsoASecondTime) {
    const Window dialog = OpenWith({L"*.a"});
    AddMaskByDialog(dialog, L"*.b");
    AddMaskByDialog(dialog, L"*.b");
    ExpectMasks(dialog, {L"*.a", L"*.b", L"*.b"});
    Close(dialog, IDOK);
    EXPECT_EQ(Rules().Cell(0, kMasksColumn), L"3");
}

TEST_F(RuleMasks, EditReplacesTheFirstSelectedMask) {
    const Window dialog = OpenWith({L"*.a", L"*.b", L"*.c", L"*.d"});
    Masks(dialog).Select({1, 2, 3});
    const Window mask = OpenMaskDialog(dialog, IDC_RULE_EDIT_MASK_BUTTON);
    EXPECT_EQ(mask.Control(IDC_MASK_COMBO).Text(), L"*.b");
    mask.Control(IDC_MASK_COMBO).SetText(L"*.new");
    CloseMaskDialog(dialog, mask, IDOK);
    ExpectMasks(dialog, {L"*.a", L"*.new", L"*.c", L"*.d"});
    EXPECT_EQ(Masks(dialog).SelectedRows(), (std::vector<int>{1, 2, 3}));
    Close(dialog, IDCANCEL);
}

TEST_F(RuleMasks, EditGivenUpChangesNothing) {
    const Window dialog = OpenWith({L"*.a", L"*.b"});
    Masks(dialog).Select({1});
    const Window mask = OpenMaskDialog(dialog, IDC_RULE_EDIT_MASK_BUTTON);
    mask.Control(IDC_MASK_COMBO).SetText(L"*.new");
    CloseMaskDialog(dialog, mask, IDCANCEL);
    ExpectMasks(dialog, {L"*.a", L"*.b"});
    Close(dialog, IDCANCEL);
}

TEST_F(RuleMasks, EditAndDeleteWithoutASelectionDoNothing) {
    const Window dialog = OpenWith({L"*.a"});
    dialog.Control(IDC_RULE_EDIT_MASK_BUTTON).Click();
    dialog.Control(IDC_RULE_DELETE_MASK_BUTTON).Click();
    EXPECT_TRUE(dialog.IsEnabled());
    ExpectMasks(dialog, {L"*.a"});
    Close(dialog, IDCANCEL);
}

TEST_F(RuleMasks, ADoubleClickEditsTheMask) {
    const Window dialog = OpenWith({L"*.a", L"*.b"});
    Masks(dialog).PostLeftDoubleClick(Masks(dialog).CellCentre(1, 0));
    const Window mask = Editor().WaitForDialog(dialog);
    EXPECT_EQ(mask.Control(IDC_MASK_COMBO).Text(), L"*.b");
    mask.Control(IDC_MASK_COMBO).SetText(L"*.x");
    CloseMaskDialog(dialog, mask, IDOK);
    ExpectMasks(dialog, {L"*.a", L"*.x"});
    Close(dialog, IDCANCEL);
}

TEST_F(RuleMasks, AClickBesideTheMasksOpensNothing) {
    const Window dialog = OpenWith({L"*.a"});
    const POINT beside = Masks(dialog).PointBelowRows();
    Masks(dialog).Select({0});
    // Only the second half of a double click, which leaves the selection.
    Masks(dialog).Post(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(beside.x, beside.y));
    Masks(dialog).Post(WM_LBUTTONUP, 0, MAKELPARAM(beside.x, beside.y));
    SettleEditor(dialog);
    EXPECT_TRUE(dialog.IsEnabled());
    EXPECT_EQ(Masks(dialog).SelectedRows(), std::vector<int>{0});
    Masks(dialog).PostLeftDoubleClick(beside);
    Masks(dialog).PostRightClick(Masks(dialog).PointBelowRows());
    SettleEditor(dialog);
    EXPECT_TRUE(dialog.IsEnabled());
    Close(dialog, IDCANCEL);
}

TEST_F(RuleMasks, ARightClickShowsTheWholeMask) {
    const std::wstring longMask = std::wstring(300, L'x') + L"*.b";
    const Window dialog = OpenWith({L"*.a", longMask});
    Masks(dialog).PostRightClick(Masks(dialog).CellCentre(1, 0));
    AnswerBox(dialog, longMask, kInformation, IDOK, L"Mask");
    WaitForEditor(dialog);
    Close(dialog, IDCANCEL);
}

TEST_F(RuleMasks, DeleteAsksAndRemovesExactlyTheSelectedMasks) {
    const Window dialog = OpenWith({L"*.a", L"*.b", L"*.c", L"*.d"});
    Masks(dialog).Select({0, 2});
    dialog.Control(IDC_RULE_DELETE_MASK_BUTTON).PostClick();
    AnswerBox(dialog, L"Delete 2 mask(s)?", kConfirmation, IDNO);
    WaitForEditor(dialog);
    ExpectMasks(dialog, {L"*.a", L"*.b", L"*.c", L"*.d"});
    EXPECT_EQ(Masks(dialog).SelectedRows(), (std::vector<int>{0, 2}));
    dialog.Control(IDC_RULE_DELETE_MASK_BUTTON).PostClick();
    AnswerBox(dialog, L"Delete 2 mask(s)?", kConfirmation, IDYES);
    WaitForEditor(dialog);
    ExpectMasks(dialog, {L"*.b", L"*.d"});
    EXPECT_EQ(Masks(dialog).SelectedRows(), std::vector<int>{});
    EXPECT_EQ(Masks(dialog).FocusedRow(), 0);
    Close(dialog, IDOK);
    EXPECT_EQ(Rules().Cell(0, kMasksColumn), L"2");
}

TEST_F(RuleMasks, TheDeleteKeyDeletesLikeTheButton) {
    const Window dialog = OpenWith({L"*.a", L"*.b"});
    Masks(dialog).Select({1});
    Masks(dialog).PostKey(VK_DELETE);
    AnswerBox(dialog, L"Delete 1 mask(s)?", kConfirmation, IDYES);
    WaitForEditor(dialog);
    ExpectMasks(dialog, {L"*.a"});
    Close(dialog, IDCANCEL);
}

TEST_F(RuleMasks, AfterTheLastMaskIsDeletedOkMissesIt) {
    const Window dialog = OpenWith({L"*.a"});
    Masks(dialog).Select({0});
    dialog.Control(IDC_RULE_DELETE_MASK_BUTTON).PostClick();
    AnswerBox(dialog, L"Delete 1 mask(s)?", kConfirmation, IDYES);
    WaitForEditor(dialog);
    ExpectRefusal(dialog, L"No Mask selected.", kRefusal, IDC_RULE_ADD_MASK_BUTTON);
    Close(dialog, IDCANCEL);
}

TEST_F(RuleMasks, TheColumnLeavesRoomForAScrollBarUntilTheFirstChange) {
    const Window dialog = OpenWith({L"*.a"});
    EXPECT_EQ(Masks(dialog).ColumnWidth(0), ListWidth(dialog) - GetSystemMetrics(SM_CXVSCROLL));
    AddMaskByDialog(dialog, L"*.b");
    EXPECT_EQ(Masks(dialog).ColumnWidth(0), ListWidth(dialog));
    Close(dialog, IDCANCEL);
}

TEST_F(RuleMasks, AMaskAddedBelowTheVisibleOnesIsScrolledToAndTheColumnFits) {
    const Window dialog = OpenWith(Texts(60, L"*.a"));
    AddMaskByDialog(dialog, L"*.last");
    EXPECT_EQ(Masks(dialog).RowCount(), 61);
    EXPECT_TRUE(Masks(dialog).IsInView(60));
    EXPECT_EQ(Masks(dialog).ColumnWidth(0), ListWidth(dialog));
    EXPECT_EQ(Masks(dialog).Style() & WS_HSCROLL, 0U);
    Close(dialog, IDCANCEL);
}

TEST_F(RuleMasks, AChangeKeepsTheScrollPosition) {
    const Window dialog = OpenWith(Texts(60, L"*.a"));
    Masks(dialog).Send(LVM_ENSUREVISIBLE, 59, FALSE);
    Masks(dialog).Select({50});
    const int top = Masks(dialog).TopRow();
    ASSERT_GT(top, 0);
    ASSERT_LT(top, 50);
    const Window mask = OpenMaskDialog(dialog, IDC_RULE_EDIT_MASK_BUTTON);
    mask.Control(IDC_MASK_COMBO).SetText(L"*.new");
    CloseMaskDialog(dialog, mask, IDOK);
    EXPECT_EQ(Masks(dialog).TopRow(), top);
    EXPECT_EQ(Masks(dialog).SelectedRows(), std::vector<int>{50});
    EXPECT_EQ(Masks(dialog).FocusedRow(), 50);
    Close(dialog, IDCANCEL);
}

TEST_F(RuleMasks, MasksSurviveAChangeOfOperation) {
    const Window dialog = OpenWith({L"*.a"});
    AddMaskByDialog(dialog, L"*.b");
    SelectOperation(dialog, L"PACK");
    ExpectMasks(dialog, {L"*.a", L"*.b"});
    Close(dialog, IDCANCEL);
}

TEST_F(MaskDialog, ShowsItsTextsAndNoMaskToBeginWith) {
    const Window dialog = OpenWith({L"*.a"});
    const Window mask = OpenMaskDialog(dialog, IDC_RULE_ADD_MASK_BUTTON);
    EXPECT_EQ(mask.Text(), L"Mask");
    EXPECT_EQ(mask.Control(IDCANCEL).Text(), L"Exit");
    EXPECT_EQ(mask.Control(IDOK).Text(), L"OK");
    EXPECT_EQ(mask.Control(IDC_MASK_COMBO).Text(), L"");
    EXPECT_EQ(mask.Control(IDC_MASK_COMBO).Style() & CBS_DROPDOWNLIST, static_cast<DWORD>(CBS_DROPDOWN));
    EXPECT_EQ(LOWORD(mask.Send(DM_GETDEFID)), IDOK);
    CloseMaskDialog(dialog, mask, IDCANCEL);
    Close(dialog, IDCANCEL);
}

TEST_F(MaskDialog, SuggestsTheMasksOfTheRulesAndThenTheExtensions) {
    WriteCatalogue({L"CS one"});
    WriteProfile(L"alpha", {L"CS one"});
    StoredRule first = FullRule(L"HASH");
    first.masks = {L"*.b", L"*.a"};
    StoredRule second = FullRule(L"HASH");
    second.masks = {L"*.A", L"*.b", L"*.x2"};
    WriteRule(L"alpha", 0, first);
    WriteRule(L"alpha", 1, second);
    const std::vector<std::pair<std::wstring, std::wstring>> extensions = {
        {L"SigExt", L"x1"}, {L"DsigExt", L"x2"}, {L"EncExt", L"x3"},
        {L"B64Ext", L"x4"}, {L"HashExt", L"x5"}, {L"VerifyFileExt", L"x6"}};
    for (const auto& [name, extension] : extensions) {
        WriteRegistryValue(kProgramKey, name, extension);
    }
    WriteRegistryValue(kProgramKey, L"ExtExt", Texts{L"x7", L"x8"});
    Start();
    const Texts expected = {L"*.a",  L"*.A",  L"*.b",  L"*.x2", L"*.x1", L"*.x3",
                            L"*.x4", L"*.x5", L"*.x6", L"*.x7", L"*.x8"};
    Window dialog = OpenStored();
    Window mask = OpenMaskDialog(dialog, IDC_RULE_ADD_MASK_BUTTON);
    EXPECT_EQ(Entries(mask.Control(IDC_MASK_COMBO)), expected);
    CloseMaskDialog(dialog, mask, IDCANCEL);
    Masks(dialog).Select({0});
    mask = OpenMaskDialog(dialog, IDC_RULE_EDIT_MASK_BUTTON);
    EXPECT_EQ(Entries(mask.Control(IDC_MASK_COMBO)), expected);
    CloseMaskDialog(dialog, mask, IDCANCEL);
    Close(dialog, IDCANCEL);
    dialog = OpenNew();
    mask = OpenMaskDialog(dialog, IDC_RULE_ADD_MASK_BUTTON);
    EXPECT_EQ(Entries(mask.Control(IDC_MASK_COMBO)), expected);
    CloseMaskDialog(dialog, mask, IDCANCEL);
    Close(dialog, IDCANCEL);
}

TEST_F(MaskDialog, ASuggestionCanBePicked) {
    const Window dialog = OpenWith({L"*.a", L"*.b"});
    const Window mask = OpenMaskDialog(dialog, IDC_RULE_ADD_MASK_BUTTON);
    const Window combo = mask.Control(IDC_MASK_COMBO);
    combo.PostKey(VK_DOWN);
    combo.PostKey(VK_DOWN);
    combo.WaitForText(L"*.b");
    CloseMaskDialog(dialog, mask, IDOK);
    ExpectMasks(dialog, {L"*.a", L"*.b", L"*.b"});
    Close(dialog, IDCANCEL);
}

TEST_F(MaskDialog, NoTextIsRefused) {
    const Window dialog = OpenWith({L"*.a"});
    const Window mask = OpenMaskDialog(dialog, IDC_RULE_ADD_MASK_BUTTON);
    mask.Control(IDOK).PostClick();
    ExpectMessageBox(mask, L"No Mask selected.", kRefusal, IDOK);
    mask.WaitUntilEnabled();
    // The part of the combo box that is typed into.
    Window(GetWindow(mask.Control(IDC_MASK_COMBO).Handle(), GW_CHILD)).WaitForFocus();
    EXPECT_TRUE(mask.IsVisible());
    CloseMaskDialog(dialog, mask, IDCANCEL);
    ExpectMasks(dialog, {L"*.a"});
    Close(dialog, IDCANCEL);
}

TEST_F(MaskDialog, BlanksAreAMaskLikeAnyOther) {
    const Window dialog = OpenWith({L"*.a"});
    AddMaskByDialog(dialog, L"  ");
    AddMaskByDialog(dialog, L" *.b & *.c ");
    ExpectMasks(dialog, {L"*.a", L"  ", L" *.b & *.c "});
    Close(dialog, IDCANCEL);
}

TEST_F(MaskDialog, EscapeGivesUpAndEnterConfirms) {
    const Window dialog = OpenWith({L"*.a"});
    Window mask = OpenMaskDialog(dialog, IDC_RULE_ADD_MASK_BUTTON);
    mask.Control(IDC_MASK_COMBO).SetText(L"*.b");
    mask.FocusOfThread().PostKey(VK_ESCAPE);
    mask.WaitUntilGone();
    WaitForEditor(dialog);
    ExpectMasks(dialog, {L"*.a"});
    mask = OpenMaskDialog(dialog, IDC_RULE_ADD_MASK_BUTTON);
    mask.Control(IDC_MASK_COMBO).SetText(L"*.b");
    mask.FocusOfThread().PostKey(VK_RETURN);
    mask.WaitUntilGone();
    WaitForEditor(dialog);
    ExpectMasks(dialog, {L"*.a", L"*.b"});
    Close(dialog, IDCANCEL);
}

}  // namespace
}  // namespace corvane::test
