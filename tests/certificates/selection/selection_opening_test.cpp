#include <windows.h>

#include "tests/kit/driver/icon.h"
#include "tests/kit/driver/tool_tips.h"
#include "tests/kit/fixtures/selection_fixture.h"

namespace corvane::test {
namespace {

class SelectionOpening : public SelectionTest {};

TEST_F(SelectionOpening, RecipientsHaveTheirTitleAndTheButtonsTheirTexts) {
    OpenRecipients();
    EXPECT_EQ(Dialog().Text(), L"Add recipients");
    EXPECT_EQ(Control(IDC_SELECTION_FROM_STORE_BUTTON).Text(), L"From local store");
    EXPECT_EQ(Control(IDC_SELECTION_FROM_GROUP_BUTTON).Text(), L"From group");
    EXPECT_EQ(Control(IDC_SELECTION_FROM_NCS_BUTTON).Text(), L"From NCS");
    EXPECT_EQ(Control(IDC_SELECTION_SELECT_ALL_BUTTON).Text(), L"Select all");
    EXPECT_EQ(Control(IDC_SELECTION_CLEAR_BUTTON).Text(), L"Clear");
    EXPECT_EQ(Control(IDC_SELECTION_DELETE_ALL_BUTTON).Text(), L"Delete all");
    EXPECT_EQ(Control(IDC_SELECTION_SAVE_BUTTON).Text(), L"Save");
    EXPECT_EQ(Control(IDOK).Text(), L"OK");
    EXPECT_EQ(Control(IDCANCEL).Text(), L"Exit");
}

TEST_F(SelectionOpening, TheArrowButtonsHaveIconsNamesAndTips) {
    OpenRecipients();
    const IconView add = IconOf(Control(IDC_SELECTION_ADD_BUTTON), IconPlace::kButton, IDI_ADD_TO_CHOSEN);
    EXPECT_TRUE(add.isThere && add.showsResource);
    const IconView remove =
        IconOf(Control(IDC_SELECTION_REMOVE_BUTTON), IconPlace::kButton, IDI_REMOVE_FROM_CHOSEN);
    EXPECT_TRUE(remove.isThere && remove.showsResource);
    EXPECT_EQ(Control(IDC_SELECTION_ADD_BUTTON).Text(), L"Add");
    EXPECT_EQ(Control(IDC_SELECTION_REMOVE_BUTTON).Text(), L"Remove");
    const std::map<int, std::wstring> tips = ToolTipTexts(Dialog());
    EXPECT_EQ(tips.at(IDC_SELECTION_ADD_BUTTON), L"Add");
    EXPECT_EQ(tips.at(IDC_SELECTION_REMOVE_BUTTON), L"Remove");
}

TEST_F(SelectionOpening, TheLowerListShowsTheCallersOwnersAndHasTheFocus) {
    OpenRecipients({L"CN=Zoe,C=GB", L"CN=Adam,C=GB"});
    EXPECT_EQ(Found().RowCount(), 0);
    EXPECT_EQ(Chosen().Column(0), (Texts{L"CN=Zoe,C=GB", L"CN=Adam,C=GB"}));
    EXPECT_EQ(Chosen().Checks(), (std::vector<bool>{false, false}));
    Chosen().WaitForFocus();
    Chosen().WaitForFocus();
}

TEST_F(SelectionOpening, BothListsHaveOneColumnOfTheWidthOfTheClientArea) {
    OpenRecipients({L"CN=Zoe,C=GB"});
    EXPECT_EQ(Found().Headings(), Texts{L"Subjects"});
    EXPECT_EQ(Chosen().Headings(), Texts{L"Recipients"});
    for (const ListView& list : {Found(), Chosen()}) {
        EXPECT_EQ(list.ColumnWidth(0), list.ClientSize().cx);
        const DWORD wanted = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP;
        EXPECT_EQ(list.ExtendedListStyle() & wanted, wanted);
        EXPECT_EQ(list.Style() & LVS_TYPEMASK, static_cast<DWORD>(LVS_REPORT));
    }
}

TEST_F(SelectionOpening, TheOfferedFieldsAreThereToSortByAndTheFirstIsChosen) {
    OpenRecipients();
    const Window combo = Control(IDC_SELECTION_SORT_COMBO);
    Texts entries;
    const LRESULT count = combo.Send(CB_GETCOUNT);
    for (LRESULT i = 0; i < count; ++i) {
        std::wstring entry(static_cast<std::size_t>(combo.Send(CB_GETLBTEXTLEN, static_cast<WPARAM>(i))) + 1,
                           L'\0');
        combo.Send(CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(entry.data()));
        entry.pop_back();
        entries.push_back(entry);
    }
    EXPECT_EQ(entries, (Texts{L"Common name (CN)", L"Country (C)", L"State (ST)", L"Locality (L)",
                              L"Street (STREET)", L"Organization (O)", L"Organization unit (OU)",
                              L"Domain constrain (DC)", L"Address RFC822 (EMAIL)"}));
    EXPECT_EQ(combo.Send(CB_GETCURSEL), 0);
    EXPECT_EQ(Control(IDC_SELECTION_FILTER_EDIT).Text(), L"");
}

TEST_F(SelectionOpening, RecipientsHaveNoListName) {
    OpenRecipients();
    EXPECT_FALSE(Control(IDC_SELECTION_LIST_NAME_EDIT).IsVisible());
    EXPECT_FALSE(Control(IDC_SELECTION_LIST_NAME_EDIT).IsEnabled());
    EXPECT_FALSE(Control(IDC_SELECTION_LIST_NAME_LABEL).IsVisible());
}

TEST_F(SelectionOpening, FromNcsIsEnabledWhenTheNetworkStoreAnswers) {
    OpenRecipients();
    EXPECT_TRUE(Control(IDC_SELECTION_FROM_NCS_BUTTON).IsEnabled());
    for (const int button :
         {IDC_SELECTION_FROM_STORE_BUTTON, IDC_SELECTION_FROM_GROUP_BUTTON, IDC_SELECTION_SELECT_ALL_BUTTON,
          IDC_SELECTION_CLEAR_BUTTON, IDC_SELECTION_DELETE_ALL_BUTTON, IDC_SELECTION_SAVE_BUTTON,
          IDC_SELECTION_ADD_BUTTON, IDC_SELECTION_REMOVE_BUTTON, IDOK, IDCANCEL}) {
        EXPECT_TRUE(Control(button).IsEnabled()) << button;
    }
}

TEST_F(SelectionOpening, FromNcsIsDisabledWithoutANetworkStore) {
    setup.csProfile.notUseDirectory = 1;
    OpenRecipients();
    EXPECT_FALSE(Control(IDC_SELECTION_FROM_NCS_BUTTON).IsEnabled());
}

TEST_F(SelectionOpening, ANewSignerListHasAnEmptyName) {
    OpenNewList({{L"Board", {L"CN=Ann,C=GB"}}});
    EXPECT_EQ(Dialog().Text(), L"Add list");
    EXPECT_EQ(Chosen().RowCount(), 0);
    const Window name = Control(IDC_SELECTION_LIST_NAME_EDIT);
    EXPECT_TRUE(name.IsVisible() && name.IsEnabled());
    EXPECT_EQ(name.Text(), L"");
    EXPECT_TRUE(Control(IDC_SELECTION_LIST_NAME_LABEL).IsVisible());
    EXPECT_EQ(Control(IDC_SELECTION_LIST_NAME_LABEL).Text(), L"List name:");
    EXPECT_EQ(Chosen().Headings(), Texts{L"Recipients"});
    Chosen().WaitForFocus();
}

TEST_F(SelectionOpening, AnEditedSignerListShowsItsNameAndSigners) {
    OpenFirstList({{L"Board", {L"CN=Ann,C=GB", L"CN=Bob,C=GB"}}, {L"Staff", {}}});
    EXPECT_EQ(Dialog().Text(), L"Edit list");
    EXPECT_EQ(Control(IDC_SELECTION_LIST_NAME_EDIT).Text(), L"Board");
    EXPECT_EQ(Chosen().Column(0), (Texts{L"CN=Ann,C=GB", L"CN=Bob,C=GB"}));
}

TEST_F(SelectionOpening, EscapeCancels) {
    OpenRecipients({L"CN=Zoe,C=GB"});
    Dialog().FocusOfThread().PostKey(VK_ESCAPE);
    EXPECT_EQ(ResultOfDialog(), HostCancelled(1));
}

TEST_F(SelectionOpening, ExitCancels) {
    OpenRecipients({L"CN=Zoe,C=GB"});
    Control(IDCANCEL).PostClick();
    EXPECT_EQ(ResultOfDialog(), HostCancelled(1));
}

}  // namespace
}  // namespace corvane::test
