#include "toolkit/controls/choice_controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/toolkit/test_dialog.h"
#include "toolkit/dialog/data_exchange.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kListId = 2000;

class ListBoxTest : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(dialog_.CreateModeless()); }

    toolkit::ListBox Make(DWORD style = 0) {
        control_ = CreateWindowExW(0, L"LISTBOX", L"", WS_CHILD | LBS_NOTIFY | WS_HSCROLL | style, 0, 0, 100,
                                   100, dialog_.Window(), reinterpret_cast<HMENU>(INT_PTR{kListId}),
                                   GetModuleHandleW(nullptr), nullptr);
        return toolkit::ListBox(control_);
    }
    [[nodiscard]] LRESULT Extent() const { return SendMessageW(control_, LB_GETHORIZONTALEXTENT, 0, 0); }

    TestDialog dialog_;
    HWND control_ = nullptr;
};

TEST_F(ListBoxTest, EntriesStandInTheOrderTheyWereAdded) {
    const toolkit::ListBox list = Make();
    list.Add(L"b");
    list.Add(L"a");
    list.Add(L"");
    EXPECT_THAT(list.Entries(), ElementsAre(L"b", L"a", L""));
    EXPECT_EQ(list.Count(), 3);
    EXPECT_EQ(list.Entry(1), L"a");
}

TEST_F(ListBoxTest, AListThatSortsPutsEachEntryInItsPlace) {
    const toolkit::ListBox list = Make(LBS_SORT);
    list.Fill({L"c", L"a"});
    list.Add(L"b");
    EXPECT_THAT(list.Entries(), ElementsAre(L"a", L"b", L"c"));
}

TEST_F(ListBoxTest, FillingReplacesTheEntriesAndSelectsNone) {
    const toolkit::ListBox list = Make();
    list.Fill({L"one", L"two"});
    list.Select(1);
    list.Fill({L"three"});
    EXPECT_THAT(list.Entries(), ElementsAre(L"three"));
    EXPECT_EQ(list.Selected(), -1);
    list.Fill({});
    EXPECT_THAT(list.Entries(), IsEmpty());
}

TEST_F(ListBoxTest, ADeletedEntryIsGoneAndItsSelectionWithIt) {
    const toolkit::ListBox list = Make();
    list.Fill({L"one", L"two", L"three"});
    list.Select(1);
    EXPECT_EQ(list.Selected(), 1);
    list.Delete(1);
    EXPECT_THAT(list.Entries(), ElementsAre(L"one", L"three"));
    EXPECT_EQ(list.Selected(), -1);
}

TEST_F(ListBoxTest, FindsAWholeEntryWhateverItsCase) {
    const toolkit::ListBox list = Make();
    list.Fill({L"p7s.old", L"p7s", L"Док"});
    EXPECT_EQ(list.Find(L"P7S"), 1);
    EXPECT_EQ(list.Find(L"дОК"), 2);
    EXPECT_EQ(list.Find(L"p7"), -1);
}

TEST_F(ListBoxTest, TheScrollBarFollowsTheWidestEntry) {
    const toolkit::ListBox list = Make();
    list.Fill({L"short"});
    const LRESULT narrow = Extent();
    EXPECT_GT(narrow, 0);
    list.Add(std::wstring(100, L'W'));
    EXPECT_GT(Extent(), 10 * narrow);
    list.Delete(1);
    EXPECT_EQ(Extent(), narrow);
}

TEST_F(ListBoxTest, TheSelectionIsExchangedBothWays) {
    const toolkit::ListBox list = Make();
    list.Fill({L"one", L"two"});
    for (const int index : {1, 0, -1}) {
        int field = index;
        toolkit::DataExchange(dialog_.Window(), toolkit::DataExchange::Direction::kToControls)
            .Selection(kListId, field);
        EXPECT_EQ(list.Selected(), index);
        int back = 7;
        toolkit::DataExchange(dialog_.Window(), toolkit::DataExchange::Direction::kFromControls)
            .Selection(kListId, back);
        EXPECT_EQ(back, index);
    }
    int untouched = 7;
    toolkit::DataExchange(dialog_.Window(), toolkit::DataExchange::Direction::kFromControls)
        .Selection(2999, untouched);
    EXPECT_EQ(untouched, 7);
}

}  // namespace
}  // namespace corvane::test
