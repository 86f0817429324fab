#include <windows.h>

#include "tests/kit/driver/remote_block.h"
#include "tests/kit/fixtures/selection_fixture.h"

namespace corvane::test {
namespace {
using Checks = std::vector<bool>;

constexpr wchar_t kIvanov[] = L"CN=IVANOV,O=Bravo,C=RU";
constexpr wchar_t kAdams[] = L"CN=Adams,O=Charlie,C=GB";
constexpr wchar_t kBell[] = L"CN=Bell,C=US";
constexpr wchar_t kNovak[] = L"CN=novak,O=Alpha,C=CZ";

class SelectionLists : public SelectionTest {
  protected:
    void OpenWithFourFound(const store::TextList& recipients = {}) {
        for (const char* const owner :
             {"CN=IVANOV,O=Bravo,C=RU", "CN=Adams,O=Charlie,C=GB", "CN=Bell,C=US", "CN=novak,O=Alpha,C=CZ"}) {
            script.Certificate(LibraryScriptWriter::kEvery, owner);
        }
        OpenRecipients(recipients);
        Press(IDC_SELECTION_FROM_STORE_BUTTON);
        ASSERT_EQ(Found().Column(0), (Texts{kIvanov, kAdams, kBell, kNovak}));
    }
    /// HDF_SORTUP, HDF_SORTDOWN or 0.
    [[nodiscard]] static int MarkOf(const ListView& list) {
        const Window header = HeaderOf(list);
        RemoteBlock block(header.Handle(), sizeof(HDITEMW));
        HDITEMW item{};
        item.mask = HDI_FORMAT;
        block.Put(item);
        header.Send(HDM_GETITEMW, 0, block.Parameter());
        return block.Get<HDITEMW>().fmt & (HDF_SORTUP | HDF_SORTDOWN);
    }
    /// The first row behind another that the upper list's own search finds (LVM_FINDITEM).
    [[nodiscard]] int FindOwner(UINT flags, const std::wstring& text, int after = -1) const {
        RemoteBlock block(Found().Handle(), sizeof(LVFINDINFOW) + (text.size() + 1) * sizeof(wchar_t));
        LVFINDINFOW search{};
        search.flags = flags;
        search.psz = static_cast<const wchar_t*>(block.Address(sizeof search));
        block.Put(search);
        block.Write(text.c_str(), (text.size() + 1) * sizeof(wchar_t), sizeof search);
        return static_cast<int>(Found().Send(LVM_FINDITEMW, static_cast<WPARAM>(after), block.Parameter()));
    }
};

TEST_F(SelectionLists, FromLocalStoreAddsTheOwnersThatAreNotThere) {
    OpenWithFourFound();
    EXPECT_EQ(Found().Checks(), (Checks{false, false, false, false}));
    EXPECT_EQ(Found().ColumnWidth(0), Found().ClientSize().cx);
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    EXPECT_EQ(Found().RowCount(), 4);
    const std::vector<std::string> calls = Calls("FindCert");
    EXPECT_EQ(calls.back(), "FindCert context=1 flags=0 mode=0 pattern=null fields=84 rest=zero -> 0");
}

TEST_F(SelectionLists, ARecipientSearchPassesOverCertificatesThatCannotEncrypt) {
    script.Certificate(LibraryScriptWriter::kEvery, "CN=Signer,C=GB", 0x03);
    script.Certificate(LibraryScriptWriter::kEvery, "CN=Reader,C=GB", 0x04);
    OpenRecipients();
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    EXPECT_EQ(Found().Column(0), Texts{L"CN=Reader,C=GB"});
}

TEST_F(SelectionLists, ASignerSearchListsThemToo) {
    script.Certificate(LibraryScriptWriter::kEvery, "CN=Signer,C=GB", 0x03);
    OpenNewList();
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    EXPECT_EQ(Found().Column(0), Texts{L"CN=Signer,C=GB"});
    EXPECT_EQ(Calls("FindCert").back(),
              "FindCert context=1 flags=100 mode=0 pattern=null fields=84 rest=zero -> 0");
}

TEST_F(SelectionLists, AFailedLocalSearchIsReportedAndKeepsTheLists) {
    setup.csProfile.notUseDirectory = 1;
    script.Certificate(LibraryScriptWriter::kEvery, "CN=Reader,C=GB");
    script.Status("FindCert", 2, 0xE0700046);
    script.ErrorText(0xE0700046, "Nothing was found");
    OpenRecipients();
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    Control(IDC_SELECTION_FROM_STORE_BUTTON).PostClick();
    ExpectBox(L"Searching of all certificate in local store.\r\nXSIG error 0xE0700046 - Nothing was found.",
              kBoxReport, IDOK);
    EXPECT_EQ(Found().Column(0), Texts{L"CN=Reader,C=GB"});
}

TEST_F(SelectionLists, SelectAllAndClearCheckAndUncheckEveryShownOwner) {
    OpenWithFourFound();
    Filter(L"gb");
    Press(IDC_SELECTION_SELECT_ALL_BUTTON);
    EXPECT_EQ(Found().Checks(), Checks{true});
    Filter(L"");
    EXPECT_EQ(Found().Checks(), (Checks{false, true, false, false}));
    Press(IDC_SELECTION_SELECT_ALL_BUTTON);
    EXPECT_EQ(Found().Checks(), (Checks{true, true, true, true}));
    Press(IDC_SELECTION_CLEAR_BUTTON);
    EXPECT_EQ(Found().Checks(), (Checks{false, false, false, false}));
}

TEST_F(SelectionLists, AClickOnACheckBoxChecksTheOwner) {
    OpenWithFourFound();
    Found().PostLeftClick(Found().CheckBoxCentre(1));
    SettleDialog();
    EXPECT_EQ(Found().Checks(), (Checks{false, true, false, false}));
    Press(IDC_SELECTION_ADD_BUTTON);
    EXPECT_EQ(Chosen().Column(0), Texts{kAdams});
}

TEST_F(SelectionLists, APressOnACheckBoxConcernsNoRowButItsOwn) {
    OpenWithFourFound();
    const auto post = [&](UINT message, WPARAM buttons, POINT point) {
        Found().Post(message, buttons, MAKELPARAM(point.x, point.y));
    };
    // The control turns the tick at the press.
    post(WM_LBUTTONDOWN, MK_LBUTTON, Found().CheckBoxCentre(1));
    SettleDialog();
    EXPECT_EQ(Found().Checks(), (Checks{false, true, false, false}));
    post(WM_LBUTTONUP, 0, Found().CheckBoxCentre(2));
    SettleDialog();
    EXPECT_EQ(Found().Checks(), (Checks{false, true, false, false})) << "let go on another";
    Press(IDC_SELECTION_ADD_BUTTON);
    EXPECT_EQ(Chosen().Column(0), Texts{kAdams});
}

TEST_F(SelectionLists, ADoubleClickOnACheckBoxChecksTwiceAndShowsNothing) {
    OpenWithFourFound({kNovak});
    for (const ListView& list : {Found(), Chosen()}) {
        list.SetChecked(0, true);
        list.PostLeftDoubleClick(list.CheckBoxCentre(0));
        ExpectStaysOpen();
        EXPECT_TRUE(list.IsChecked(0));
        list.PostLeftClick(list.CheckBoxCentre(0));
        SettleDialog();
        EXPECT_FALSE(list.IsChecked(0));
    }
}

TEST_F(SelectionLists, ChecksOutlastAChangeOfTheScale) {
    OpenWithFourFound({kNovak, kBell});
    Check(Found(), {1, 2});
    Check(Chosen(), {1});
    RECT bounds{};
    GetWindowRect(Dialog().Handle(), &bounds);
    RemoteBlock suggested(Dialog().Handle(), sizeof bounds);
    suggested.Put(bounds);
    const UINT newScale = GetDpiForWindow(Dialog().Handle()) * 2;
    Dialog().Send(WM_DPICHANGED, MAKEWPARAM(newScale, newScale), suggested.Parameter());
    SettleDialog();
    EXPECT_EQ(Found().Checks(), (Checks{false, true, true, false}));
    EXPECT_EQ(Chosen().Checks(), (Checks{false, true}));
    for (const ListView& list : {Found(), Chosen()}) {
        EXPECT_NE(list.ExtendedListStyle() & LVS_EX_CHECKBOXES, 0U);
        EXPECT_EQ(list.ColumnWidth(0), list.ClientSize().cx);
    }
    Found().PostLeftClick(Found().CheckBoxCentre(0));
    SettleDialog();
    EXPECT_EQ(Found().Checks(), (Checks{true, true, true, false}));
}

TEST_F(SelectionLists, TheSpaceKeyChecksTheFocusedOwner) {
    OpenWithFourFound();
    Found().PostLeftClick(Found().CellCentre(2, 0));
    Found().WaitForSelection({2});
    Found().PostKey(VK_SPACE);
    SettleDialog();
    EXPECT_EQ(Found().Checks(), (Checks{false, false, true, false}));
}

TEST_F(SelectionLists, AMarkIsSetAndReadByMessageLikeThatOfAnyList) {
    OpenWithFourFound();
    Found().SetChecked(3, true);
    Found().SetChecked(0, true);
    Found().SetChecked(0, false);
    EXPECT_EQ(Found().Checks(), (Checks{false, false, false, true}));
    Press(IDC_SELECTION_ADD_BUTTON);
    EXPECT_EQ(Chosen().Column(0), Texts{kNovak});
    Chosen().SetChecked(0, true);
    Press(IDC_SELECTION_REMOVE_BUTTON);
    EXPECT_EQ(Chosen().RowCount(), 0);
}

TEST_F(SelectionLists, AnOwnerIsFoundByItsTextLikeInAnyList) {
    OpenWithFourFound();
    EXPECT_EQ(FindOwner(LVFI_STRING, L"cn=bell,c=us"), 2);
    EXPECT_EQ(FindOwner(LVFI_STRING, L"CN=Bell"), -1) << "the whole text is wanted";
    EXPECT_EQ(FindOwner(LVFI_STRING | LVFI_PARTIAL, L"CN=Bell"), 2);
    EXPECT_EQ(FindOwner(LVFI_STRING | LVFI_PARTIAL, L"CN="), 0);
    EXPECT_EQ(FindOwner(LVFI_STRING | LVFI_PARTIAL, L"CN=nobody"), -1);
    constexpr UINT kSubstring = 0x4;
    EXPECT_EQ(FindOwner(kSubstring, L"CN=Bell"), 2);
    EXPECT_EQ(FindOwner(LVFI_STRING | kSubstring, L"bell"), -1) << "it has to be the beginning";
    EXPECT_EQ(FindOwner(LVFI_PARTIAL, L"CN=", 1), 2) << "the search begins behind the row";
    EXPECT_EQ(FindOwner(LVFI_PARTIAL, L"CN=", 3), -1);
    EXPECT_EQ(FindOwner(LVFI_PARTIAL | LVFI_WRAP, L"CN=", 3), 0);
}

TEST_F(SelectionLists, TypedLettersGoToTheOwnerThatBeginsWithThem) {
    OpenWithFourFound();
    Found().Select({0});
    for (const wchar_t letter : std::wstring(L"cn=b")) {
        Found().Send(WM_CHAR, letter, 1);
    }
    Found().WaitForSelection({2});
    EXPECT_EQ(Found().FocusedRow(), 2);
}

TEST_F(SelectionLists, DeleteAllAsksAndNoKeepsTheList) {
    OpenWithFourFound();
    Control(IDC_SELECTION_DELETE_ALL_BUTTON).PostClick();
    ExpectBox(L"Delete all list items?", kBoxQuestion, IDNO);
    EXPECT_EQ(Found().RowCount(), 4);
    Control(IDC_SELECTION_DELETE_ALL_BUTTON).PostClick();
    ExpectBox(L"Delete all list items?", kBoxQuestion, IDYES);
    EXPECT_EQ(Found().RowCount(), 0);
    Press(IDC_SELECTION_DELETE_ALL_BUTTON);
    ExpectStaysOpen();
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    EXPECT_EQ(Found().RowCount(), 4);
    EXPECT_EQ(Found().Checks(), (Checks{false, false, false, false}));
}

TEST_F(SelectionLists, TheFilterKeepsOwnersWithItsTextWhateverTheLetterCase) {
    OpenWithFourFound();
    Control(IDC_SELECTION_FILTER_EDIT).Type(L"ivan");
    SettleDialog();
    EXPECT_EQ(Found().Column(0), Texts{kIvanov});
    Filter(L"O=");
    EXPECT_EQ(Found().Column(0), (Texts{kIvanov, kAdams, kNovak}));
    Filter(L"nobody");
    EXPECT_EQ(Found().RowCount(), 0);
    Filter(L"");
    EXPECT_EQ(Found().Column(0), (Texts{kIvanov, kAdams, kBell, kNovak}));
}

TEST_F(SelectionLists, TheFilterDoesNotConcernTheLowerList) {
    OpenRecipients({kIvanov, kAdams});
    Filter(L"ivan");
    EXPECT_EQ(Chosen().Column(0), (Texts{kIvanov, kAdams}));
}

TEST_F(SelectionLists, ChecksOutlastTheFilterButHiddenOwnersAreNotAdded) {
    OpenWithFourFound();
    Check(Found(), {0, 1, 3});
    Filter(L"o=");
    EXPECT_EQ(Found().Checks(), (Checks{true, true, true}));
    Filter(L"adams");
    Press(IDC_SELECTION_ADD_BUTTON);
    EXPECT_EQ(Chosen().Column(0), Texts{kAdams});
    Filter(L"");
    EXPECT_EQ(Found().Checks(), (Checks{true, true, false, true}));
}

TEST_F(SelectionLists, SelectionAndFocusMarkFollowTheirOwners) {
    OpenWithFourFound();
    Found().Select({1, 3});
    Filter(L"o=");
    EXPECT_EQ(Found().SelectedRows(), (std::vector<int>{1, 2}));
    EXPECT_EQ(Found().FocusedRow(), 2);
    SortBy(5);
    EXPECT_EQ(Found().Column(0), (Texts{kNovak, kIvanov, kAdams}));
    EXPECT_EQ(Found().SelectedRows(), (std::vector<int>{0, 2}));
    EXPECT_EQ(Found().FocusedRow(), 0);
}

TEST_F(SelectionLists, AChangeOfTheSortFieldSortsTheUpperListOnly) {
    OpenWithFourFound({kNovak, kAdams});
    SortBy(5);
    EXPECT_EQ(Found().Column(0), (Texts{kNovak, kIvanov, kAdams, kBell}));
    EXPECT_EQ(Chosen().Column(0), (Texts{kNovak, kAdams}));
    SortBy(1);
    EXPECT_EQ(Found().Column(0), (Texts{kNovak, kAdams, kIvanov, kBell}));
}

TEST_F(SelectionLists, AHeaderClickSortsItsListAndTheNextOneReversesIt) {
    OpenWithFourFound({kNovak, kAdams});
    ClickHeader(Found());
    EXPECT_EQ(Found().Column(0), (Texts{kAdams, kBell, kIvanov, kNovak}));
    EXPECT_EQ(Chosen().Column(0), (Texts{kNovak, kAdams}));
    ClickHeader(Found());
    EXPECT_EQ(Found().Column(0), (Texts{kNovak, kIvanov, kBell, kAdams}));
    ClickHeader(Chosen());
    EXPECT_EQ(Chosen().Column(0), (Texts{kAdams, kNovak}));
    ClickHeader(Chosen());
    EXPECT_EQ(Chosen().Column(0), (Texts{kNovak, kAdams}));
    SortBy(5);
    EXPECT_EQ(Found().Column(0), (Texts{kAdams, kIvanov, kNovak, kBell}));
}

TEST_F(SelectionLists, TheHeadingIsMarkedWhileTheListIsSorted) {
    OpenWithFourFound({kNovak, kAdams});
    EXPECT_EQ(MarkOf(Found()), 0);
    ClickHeader(Found());
    EXPECT_EQ(MarkOf(Found()), HDF_SORTUP);
    EXPECT_EQ(MarkOf(Chosen()), 0);
    ClickHeader(Found());
    EXPECT_EQ(MarkOf(Found()), HDF_SORTDOWN);
    SortBy(5);
    EXPECT_EQ(MarkOf(Found()), HDF_SORTDOWN);
    Filter(L"adams");
    EXPECT_EQ(MarkOf(Found()), 0);
    ClickHeader(Chosen());
    EXPECT_EQ(MarkOf(Chosen()), HDF_SORTUP);
}

TEST_F(SelectionLists, ChecksFollowTheirOwnersThroughASort) {
    OpenWithFourFound();
    Check(Found(), {0, 3});
    ClickHeader(Found());
    EXPECT_EQ(Found().Checks(), (Checks{false, false, true, true}));
    ClickHeader(Found());
    EXPECT_EQ(Found().Checks(), (Checks{true, true, false, false}));
}

TEST_F(SelectionLists, TheArrowDownAddsTheCheckedOwnersOnce) {
    OpenWithFourFound({kBell});
    Check(Found(), {0, 2, 3});
    Press(IDC_SELECTION_ADD_BUTTON);
    EXPECT_EQ(Chosen().Column(0), (Texts{kBell, kIvanov, kNovak}));
    Press(IDC_SELECTION_ADD_BUTTON);
    EXPECT_EQ(Chosen().RowCount(), 3);
    EXPECT_EQ(Found().Checks(), (Checks{true, false, true, true}));
    EXPECT_EQ(Chosen().ColumnWidth(0), Chosen().ClientSize().cx);
}

TEST_F(SelectionLists, TheArrowUpRemovesTheCheckedOwners) {
    OpenRecipients({kIvanov, kAdams, kBell, kNovak});
    Press(IDC_SELECTION_REMOVE_BUTTON);
    EXPECT_EQ(Chosen().RowCount(), 4);
    Check(Chosen(), {0, 2});
    Press(IDC_SELECTION_REMOVE_BUTTON);
    EXPECT_EQ(Chosen().Column(0), (Texts{kAdams, kNovak}));
    EXPECT_EQ(Chosen().Checks(), (Checks{false, false}));
}

TEST_F(SelectionLists, ADoubleClickInTheUpperListShowsTheSubjectLineByLine) {
    OpenWithFourFound();
    Found().PostLeftDoubleClick(Found().CellCentre(1, 0));
    ExpectBox(L"CN=Adams,\r\nO=Charlie,\r\nC=GB", kBoxInformation, IDOK, L"Subject");
    Found().PostLeftDoubleClick(Found().PointBelowRows());
    ExpectStaysOpen();
}

TEST_F(SelectionLists, ADoubleClickInTheLowerListShowsTheRecipient) {
    OpenRecipients({L"CN=Ruth Vale,O=Vale, Son and Partners,C=GB"});
    Chosen().PostLeftDoubleClick(Chosen().CellCentre(0, 0));
    ExpectBox(L"CN=Ruth Vale,\r\nO=Vale, Son and Partners,\r\nC=GB", kBoxInformation, IDOK, L"Recipient");
}

TEST_F(SelectionLists, ADoubleClickInTheLowerListOfASignerListShowsTheSigner) {
    OpenFirstList({{L"Board", {L"CN=Ann,C=GB"}}});
    Chosen().PostLeftDoubleClick(Chosen().CellCentre(0, 0));
    ExpectBox(L"CN=Ann,\r\nC=GB", kBoxInformation, IDOK, L"Signer");
}

TEST_F(SelectionLists, ALongListKeepsItsScrollPositionThroughTheChecks) {
    for (int i = 0; i < 100; ++i) {
        script.Certificate(LibraryScriptWriter::kEvery, "CN=Owner " + std::to_string(100 + i));
    }
    OpenRecipients();
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    EXPECT_EQ(Found().ColumnWidth(0), Found().ClientSize().cx);
    EXPECT_EQ(Found().Style() & WS_HSCROLL, 0U);
    Found().Send(LVM_ENSUREVISIBLE, 60);
    const int top = Found().TopRow();
    ASSERT_GT(top, 0);
    Press(IDC_SELECTION_SELECT_ALL_BUTTON);
    EXPECT_EQ(Found().TopRow(), top);
    Press(IDC_SELECTION_CLEAR_BUTTON);
    EXPECT_EQ(Found().TopRow(), top);
    Filter(L"owner 1");
    EXPECT_EQ(Found().TopRow(), top);
}

TEST_F(SelectionLists, TheFocusGoesToTheLastRowThatStaysWhenItsOwnGoes) {
    // So many that a list which scrolls for each row that goes would not answer in time.
    constexpr int kOwners = 20000;
    for (int i = 0; i < kOwners; ++i) {
        script.Certificate(LibraryScriptWriter::kEvery,
                           "CN=Owner " + std::to_string(100000 + i) + (i % 2 == 0 ? ",O=North" : ",O=South"));
    }
    OpenRecipients();
    Press(IDC_SELECTION_FROM_STORE_BUTTON);
    Found().Select({kOwners - 1});
    Found().Send(LVM_ENSUREVISIBLE, kOwners - 1);
    ASSERT_EQ(Found().FocusedRow(), kOwners - 1);
    Filter(L"north");
    ASSERT_EQ(Found().RowCount(), kOwners / 2);
    EXPECT_EQ(Found().FocusedRow(), kOwners / 2 - 1);
    EXPECT_TRUE(Found().IsInView(kOwners / 2 - 1));
    EXPECT_EQ(Found().SelectedRows(), std::vector<int>());
    EXPECT_EQ(Found().Cell(kOwners / 2 - 1, 0), L"CN=Owner 119998,O=North");
}

}  // namespace
}  // namespace corvane::test
