#include <algorithm>

#include "tests/kit/driver/icon.h"
#include "tests/kit/fixtures/session_fixture.h"

namespace corvane::test {
namespace {

const store::SignerGroup kDirectors = {L"Directors", {L"CN=Anna,C=GB", L"CN=Boris,O=\"A, B\",C=RU"}};
const store::SignerGroup kClerks = {L"Clerks", {L"CN=Clara,C=GB"}};
const store::SignerGroup kAuditors = {L"Auditors", {L"CN=Dora,C=GB"}};

class SignerListsTest : public SessionTest {
  protected:
    SignerListsTest() {
        CheckNothing();
        setup.dialog = HostSetup::Dialog::kSignerLists;
        setup.lists = {kDirectors, kClerks, kAuditors};
        for (const store::SignerGroup& list : setup.lists) {
            for (const std::wstring& signer : list.signers) {
                script.CertificateFor(ToCodePage(signer), ToCodePage(signer), 0);
            }
        }
        script.CertificateFor("CN=Emma,C=GB", "CN=Emma,C=GB", 0);
        // What the local store has.
        script.Certificate(LibraryScriptWriter::kEvery, "CN=Emma,C=GB", 0);
    }

    void Open() {
        StartHost();
        dialog_ = OpenDialog();
    }

    [[nodiscard]] const Window& Dialog() const { return dialog_; }
    [[nodiscard]] ListView List() const { return ListView(dialog_.Control(IDC_SIGNER_LISTS_LIST)); }
    [[nodiscard]] Window Button(int id) const { return dialog_.Control(id); }
    [[nodiscard]] std::vector<Texts> Rows() const {
        std::vector<Texts> rows;
        for (int row = 0; row < List().RowCount(); ++row) {
            rows.push_back(List().Row(row));
        }
        return rows;
    }

    void Select(const std::vector<int>& rows) const {
        List().Select(rows);
        Settle(dialog_);
    }
    /// Presses a button that shows the selection dialog.
    [[nodiscard]] Window PressForSelection(int button) const {
        Button(button).PostClick();
        return WaitForDialogOf(dialog_);
    }
    /// Waits until the dialog is back from the one that it showed, and has done what follows.
    void WaitForDialogBack() const {
        dialog_.WaitUntilEnabled();
        Settle(dialog_);
    }
    /// Answers the question of "Delete".
    void ExpectDeleteQuestion(int count, int answer) const {
        ExpectMessageBox(dialog_, L"Delete " + std::to_wstring(count) + L" list(s)?", kBoxQuestion, answer);
        WaitForDialogBack();
    }
    /// Chooses Emma in the selection dialog.
    void ChooseEmma(const Window& selection) const {
        selection.Control(IDC_SELECTION_FROM_STORE_BUTTON).Click();
        const ListView found(selection.Control(IDC_SELECTION_FOUND_LIST));
        found.WaitForRowCount(1);
        selection.Control(IDC_SELECTION_SELECT_ALL_BUTTON).Click();
        selection.Control(IDC_SELECTION_ADD_BUTTON).Click();
    }

