#include "toolkit/controls/supplied_list_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/toolkit/test_dialog.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

class NamedRows final : public toolkit::RowSource {
  public:
    [[nodiscard]] std::size_t RowCount() const override { return names.size(); }
    [[nodiscard]] std::wstring CellText(std::size_t row, std::size_t column) const override {
        return column == 0 ? names.at(row) : L"column " + std::to_wstring(column);
    }
    [[nodiscard]] bool IsTicked(std::size_t row) const override { return ticks.at(row); }
    void Tick(std::size_t row, bool isTicked) override {
        ticks.at(row) = isTicked;
        told.emplace_back(row, isTicked);
    }

    std::vector<std::wstring> names = {L"Adams", L"Bell & Sons", L"Bell", L"\x041D\x043E\x0432\x0430\x043A"};
    std::vector<bool> ticks = {false, true, false, false};
    /// What the list has told.
    std::vector<std::pair<std::size_t, bool>> told;
};

class SuppliedListViewTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(dialog_.CreateModeless());
        MakeList(LVS_EX_CHECKBOXES);
    }
    void MakeList(DWORD extendedStyles) {
        list_.Attach(CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 200, 150,
                                     dialog_.Window(), nullptr, GetModuleHandleW(nullptr), nullptr));
        dialog_.onNotify = [this](NMHDR& header, LRESULT&) {
            return header.hwndFrom == list_.Window() && list_.Answer(header);
        };
        list_.AddExtendedStyles(extendedStyles);
        list_.InsertColumn(0, L"Name", 120);
        list_.InsertColumn(1, L"Value", 60);
        Update();
    }
    void Update() {
        const toolkit::ListView::RedrawLock locked(list_);
        list_.Update();
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(list_.Window(), message, wParam, lParam);
    }
    [[nodiscard]] LRESULT SetState(int row, UINT state, UINT mask) const {
        LVITEMW item = {};
        item.state = state;
        item.stateMask = mask;
        return Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    }
    [[nodiscard]] LRESULT SetTick(int row, bool isTicked) const {
        return SetState(row, INDEXTOSTATEIMAGEMASK(isTicked ? 2U : 1U), LVIS_STATEIMAGEMASK);
    }
    [[nodiscard]] std::vector<int> CheckStates() const {
        std::vector<int> states;
        for (int row = 0; row < list_.RowCount(); ++row) {
            states.push_back(list_.CheckState(row));
        }
        return states;
    }
    [[nodiscard]] std::wstring TextOf(int row, int column) const {
        std::wstring text(300, L'\0');
        LVITEMW item = {};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        text.resize(static_cast<std::size_t>(
            Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item))));
        return text;
    }
    [[nodiscard]] LPARAM PointOnBox(int row) const {
        RECT label = {};
        label.left = LVIR_LABEL;
        Send(LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&label));
        return MAKELPARAM(label.left / 2, (label.top + label.bottom) / 2);
    }
    void Click(int row) const {
        Send(WM_LBUTTONDOWN, MK_LBUTTON, PointOnBox(row));
        Send(WM_LBUTTONUP, 0, PointOnBox(row));
    }
    [[nodiscard]] int FindAfter(int row, const std::wstring& text, UINT flags) const {
        LVFINDINFOW search = {};
        search.flags = flags;
        search.psz = text.c_str();
        return static_cast<int>(
            Send(LVM_FINDITEMW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&search)));
    }

    TestDialog dialog_;
    NamedRows rows_;
    toolkit::SuppliedListView list_{rows_};
};

/// The rows that screen readers are told of, counted from 1, as long as this lives.
class ToldTicks {
  public:
    ToldTicks() {
        announced.clear();
        hook_ = SetWinEventHook(
            EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_STATECHANGE, GetModuleHandleW(nullptr),
            [](HWINEVENTHOOK, DWORD, HWND, LONG object, LONG child, DWORD, DWORD) {
                if (object == OBJID_CLIENT) {
                    announced.push_back(child);
                }
            },
            GetCurrentProcessId(), GetCurrentThreadId(), WINEVENT_INCONTEXT);
    }
    ToldTicks(const ToldTicks&) = delete;
    ToldTicks& operator=(const ToldTicks&) = delete;
    ToldTicks(ToldTicks&&) = delete;
    ToldTicks& operator=(ToldTicks&&) = delete;
    ~ToldTicks() { UnhookWinEvent(hook_); }

    [[nodiscard]] const std::vector<LONG>& Rows() const { return announced; }

