#include "toolkit/controls/list_view.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>

#include "tests/toolkit/test_dialog.h"
#include "tests/toolkit/test_window.h"

namespace corvane::test {
namespace {

class ListViewTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(dialog_.CreateModeless());
        list_.Attach(dialog_.Control(IDC_ROW_LIST));
        dialog_.onNotify = [this](NMHDR& header, LRESULT&) {
            if (header.code == LVN_GETDISPINFOW) {
                Answer(reinterpret_cast<NMLVDISPINFOW&>(header).item);
            }
            return false;
        };
    }

    void AppendRows(const std::vector<std::wstring>& texts) {
        list_.InsertColumn(0, L"Name");
        list_.SetColumnWidth(0, 100);
        for (const std::wstring& text : texts) {
            list_.AppendRow(text);
        }
    }

    // More rows than the control shows at once.
    void AppendManyRows() {
        list_.InsertColumn(0, L"Name");
        list_.SetColumnWidth(0, 100);
        list_.AppendRowsOnRequest(kManyRows);
    }

    void Answer(LVITEMW& item) {
        if ((item.mask & LVIF_TEXT) != 0) {
            asked_.emplace(item.iItem, item.iSubItem);
            answer_ = CellText(item.iItem, item.iSubItem);
            item.pszText = answer_.data();
        }
    }

    [[nodiscard]] std::wstring CellText(int row, int column) const {
        return L"row " + std::to_wstring(row) + L" column " + std::to_wstring(column) +
               std::wstring(paddingLength_, L'.') + L"!";
    }

    // As a reader from outside asks for the text of a cell.
    [[nodiscard]] std::wstring ShownText(int row, int column) const {
        std::wstring text(5000, L'\0');
        LVITEMW item = {};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        text.resize(static_cast<std::size_t>(SendMessageW(
            list_.Window(), LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item))));
        return text;
    }

    static constexpr int kManyRows = 60;

    TestDialog dialog_;
    toolkit::ListView list_;
    std::set<std::pair<int, int>> asked_;
    std::wstring answer_;
    std::size_t paddingLength_ = 0;
};

using Rows = std::vector<std::size_t>;

TEST_F(ListViewTest, ColumnsStandWhereTheyWereInserted) {
    for (const wchar_t* title : {L"last", L"middle", L"first"}) {
        list_.InsertColumn(0, title);
    }
    list_.SetColumnWidth(1, 73);
    const HWND header = ListView_GetHeader(list_.Window());
    ASSERT_EQ(Header_GetItemCount(header), 3);
    std::vector<std::wstring> titles;
    for (int column = 0; column < 3; ++column) {
        std::array<wchar_t, 50> title = {};
        LVCOLUMNW info = {};
        info.mask = LVCF_TEXT;
        info.pszText = title.data();
        info.cchTextMax = static_cast<int>(title.size());
        SendMessageW(list_.Window(), LVM_GETCOLUMNW, static_cast<WPARAM>(column),
                     reinterpret_cast<LPARAM>(&info));
        titles.emplace_back(title.data());
    }
    EXPECT_EQ(titles, (std::vector<std::wstring>{L"first", L"middle", L"last"}));
    EXPECT_EQ(ListView_GetColumnWidth(list_.Window(), 1), 73);
    RECT client = {};
    GetClientRect(list_.Window(), &client);
    EXPECT_EQ(list_.ClientWidth(), client.right);
}

TEST_F(ListViewTest, ExtendedStylesAreAddedToThoseThatAreThere) {
    list_.AddExtendedStyles(LVS_EX_FULLROWSELECT);
    list_.AddExtendedStyles(LVS_EX_CHECKBOXES);
    EXPECT_EQ(ListView_GetExtendedListViewStyle(list_.Window()),
              static_cast<DWORD>(LVS_EX_FULLROWSELECT | LVS_EX_CHECKBOXES));
}