  private:
    Window dialog_;
};

TEST_F(SignerListsTest, ShowsTheListsWithTheirSigners) {
    Open();
    EXPECT_EQ(Utf8(Dialog().Text()), "Signer lists");
    EXPECT_EQ(List().Headings(), (Texts{L"List name", L"Signers"}));
    EXPECT_EQ(Rows(), (std::vector<Texts>{{L"Directors", L"CN=Anna,C=GB; CN=Boris,O=\"A, B\",C=RU"},
                                          {L"Clerks", L"CN=Clara,C=GB"},
                                          {L"Auditors", L"CN=Dora,C=GB"}}));
    EXPECT_EQ(Utf8(Button(IDC_SIGNER_LISTS_ADD_BUTTON).Text()), "Add");
    EXPECT_EQ(Utf8(Button(IDC_SIGNER_LISTS_EDIT_BUTTON).Text()), "Edit");
    EXPECT_EQ(Utf8(Button(IDC_SIGNER_LISTS_DELETE_BUTTON).Text()), "Delete");
    EXPECT_EQ(Utf8(Button(IDCANCEL).Text()), "Exit");
    EXPECT_TRUE(List().SelectedRows().empty());
    List().WaitForFocus();
    EXPECT_TRUE(Calls().empty()) << "no cryptocontext is needed to look at the lists";
}

TEST_F(SignerListsTest, GivesTheListsBackUnchangedOnOk) {
    Open();
    EXPECT_EQ(Leave(Dialog(), IDOK), HostResult(1, setup.lists));
}

TEST_F(SignerListsTest, OffersEditAndDeleteForASelectionOnly) {
    Open();
    EXPECT_FALSE(Button(IDC_SIGNER_LISTS_EDIT_BUTTON).IsEnabled());
    EXPECT_FALSE(Button(IDC_SIGNER_LISTS_DELETE_BUTTON).IsEnabled());
    Select({1});
    EXPECT_TRUE(Button(IDC_SIGNER_LISTS_EDIT_BUTTON).IsEnabled());
    EXPECT_TRUE(Button(IDC_SIGNER_LISTS_DELETE_BUTTON).IsEnabled());
    Select({});
    EXPECT_FALSE(Button(IDC_SIGNER_LISTS_EDIT_BUTTON).IsEnabled());
    EXPECT_FALSE(Button(IDC_SIGNER_LISTS_DELETE_BUTTON).IsEnabled());
}

TEST_F(SignerListsTest, DoesNothingWithoutASelection) {
    Open();
    for (const int command : {IDC_SIGNER_LISTS_EDIT_BUTTON, IDC_SIGNER_LISTS_DELETE_BUTTON}) {
        Dialog().Post(WM_COMMAND, MAKEWPARAM(command, BN_CLICKED),
                      reinterpret_cast<LPARAM>(Button(command).Handle()));
        Settle(Dialog());
        EXPECT_TRUE(Dialog().IsEnabled());
    }
    List().PostKey(VK_DELETE);
    List().PostLeftDoubleClick(List().PointBelowRows());
    List().PostRightClick(List().PointBelowRows());
    Settle(Dialog());
    EXPECT_TRUE(Dialog().IsEnabled());
    EXPECT_TRUE(Calls().empty());
    EXPECT_EQ(Leave(Dialog(), IDOK), HostResult(1, setup.lists));
}

TEST_F(SignerListsTest, AddsAList) {
    Open();
    Select({1});
    const Window selection = PressForSelection(IDC_SIGNER_LISTS_ADD_BUTTON);
    EXPECT_EQ(Utf8(selection.Text()), "Add list");
    EXPECT_EQ(Utf8(selection.Control(IDC_SELECTION_LIST_NAME_EDIT).Text()), "");
    EXPECT_EQ(ListView(selection.Control(IDC_SELECTION_CHOSEN_LIST)).RowCount(), 0);
    selection.Control(IDC_SELECTION_LIST_NAME_EDIT).SetText(L"New");
    ChooseEmma(selection);
    selection.Control(IDOK).PostClick();
    WaitForDialogBack();
    EXPECT_EQ(List().RowCount(), 4);
    EXPECT_EQ(List().Row(3), (Texts{L"New", L"CN=Emma,C=GB"}));
    EXPECT_EQ(List().SelectedRows(), std::vector<int>{1}) << "the selection was lost";
    std::vector<store::SignerGroup> lists = setup.lists;
    lists.push_back({L"New", {L"CN=Emma,C=GB"}});
    EXPECT_EQ(Leave(Dialog(), IDOK), HostResult(1, lists));
    EXPECT_EQ(Calls().back(), "Uninitialize context=1 -> 0");
    ExpectNothingOut();
}

TEST_F(SignerListsTest, SearchesForSigners) {
    Open();
    const Window selection = PressForSelection(IDC_SIGNER_LISTS_ADD_BUTTON);
    ChooseEmma(selection);
    EXPECT_EQ(Calls("FindCert"),
              std::vector<std::string>{
                  "FindCert context=1 flags=100 mode=0 pattern=null fields=84 rest=zero -> 0"});
    EXPECT_EQ(ListView(selection.Control(IDC_SELECTION_CHOSEN_LIST)).RowCount(), 1)
        << "a certificate for signatures only is as good as any here";
}

TEST_F(SignerListsTest, AddsNothingOnExit) {
    Open();
    const Window selection = PressForSelection(IDC_SIGNER_LISTS_ADD_BUTTON);
    selection.Control(IDC_SELECTION_LIST_NAME_EDIT).SetText(L"New");
    ChooseEmma(selection);
    selection.Control(IDCANCEL).PostClick();
    WaitForDialogBack();
    EXPECT_EQ(List().RowCount(), 3);
    EXPECT_EQ(Leave(Dialog(), IDOK), HostResult(1, setup.lists));
}

TEST_F(SignerListsTest, RenamesAndChangesAListInItsPlace) {
    Open();
    Select({1});
    const Window selection = PressForSelection(IDC_SIGNER_LISTS_EDIT_BUTTON);
    EXPECT_EQ(Utf8(selection.Text()), "Edit list");
    EXPECT_EQ(Utf8(selection.Control(IDC_SELECTION_LIST_NAME_EDIT).Text()), "Clerks");
    EXPECT_EQ(ListView(selection.Control(IDC_SELECTION_CHOSEN_LIST)).Column(0), Texts{L"CN=Clara,C=GB"});
    selection.Control(IDC_SELECTION_LIST_NAME_EDIT).SetText(L"Clerks of today");
    ChooseEmma(selection);
    selection.Control(IDOK).PostClick();
    WaitForDialogBack();
    const store::SignerGroup changed = {L"Clerks of today", {L"CN=Clara,C=GB", L"CN=Emma,C=GB"}};
    EXPECT_EQ(List().Row(1), (Texts{L"Clerks of today", L"CN=Clara,C=GB; CN=Emma,C=GB"}));
    EXPECT_EQ(List().RowCount(), 3);
    EXPECT_EQ(List().SelectedRows(), std::vector<int>{1}) << "the selection was lost";
    EXPECT_EQ(Leave(Dialog(), IDOK),
              HostResult(1, std::vector<store::SignerGroup>{kDirectors, changed, kAuditors}));
}

TEST_F(SignerListsTest, AcceptsAListThatKeepsItsName) {
    Open();
    List().PostLeftDoubleClick(List().CellCentre(2, 1));
    const Window selection = WaitForDialogOf(Dialog());
    EXPECT_EQ(Utf8(selection.Control(IDC_SELECTION_LIST_NAME_EDIT).Text()), "Auditors");
    selection.Control(IDOK).PostClick();
    WaitForDialogBack();
    EXPECT_EQ(Leave(Dialog(), IDOK), HostResult(1, setup.lists));
}

TEST_F(SignerListsTest, RefusesTheNameOfAnotherList) {
    Open();
    Select({1});
    const Window selection = PressForSelection(IDC_SIGNER_LISTS_EDIT_BUTTON);
    selection.Control(IDC_SELECTION_LIST_NAME_EDIT).SetText(L"Auditors");
    selection.Control(IDOK).PostClick();
    ExpectMessageBox(selection, L"List with this name already exists", kBoxRefusal, IDOK);
    selection.WaitUntilEnabled();
    selection.Control(IDCANCEL).PostClick();
    WaitForDialogBack();
    EXPECT_EQ(Leave(Dialog(), IDOK), HostResult(1, setup.lists));
}

TEST_F(SignerListsTest, ExcludesTheSignersOfOtherLists) {
    script.Certificate(1, "CN=Dora,C=GB", 0);
    Open();
    const Window selection = PressForSelection(IDC_SIGNER_LISTS_ADD_BUTTON);
    selection.Control(IDC_SELECTION_FROM_STORE_BUTTON).Click();
    selection.Control(IDC_SELECTION_SELECT_ALL_BUTTON).Click();
    selection.Control(IDC_SELECTION_ADD_BUTTON).PostClick();
    ExpectWarningBox(selection, L"Warning:",
                     L"Following signers are used in other lists and had been excluded:\r\n\r\n"
                     L"Signer\r\n\"CN=Dora,C=GB\"\r\nis used in list\r\n\"Auditors\"\r\n\r\n");
    selection.WaitUntilEnabled();
    EXPECT_EQ(ListView(selection.Control(IDC_SELECTION_CHOSEN_LIST)).RowCount(), 0);
}

TEST_F(SignerListsTest, EditsTheFirstOfSeveralSelectedLists) {
    Open();
    Select({1, 2});
    const Window selection = PressForSelection(IDC_SIGNER_LISTS_EDIT_BUTTON);
    EXPECT_EQ(Utf8(selection.Control(IDC_SELECTION_LIST_NAME_EDIT).Text()), "Clerks");
}

TEST_F(SignerListsTest, DeletesTheSelectedListsAfterAsking) {
    Open();
    Select({0, 2});
    Button(IDC_SIGNER_LISTS_DELETE_BUTTON).PostClick();
    ExpectDeleteQuestion(2, IDNO);
    EXPECT_EQ(List().RowCount(), 3);
    EXPECT_EQ(List().SelectedRows(), (std::vector<int>{0, 2}));
    Button(IDC_SIGNER_LISTS_DELETE_BUTTON).PostClick();
    ExpectDeleteQuestion(2, IDYES);
    EXPECT_EQ(List().Column(0), Texts{L"Clerks"});
    EXPECT_TRUE(List().SelectedRows().empty());
    EXPECT_FALSE(Button(IDC_SIGNER_LISTS_DELETE_BUTTON).IsEnabled());
    EXPECT_EQ(Leave(Dialog(), IDOK), HostResult(1, std::vector<store::SignerGroup>{kClerks}));
}

TEST_F(SignerListsTest, DeletesByTheDeleteKey) {
    Open();
    Select({1});
    List().PostKey(VK_DELETE);
    ExpectDeleteQuestion(1, IDYES);
    EXPECT_EQ(List().Column(0), (Texts{L"Directors", L"Auditors"}));
}

TEST_F(SignerListsTest, TakesTheFocusOffAButtonThatIsDisabled) {
    Open();
    Select({1});
    Button(IDC_SIGNER_LISTS_DELETE_BUTTON).PostLeftClick({5, 5});
    ExpectDeleteQuestion(1, IDYES);
    List().WaitForFocus();
}

TEST_F(SignerListsTest, AddsToTheListsThatAreLeft) {
    Open();
    Select({0, 1, 2});
    Button(IDC_SIGNER_LISTS_DELETE_BUTTON).PostClick();
    ExpectDeleteQuestion(3, IDYES);
    const Window selection = PressForSelection(IDC_SIGNER_LISTS_ADD_BUTTON);
    // The name is free again.
    selection.Control(IDC_SELECTION_LIST_NAME_EDIT).SetText(L"Clerks");
    ChooseEmma(selection);
    selection.Control(IDOK).PostClick();
    WaitForDialogBack();
    EXPECT_EQ(Rows(), (std::vector<Texts>{{L"Clerks", L"CN=Emma,C=GB"}}));
}

TEST_F(SignerListsTest, ShowsAListInFullOnARightClick) {
    Open();
    List().PostRightClick(List().CellCentre(0, 1));
    ExpectWarningBox(Dialog(), L"Signer list",
                     L"List name: Directors\r\n"
                     L"Signer 1:\r\nCN=Anna,C=GB\r\n"
                     L"Signer 2:\r\nCN=Boris,O=\"A, B\",C=RU");
    WaitForDialogBack();
    EXPECT_TRUE(Calls().empty());
}

TEST_F(SignerListsTest, ShowsTheBoxOfARightClickWithTheInformationIcon) {
    Open();
    List().PostRightClick(List().CellCentre(1, 0));
    const Window box = WaitForWarningBox(Dialog());
    EXPECT_TRUE(IconOf(box, IconPlace::kLargeWindowIcon, IDI_INFO_MODE).showsResource);
    box.Control(IDCANCEL).PostClick();
    WaitForDialogBack();
}

TEST_F(SignerListsTest, KeepsTheListsOfTheRuleOnExit) {
    Open();
    Select({0, 1, 2});
    Button(IDC_SIGNER_LISTS_DELETE_BUTTON).PostClick();
    ExpectDeleteQuestion(3, IDYES);
    EXPECT_EQ(Leave(Dialog(), IDCANCEL), HostCancelled(1));
    EXPECT_EQ(Leave(OpenDialog(), IDOK), HostResult(2, setup.lists));
}

TEST_F(SignerListsTest, IsLeftByEscapeAndConfirmedByEnter) {
    Open();
    List().PostKey(VK_ESCAPE);
    EXPECT_EQ(Result(), HostCancelled(1));
    ListView(OpenDialog().Control(IDC_SIGNER_LISTS_LIST)).PostKey(VK_RETURN);
    EXPECT_EQ(Result(), HostResult(2, setup.lists));
}

TEST_F(SignerListsTest, GrowsButNeverBelowItsFirstSize) {
    Open();
    const RECT first = Dialog().Bounds();
    const RECT list = List().BoundsInParent();
    const RECT ok = Button(IDOK).BoundsInParent();
    EXPECT_EQ(Dialog().SmallestTrackingSize().x, first.right - first.left);
    EXPECT_EQ(Dialog().SmallestTrackingSize().y, first.bottom - first.top);
    SetWindowPos(Dialog().Handle(), nullptr, 0, 0, first.right - first.left + 120,
                 first.bottom - first.top + 70, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Settle(Dialog());
    EXPECT_EQ(List().BoundsInParent().right, list.right + 120);
    EXPECT_EQ(List().BoundsInParent().bottom, list.bottom + 70);
    EXPECT_EQ(Button(IDOK).BoundsInParent().left, ok.left + 120);
    EXPECT_EQ(Button(IDOK).BoundsInParent().top, ok.top + 70);
}

TEST_F(SignerListsTest, FillsItsColumnsIntoTheList) {
    Open();
    // Room for the scroll bar is left from the beginning, so that nothing moves when it comes.
    const int width = List().ClientSize().cx - GetSystemMetrics(SM_CXVSCROLL);
    EXPECT_EQ(List().ColumnWidth(0), width / 3);
    EXPECT_EQ(List().ColumnWidth(0) + List().ColumnWidth(1), width);
}

TEST_F(SignerListsTest, FillsItsColumnsIntoTheListBesideAScrollBar) {
    setup.lists.clear();
    for (int i = 0; i < 60; ++i) {
        setup.lists.push_back({L"list " + std::to_wstring(i), {L"CN=Ann,C=GB"}});
    }
    Open();
    EXPECT_NE(List().Style() & WS_VSCROLL, 0U);
    EXPECT_EQ(List().Style() & WS_HSCROLL, 0U) << "a needless scroll bar below";
    EXPECT_EQ(List().ColumnWidth(0) + List().ColumnWidth(1), List().ClientSize().cx);
}

TEST_F(SignerListsTest, ShowsAListOfThousandsOfSigners) {
    store::SignerGroup large = {L"large", {}};
    for (int i = 0; i < 5000; ++i) {
        large.signers.push_back(L"CN=Signer " + std::to_wstring(i) + L",C=GB");
    }
    setup.lists = {large};
    Open();
    EXPECT_EQ(List().Cell(0, 0), L"large");
    EXPECT_EQ(Leave(Dialog(), IDOK), HostResult(1, setup.lists));
}

}  // namespace
}  // namespace corvane::test