  private:
    inline static std::vector<LONG> announced;
    HWINEVENTHOOK hook_;
};

TEST_F(SuppliedListViewTest, ShowsTheTextsOfItsSource) {
    EXPECT_EQ(list_.RowCount(), 4);
    EXPECT_EQ(TextOf(1, 0), L"Bell & Sons");
    EXPECT_EQ(TextOf(3, 1), L"column 1");
    rows_.names[1] = L"Baker";
    EXPECT_EQ(TextOf(1, 0), L"Baker");
}

TEST_F(SuppliedListViewTest, SeveralTextsStayGoodAtOnce) {
    const auto ask = [this](int row) {
        NMLVDISPINFOW question = {};
        question.hdr.code = LVN_GETDISPINFOW;
        question.item.mask = LVIF_TEXT;
        question.item.iItem = row;
        EXPECT_TRUE(list_.Answer(question.hdr));
        return question.item.pszText;
    };
    const wchar_t* const first = ask(0);
    const wchar_t* const second = ask(1);
    static_cast<void>(ask(2));
    EXPECT_STREQ(first, L"Adams");
    EXPECT_STREQ(second, L"Bell & Sons");
}

TEST_F(SuppliedListViewTest, ShowsTheTicksOfItsSource) {
    EXPECT_THAT(CheckStates(), ElementsAre(0, 1, 0, 0));
    rows_.ticks = {true, false, false, true};
    Update();
    EXPECT_THAT(CheckStates(), ElementsAre(1, 0, 0, 1));
}

TEST_F(SuppliedListViewTest, ShowsAsManyRowsAsItsSourceHas) {
    rows_.names.emplace_back(L"Eve");
    rows_.ticks.push_back(true);
    Update();
    EXPECT_THAT(CheckStates(), ElementsAre(0, 1, 0, 0, 1));
    rows_.names.resize(2);
    rows_.ticks = {true, true};
    Update();
    EXPECT_THAT(CheckStates(), ElementsAre(1, 1));
    rows_.names.clear();
    Update();
    EXPECT_EQ(list_.RowCount(), 0);
}

TEST_F(SuppliedListViewTest, RowsThatStayKeepSelectionAndFocusMark) {
    list_.SelectOnly(1);
    rows_.names.resize(2);
    rows_.names.resize(6, L"new");
    rows_.ticks.resize(6);
    Update();
    EXPECT_THAT(list_.SelectedRows(), ElementsAre(1U));
    EXPECT_EQ(list_.FocusedRow(), 1);
}

TEST_F(SuppliedListViewTest, WithoutCheckBoxesNothingIsTicked) {
    DestroyWindow(list_.Window());
    MakeList(0);
    EXPECT_THAT(CheckStates(), ElementsAre(-1, -1, -1, -1));
}

TEST_F(SuppliedListViewTest, WhatIsOnlyShownIsNotToldToTheSource) {
    const ToldTicks told;
    rows_.ticks = {true, false, false, true};
    Update();
    list_.MakeCheckBoxesAgain();
    EXPECT_TRUE(rows_.told.empty());
    EXPECT_TRUE(told.Rows().empty());
    EXPECT_THAT(CheckStates(), ElementsAre(1, 0, 0, 1)) << "made again";
}

TEST_F(SuppliedListViewTest, AMessageTicksOneRow) {
    EXPECT_TRUE(SetTick(2, true));
    EXPECT_TRUE(SetTick(1, false));
    EXPECT_THAT(rows_.ticks, ElementsAre(false, false, true, false));
    EXPECT_THAT(CheckStates(), ElementsAre(0, 0, 1, 0));
    EXPECT_TRUE(SetTick(2, true));
    EXPECT_EQ(rows_.told.size(), 2U) << "what is as it should be is not told";
}

TEST_F(SuppliedListViewTest, AMessageTicksAllRows) {
    EXPECT_TRUE(SetTick(-1, true));
    EXPECT_THAT(rows_.ticks, ElementsAre(true, true, true, true));
}

TEST_F(SuppliedListViewTest, ARowThatIsNotThereCannotBeTicked) {
    EXPECT_FALSE(SetTick(4, true));
    EXPECT_FALSE(SetTick(-2, true));
    EXPECT_EQ(list_.CheckState(4), -1);
    EXPECT_TRUE(rows_.told.empty());
}

TEST_F(SuppliedListViewTest, ASelectionTicksNothing) {
    list_.SelectOnly(0);
    EXPECT_TRUE(rows_.told.empty());
    EXPECT_EQ(Send(LVM_GETITEMSTATE, 0, LVIS_SELECTED), LVIS_SELECTED);
}