TEST_F(ListViewTest, RowsAreAppendedChangedAndDeleted) {
    AppendRows({L"alpha", L"beta", L"gamma"});
    EXPECT_EQ(list_.RowCount(), 3);
    EXPECT_EQ(list_.RowText(2), L"gamma");
    list_.SetRowText(1, L"delta");
    EXPECT_EQ(list_.RowText(1), L"delta");
    list_.DeleteRow(0);
    EXPECT_EQ(list_.RowText(0), L"delta");
    list_.DeleteAllRows();
    EXPECT_EQ(list_.RowCount(), 0);
}

TEST_F(ListViewTest, LongTextsStayWhole) {
    for (const std::size_t length : {254U, 255U, 256U, 259U, 260U, 261U, 511U, 512U, 4000U}) {
        std::wstring text(length, L'x');
        text.back() = L'!';
        list_.DeleteAllRows();
        AppendRows({text});
        EXPECT_TRUE(list_.RowText(0) == text) << length << " characters";
    }
    EXPECT_EQ(list_.RowText(5), L"") << "no such row";
}

TEST_F(ListViewTest, AColumnIsMadeInItsWidth) {
    list_.InsertColumn(0, L"Name", 123);
    list_.InsertColumn(0, L"Number", 45);
    EXPECT_EQ(list_.ColumnWidth(0), 45);
    EXPECT_EQ(list_.ColumnWidth(1), 123);
}

TEST_F(ListViewTest, AWidthThatAColumnHasIsNotSetAgain) {
    list_.InsertColumn(0, L"Name", 100);
    int settings = 0;
    const MessageWatcher watcher(
        list_.Window(), [&settings](UINT message) { settings += message == LVM_SETCOLUMNWIDTH ? 1 : 0; });
    list_.SetColumnWidth(0, 100);
    EXPECT_EQ(settings, 0);
    list_.SetColumnWidth(0, 101);
    EXPECT_EQ(settings, 1);
    EXPECT_EQ(list_.ColumnWidth(0), 101);
}

TEST_F(ListViewTest, TheTextsOfAllColumnsAreAskedFor) {
    constexpr int kColumns = 9;
    for (int column = 0; column < kColumns; ++column) {
        list_.InsertColumn(column, L"Column");
    }
    list_.AppendRow(L"own text");
    list_.AppendRowsOnRequest(3);
    EXPECT_EQ(list_.RowCount(), 4);
    EXPECT_TRUE(asked_.empty()) << "nothing is asked for before it is needed";
    for (int row = 1; row <= 3; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            EXPECT_EQ(ShownText(row, column), CellText(row, column));
            EXPECT_TRUE(asked_.contains({row, column})) << "row " << row << ", column " << column;
        }
    }
    EXPECT_EQ(list_.RowText(0), L"own text");
}

TEST_F(ListViewTest, LongTextsThatAreAskedForStayWhole) {
    list_.InsertColumn(0, L"Name");
    list_.InsertColumn(1, L"Value");
    list_.AppendRowsOnRequest(1);
    for (const std::size_t length : {260U, 1000U, 3000U}) {
        paddingLength_ = length;
        EXPECT_TRUE(list_.RowText(0) == CellText(0, 0)) << length << " characters and some";
        EXPECT_TRUE(ShownText(0, 1) == CellText(0, 1)) << length << " characters and some";
    }
}

TEST_F(ListViewTest, ARowIsFoundByItsWholeTextInItsOwnCase) {
    AppendRows({L"alphabet", L"Alpha", L"alpha", L"Жук", L"alpha"});
    EXPECT_EQ(list_.FindRow(L"alpha"), 2) << "the first one";
    EXPECT_EQ(list_.FindRow(L"ALPHA"), -1);
    EXPECT_EQ(list_.FindRow(L"alphabet"), 0);
    EXPECT_EQ(list_.FindRow(L"Жук"), 3);
    EXPECT_EQ(list_.FindRow(L"жУК"), -1);
    EXPECT_EQ(list_.FindRow(L"alph"), -1) << "a beginning is not enough";
    EXPECT_EQ(list_.FindRow(L"pha"), -1);
    list_.DeleteAllRows();
    EXPECT_EQ(list_.FindRow(L"alpha"), -1);
}