TEST_F(SuppliedListViewTest, ATickAndASelectionAreSetTogether) {
    EXPECT_TRUE(SetState(3, INDEXTOSTATEIMAGEMASK(2U) | LVIS_SELECTED, LVIS_STATEIMAGEMASK | LVIS_SELECTED));
    EXPECT_TRUE(rows_.ticks[3]);
    EXPECT_EQ(rows_.told.size(), 1U);
    EXPECT_EQ(Send(LVM_GETITEMSTATE, 3, LVIS_SELECTED), LVIS_SELECTED);
}

TEST_F(SuppliedListViewTest, TicksAreReadWithTheRestOfTheRow) {
    list_.SelectOnly(1);
    for (const UINT message : {UINT{LVM_GETITEMA}, UINT{LVM_GETITEMW}}) {
        LVITEMW item = {};
        item.mask = LVIF_STATE;
        item.iItem = 1;
        item.stateMask = LVIS_STATEIMAGEMASK | LVIS_SELECTED;
        Send(message, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(item.state & item.stateMask, INDEXTOSTATEIMAGEMASK(2U) | LVIS_SELECTED);
    }
}

TEST_F(SuppliedListViewTest, AClickOnTheBoxTurnsItsTickOnce) {
    Click(2);
    EXPECT_THAT(rows_.ticks, ElementsAre(false, true, true, false));
    EXPECT_EQ(rows_.told.size(), 1U);
    Click(2);
    EXPECT_THAT(rows_.ticks, ElementsAre(false, true, false, false));
    EXPECT_TRUE(list_.SelectedRows().empty());
}

TEST_F(SuppliedListViewTest, TheSpaceBarTurnsTheTickOfTheRowWithTheFocus) {
    list_.SelectOnly(2);
    Send(WM_KEYDOWN, VK_SPACE);
    EXPECT_THAT(rows_.ticks, ElementsAre(false, true, true, false));
    Send(WM_KEYDOWN, VK_SPACE);
    EXPECT_THAT(rows_.ticks, ElementsAre(false, true, false, false));
}

TEST_F(SuppliedListViewTest, ScreenReadersAreToldOfTheRowWhoseTickTurns) {
    const ToldTicks told;
    Click(2);
    EXPECT_TRUE(SetTick(0, true));
    EXPECT_TRUE(SetTick(0, true));
    EXPECT_THAT(told.Rows(), ElementsAre(3, 1)) << "rows count from 1 there";
}

TEST_F(SuppliedListViewTest, TheControlFindsRowsByTheTextsOfTheSource) {
    EXPECT_EQ(FindAfter(-1, L"bell", LVFI_STRING), 2) << "the whole text is wanted";
    EXPECT_EQ(FindAfter(-1, L"Be", LVFI_STRING), -1);
    for (const UINT flags : {UINT{LVFI_PARTIAL}, UINT{LVFI_STRING | LVFI_PARTIAL}}) {
        EXPECT_EQ(FindAfter(-1, L"Be", flags), 1) << flags;
        EXPECT_EQ(FindAfter(1, L"Be", flags), 2) << "the search begins after the row";
        EXPECT_EQ(FindAfter(2, L"Be", flags), -1) << flags;
    }
    EXPECT_EQ(FindAfter(2, L"Be", LVFI_PARTIAL | LVFI_WRAP), 1);
    EXPECT_EQ(FindAfter(-1, L"\x041D\x041E\x0412\x0410\x041A", LVFI_STRING), 3);
}

TEST_F(SuppliedListViewTest, TypedLettersGoToTheRowThatBeginsWithThem) {
    for (const wchar_t letter : std::wstring(L"be")) {
        Send(WM_CHAR, letter, 1);
    }
    EXPECT_EQ(list_.FocusedRow(), 1);
    EXPECT_THAT(list_.SelectedRows(), ElementsAre(1U));
}

TEST_F(SuppliedListViewTest, OnlyAQuestionForATextIsDoneWith) {
    NMLISTVIEW change = {};
    change.hdr.code = LVN_ITEMCHANGED;
    EXPECT_FALSE(list_.Answer(change.hdr)) << "a dialog wants to hear of selections";
    NMHDR other = {};
    other.code = NM_KILLFOCUS;
    EXPECT_FALSE(list_.Answer(other));
}

}  // namespace
}  // namespace corvane::test