TEST_F(ListViewTest, SelectedRowsComeFromTopToBottom) {
    AppendRows({L"a", L"b", L"c", L"d"});
    EXPECT_EQ(list_.FirstSelectedRow(), -1);
    EXPECT_EQ(list_.SelectedRows(), Rows{});
    list_.AddToSelection(3);
    list_.AddToSelection(0);
    list_.AddToSelection(2);
    EXPECT_EQ(list_.SelectedRows(), (Rows{0, 2, 3}));
    EXPECT_EQ(list_.FirstSelectedRow(), 0);
}

TEST_F(ListViewTest, SelectOnlyLeavesOneRowWithFocusMarkAndAnchor) {
    AppendRows({L"a", L"b", L"c"});
    list_.AddToSelection(0);
    list_.AddToSelection(2);
    list_.SelectOnly(1);
    EXPECT_EQ(list_.SelectedRows(), Rows{1});
    EXPECT_EQ(ListView_GetNextItem(list_.Window(), -1, LVNI_FOCUSED), 1);
    EXPECT_EQ(ListView_GetSelectionMark(list_.Window()), 1);
    list_.SelectOnly(3);
    list_.SelectOnly(-1);
    EXPECT_EQ(list_.SelectedRows(), Rows{1}) << "a row that is not there selects nothing else";
}

TEST_F(ListViewTest, TheFocusMarkSelectsNothing) {
    AppendRows({L"a", L"b", L"c"});
    list_.SelectOnly(0);
    list_.MarkFocus(2);
    EXPECT_EQ(list_.SelectedRows(), Rows{0});
    EXPECT_EQ(ListView_GetNextItem(list_.Window(), -1, LVNI_FOCUSED), 2);
}

TEST_F(ListViewTest, TheFocusMarkIsFoundAgain) {
    AppendRows({L"one", L"two"});
    EXPECT_EQ(list_.FocusedRow(), -1);
    list_.MarkFocus(1);
    EXPECT_EQ(list_.FocusedRow(), 1);
}

TEST_F(ListViewTest, ARowIsTakenOutOfTheSelection) {
    AppendRows({L"one", L"two", L"three"});
    list_.AddToSelection(0);
    list_.AddToSelection(2);
    list_.RemoveFromSelection(0);
    EXPECT_EQ(list_.SelectedRows(), std::vector<std::size_t>{2});
}

TEST_F(ListViewTest, AHeadingBearsOneMarkOrNone) {
    AppendRows({L"one"});
    const auto header = reinterpret_cast<HWND>(SendMessageW(list_.Window(), LVM_GETHEADER, 0, 0));
    const auto marks = [header] {
        HDITEMW item = {};
        item.mask = HDI_FORMAT;
        SendMessageW(header, HDM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return item.fmt & (HDF_SORTUP | HDF_SORTDOWN);
    };
    list_.MarkHeading(0, toolkit::HeadingMark::kUp);
    EXPECT_EQ(marks(), HDF_SORTUP);
    list_.MarkHeading(0, toolkit::HeadingMark::kDown);
    EXPECT_EQ(marks(), HDF_SORTDOWN);
    list_.MarkHeading(0, toolkit::HeadingMark::kNone);
    EXPECT_EQ(marks(), 0);
    EXPECT_EQ(list_.ColumnWidth(0), 100);
}

TEST_F(ListViewTest, AMarkThatAHeadingHasIsNotSetAgain) {
    AppendRows({L"one"});
    const auto header = reinterpret_cast<HWND>(SendMessageW(list_.Window(), LVM_GETHEADER, 0, 0));
    list_.MarkHeading(0, toolkit::HeadingMark::kUp);
    int settings = 0;
    const MessageWatcher watcher(header,
                                 [&settings](UINT message) { settings += message == HDM_SETITEMW ? 1 : 0; });
    list_.MarkHeading(0, toolkit::HeadingMark::kUp);
    EXPECT_EQ(settings, 0);
    list_.MarkHeading(0, toolkit::HeadingMark::kDown);
    EXPECT_EQ(settings, 1);
}

// A column that is wider than what is left beside a new vertical scroll bar brings a horizontal one, which
// takes the height of a row, and so on: the widths are right when they bring no scroll bar any more.
TEST_F(ListViewTest, ColumnsAreLaidOutUntilTheirWidthBringsNoScrollBar) {
    list_.InsertColumn(0, L"Name", list_.ClientWidth());
    const auto hasHorizontalBar = [this] {
        return (GetWindowLongPtrW(list_.Window(), GWL_STYLE) & WS_HSCROLL) != 0;
    };
    list_.AppendRowsOnRequest(kManyRows);
    ASSERT_TRUE(hasHorizontalBar());
    list_.LayOutColumns([this](int clientWidth) { list_.SetColumnWidth(0, clientWidth); });
    EXPECT_FALSE(hasHorizontalBar());
    EXPECT_EQ(list_.ColumnWidth(0), list_.ClientWidth());
}

TEST_F(ListViewTest, ColumnsTakeTheRoomOfAScrollBarThatGoesWithTheirNewWidth) {
    // As many rows as have room only without a horizontal scroll bar.
    list_.InsertColumn(0, L"Name", 10);
    list_.AppendRowsOnRequest(1);
    list_.AppendRowsOnRequest(static_cast<std::size_t>(ListView_GetCountPerPage(list_.Window())) - 1);
    const int wholeWidth = list_.ClientWidth();
    list_.SetColumnWidth(0, wholeWidth + 100);
    ASSERT_LT(list_.ClientWidth(), wholeWidth) << "both scroll bars were expected";
    list_.LayOutColumns([this](int clientWidth) { list_.SetColumnWidth(0, clientWidth); });
    EXPECT_EQ(list_.ClientWidth(), wholeWidth);
    EXPECT_EQ(list_.ColumnWidth(0), wholeWidth);
}

TEST_F(ListViewTest, ALayoutThatNeverFitsIsGivenUpAfterThreeTimes) {
    list_.InsertColumn(0, L"Name", 10);
    int layouts = 0;
    list_.LayOutColumns([&](int) {
        // Each time the list has another width.
        ++layouts;
        SetWindowPos(list_.Window(), nullptr, 0, 0, 100 + 10 * layouts, 60, SWP_NOMOVE | SWP_NOZORDER);
    });
    EXPECT_EQ(layouts, 3);
}

TEST_F(ListViewTest, CheckStatesAreOnOffOrNoRow) {
    list_.AddExtendedStyles(LVS_EX_CHECKBOXES);
    AppendRows({L"a", L"b"});
    EXPECT_EQ(list_.CheckState(0), 0);
    list_.SetChecked(0, true);
    EXPECT_EQ(list_.CheckState(0), 1);
    EXPECT_EQ(list_.CheckState(1), 0);
    list_.SetChecked(0, false);
    EXPECT_EQ(list_.CheckState(0), 0);
    EXPECT_EQ(list_.CheckState(2), -1);
    EXPECT_EQ(list_.CheckState(-1), -1);
}

TEST_F(ListViewTest, ARowIsScrolledIntoView) {
    AppendManyRows();
    EXPECT_EQ(list_.TopRow(), 0);
    list_.ScrollIntoView(kManyRows - 1);
    EXPECT_EQ(list_.TopRow() + ListView_GetCountPerPage(list_.Window()), kManyRows);
    list_.ScrollIntoView(0);
    EXPECT_EQ(list_.TopRow(), 0);
    list_.ScrollIntoView(kManyRows);
    list_.ScrollIntoView(-1);
    EXPECT_EQ(list_.TopRow(), 0);
}

TEST_F(ListViewTest, TheScrollPositionSurvivesARefill) {
    AppendManyRows();
    list_.ScrollTo(17);
    ASSERT_EQ(list_.TopRow(), 17);
    const int top = list_.TopRow();
    {
        const toolkit::ListView::RedrawLock locked(list_);
        list_.DeleteAllRows();
        list_.AppendRowsOnRequest(kManyRows);
    }
    list_.ScrollTo(top);
    EXPECT_EQ(list_.TopRow(), 17);
}

TEST_F(ListViewTest, ScrollingGoesAsFarAsThereAreRows) {
    AppendManyRows();
    list_.ScrollTo(kManyRows * 2);
    EXPECT_EQ(list_.TopRow() + ListView_GetCountPerPage(list_.Window()), kManyRows);
    list_.ScrollTo(-5);
    EXPECT_EQ(list_.TopRow(), 0);
    list_.DeleteAllRows();
    list_.ScrollTo(5);
    EXPECT_EQ(list_.TopRow(), 0);
}

TEST_F(ListViewTest, RedrawingIsOffWhileLockedAndOnAgainAfterAnException) {
    std::vector<WPARAM> switched;
    const MessageWatcher watcher(list_.Window(), [&](UINT message) {
        if (message == WM_SETREDRAW) {
            switched.push_back(switched.size());
        }
    });
    try {
        const toolkit::ListView::RedrawLock locked(list_);
        EXPECT_EQ(switched.size(), 1U);
        throw std::runtime_error("filling failed");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(switched.size(), 2U);
    }
}

TEST(ListViewRedraw, ALockedListShowsNothingNewAndEverythingAfterwards) {
    TestDialog dialog(IDD_FORM);
    ASSERT_TRUE(dialog.CreateModeless());
    toolkit::ListView list;
    list.Attach(dialog.Control(IDC_ROW_LIST));
    list.InsertColumn(0, L"Name");
    list.SetColumnWidth(0, 100);
    UpdateWindow(list.Window());
    {
        const toolkit::ListView::RedrawLock locked(list);
        list.AppendRow(L"new");
        EXPECT_FALSE(GetUpdateRect(list.Window(), nullptr, FALSE));
    }
    EXPECT_TRUE(IsWindowVisible(list.Window()));
    EXPECT_TRUE(GetUpdateRect(list.Window(), nullptr, FALSE));
}

TEST(ListViewFocus, GoesToTheControl) {
    TestDialog dialog(IDD_FORM);
    ASSERT_TRUE(dialog.CreateModeless());
    SetActiveWindow(dialog.Window());
    toolkit::ListView list;
    list.Attach(dialog.Control(IDC_ROW_LIST));
    list.Focus();
    EXPECT_EQ(GetFocus(), list.Window());
}

TEST_F(ListViewTest, CheckBoxesThatAreMadeAgainKeepTheirMarks) {
    list_.AddExtendedStyles(LVS_EX_CHECKBOXES);
    AppendRows({L"a", L"b", L"c"});
    list_.SetChecked(1, true);
    // Pictures of some other scale.
    SendMessageW(list_.Window(), LVM_SETIMAGELIST, LVSIL_STATE,
                 reinterpret_cast<LPARAM>(ImageList_Create(5, 5, ILC_COLOR, 2, 0)));
    list_.MakeCheckBoxesAgain();
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(
        reinterpret_cast<HIMAGELIST>(SendMessageW(list_.Window(), LVM_GETIMAGELIST, LVSIL_STATE, 0)), &width,
        &height);
    EXPECT_GT(width, 5) << "The control has made them.";
    EXPECT_EQ(list_.CheckState(0), 0);
    EXPECT_EQ(list_.CheckState(1), 1);
    EXPECT_EQ(list_.CheckState(2), 0);
}

}  // namespace
}  // namespace corvane::test
