#include "toolkit/controls/kept_check_boxes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "tests/toolkit/test_dialog.h"
#include "tests/toolkit/test_window.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

// A list of four rows that are kept here.
class KeptCheckBoxesTest : public ::testing::Test {
  protected:
    void SetUp() override {
        MakeList();
        AttachBoxes();
    }

    void MakeList() {
        ASSERT_TRUE(dialog_.CreateModeless());
        list_ = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, 0,
                                0, 200, 150, dialog_.Window(), nullptr, GetModuleHandleW(nullptr), nullptr);
        dialog_.onNotify = [this](NMHDR& header, LRESULT&) {
            if (header.code == LVN_GETDISPINFOW && boxes_ != nullptr) {
                boxes_->AnswerDisplayRequest(reinterpret_cast<NMLVDISPINFOW&>(header).item);
            }
            doubleClicks_ += header.code == NM_DBLCLK ? 1 : 0;
            return false;
        };
    }
    void AttachBoxes() {
        boxes_ = std::make_unique<toolkit::KeptCheckBoxes>(toolkit::KeptCheckBoxes::Marks{
            .isChecked = [this](std::size_t row) { return bool{marks_.at(row)}; },
            .check =
                [this](std::size_t row, bool isChecked) {
                    marks_.at(row) = isChecked;
                    ++changes_;
                }});
        boxes_->Attach(list_);
        LVCOLUMNW column = {};
        column.mask = LVCF_WIDTH;
        column.cx = 150;
        SendMessageW(list_, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
        SendMessageW(list_, LVM_SETITEMCOUNT, marks_.size(), 0);
    }

    [[nodiscard]] LRESULT SetState(int row, UINT state, UINT mask) const {
        LVITEMW item = {};
        item.state = state;
        item.stateMask = mask;
        return SendMessageW(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                            reinterpret_cast<LPARAM>(&item));
    }
    [[nodiscard]] LRESULT Check(int row, bool isChecked) const {
        return SetState(row, INDEXTOSTATEIMAGEMASK(isChecked ? 2U : 1U), LVIS_STATEIMAGEMASK);
    }
    [[nodiscard]] UINT StateImage(int row) const {
        return static_cast<UINT>(
                   SendMessageW(list_, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK)) >>
               12U;
    }
    void Select(int row) const {
        EXPECT_TRUE(SetState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED));
    }
    void PressSpace() const { SendMessageW(list_, WM_KEYDOWN, VK_SPACE, 0); }
    // The state that the control gives with all else that it knows of a row.
    [[nodiscard]] UINT StateInItem(UINT message, int row, UINT mask) const {
        LVITEMW item = {};
        item.mask = LVIF_STATE;
        item.iItem = row;
        item.stateMask = mask;
        item.state = LVIS_CUT | INDEXTOSTATEIMAGEMASK(5U);
        SendMessageW(list_, message, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(item.stateMask, mask) << "what is asked for stays as it is";
        return item.state;
    }
    [[nodiscard]] LPARAM PointOn(int row, bool onBox) const {
        RECT label = {};
        label.left = LVIR_LABEL;
        SendMessageW(list_, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&label));
        const int x = onBox ? label.left / 2 : (label.left + label.right) / 2;
        return MAKELPARAM(x, (label.top + label.bottom) / 2);
    }
    void Press(int row) const { SendMessageW(list_, WM_LBUTTONDOWN, MK_LBUTTON, PointOn(row, true)); }
    void PressTwice(int row) const { SendMessageW(list_, WM_LBUTTONDBLCLK, MK_LBUTTON, PointOn(row, true)); }
    void MoveTo(LPARAM point) const { SendMessageW(list_, WM_MOUSEMOVE, MK_LBUTTON, point); }
    void LetGo(LPARAM point) const { SendMessageW(list_, WM_LBUTTONUP, 0, point); }
    void Click(int row) const {
        Press(row);
        LetGo(PointOn(row, true));
    }
    void DoubleClick(int row) const {
        Click(row);
        PressTwice(row);
        LetGo(PointOn(row, true));
    }

    TestDialog dialog_;
    HWND list_ = nullptr;
    std::vector<bool> marks_ = {false, true, false, false};
    int changes_ = 0;
    int doubleClicks_ = 0;
    std::unique_ptr<toolkit::KeptCheckBoxes> boxes_;
};

// A control that does with a list of no rows of its own what Windows is documented to do, or may do: it keeps
// nothing but focus and selection, clears all marks with new boxes, and turns the mark of a box itself that
// it sees pressed.
class KeptCheckBoxesAsDocumented : public KeptCheckBoxesTest {
  protected:
    static constexpr UINT kKept = LVIS_FOCUSED | LVIS_SELECTED;

    void SetUp() override {
        MakeList();
        SetWindowSubclass(list_, &Procedure, 1, reinterpret_cast<DWORD_PTR>(this));
        AttachBoxes();
        clearings_ = 0;
    }
    void TearDown() override { RemoveWindowSubclass(list_, &Procedure, 1); }

    static LRESULT CALLBACK Procedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR /*subclass*/, DWORD_PTR self) {
        auto& test = *reinterpret_cast<KeptCheckBoxesAsDocumented*>(self);
        const auto handOn = [&](LPARAM given) { return DefSubclassProc(list, message, wParam, given); };
        switch (message) {
            case LVM_GETITEMSTATE:
                return handOn(lParam & LPARAM{kKept});
            case LVM_GETITEMA:
            case LVM_GETITEMW: {
                const LRESULT result = handOn(lParam);
                reinterpret_cast<LVITEMW*>(lParam)->state &= kKept;
                return result;
            }
            case LVM_SETITEMSTATE: {
                LVITEMW item = *reinterpret_cast<const LVITEMW*>(lParam);
                test.masksSet_.push_back(item.stateMask);
                item.stateMask &= kKept;
                return handOn(reinterpret_cast<LPARAM>(&item));
            }
            case LVM_SETEXTENDEDLISTVIEWSTYLE: {
                const LRESULT result = handOn(lParam);
                if ((static_cast<DWORD>(lParam) & LVS_EX_CHECKBOXES) != 0) {
                    ++test.clearings_;
                    static_cast<void>(test.Check(-1, false));
                }
                return result;
            }
            case WM_LBUTTONDOWN:
            case WM_LBUTTONDBLCLK:
                static_cast<void>(test.Check(2, !test.marks_.at(2)));
                return 0;
            default:
                return handOn(lParam);
        }
    }

    std::vector<UINT> masksSet_;
    int clearings_ = 0;
};

TEST_F(KeptCheckBoxesTest, TheControlTellsTheMarksThatAreKept) {
    EXPECT_EQ(StateImage(0), 1U);
    EXPECT_EQ(StateImage(1), 2U);
    marks_[0] = true;
    EXPECT_EQ(StateImage(0), 2U);
}

TEST_F(KeptCheckBoxesTest, AMessageSetsTheMarkOfOneRow) {
    EXPECT_TRUE(Check(2, true));
    EXPECT_TRUE(Check(1, false));
    EXPECT_THAT(marks_, ElementsAre(false, false, true, false));
    EXPECT_TRUE(Check(2, true));
    EXPECT_EQ(changes_, 2) << "what is as it should be is not changed";
}

TEST_F(KeptCheckBoxesTest, AMessageSetsTheMarksOfAllRows) {
    EXPECT_TRUE(Check(-1, true));
    EXPECT_THAT(marks_, ElementsAre(true, true, true, true));
}

TEST_F(KeptCheckBoxesTest, ARowThatIsNotThereHasNoMarkToSet) {
    EXPECT_FALSE(Check(4, true));
    EXPECT_FALSE(Check(-2, true));
    EXPECT_EQ(changes_, 0);
}

TEST_F(KeptCheckBoxesTest, ASelectionChangesNoMark) {
    Select(0);
    EXPECT_EQ(changes_, 0);
    EXPECT_EQ(SendMessageW(list_, LVM_GETITEMSTATE, 0, LVIS_SELECTED), LVIS_SELECTED);
}

TEST_F(KeptCheckBoxesTest, AMarkAndASelectionAreSetTogether) {
    EXPECT_TRUE(SetState(3, INDEXTOSTATEIMAGEMASK(2U) | LVIS_SELECTED, LVIS_STATEIMAGEMASK | LVIS_SELECTED));
    EXPECT_TRUE(marks_[3]);
    EXPECT_EQ(SendMessageW(list_, LVM_GETITEMSTATE, 3, LVIS_SELECTED), LVIS_SELECTED);
}

TEST_F(KeptCheckBoxesTest, AClickOnTheBoxTurnsTheMark) {
    Click(2);
    EXPECT_THAT(marks_, ElementsAre(false, true, true, false));
    Click(2);
    EXPECT_THAT(marks_, ElementsAre(false, true, false, false));
}

TEST_F(KeptCheckBoxesTest, TheMarkTurnsWhenTheButtonIsLetGo) {
    Press(2);
    EXPECT_EQ(changes_, 0);
    LetGo(PointOn(2, true));
    EXPECT_EQ(changes_, 1);
    LetGo(PointOn(2, true));
    EXPECT_EQ(changes_, 1) << "once for a press";
}

TEST_F(KeptCheckBoxesTest, APressThatIsLetGoElsewhereTurnsNone) {
    for (const LPARAM elsewhere : {PointOn(1, true), PointOn(2, false), MAKELPARAM(10, 500)}) {
        Press(2);
        LetGo(elsewhere);
        EXPECT_EQ(changes_, 0);
        EXPECT_NE(GetCapture(), list_);
    }
}

TEST_F(KeptCheckBoxesTest, APressThatBecomesADragTurnsNone) {
    Press(2);
    MoveTo(PointOn(2, true));
    EXPECT_EQ(GetCapture(), list_) << "a move on the box is none";
    MoveTo(PointOn(3, true));
    MoveTo(PointOn(2, true));
    LetGo(PointOn(2, true));
    EXPECT_EQ(changes_, 0);
}

TEST_F(KeptCheckBoxesTest, AMoveWithoutTheButtonIsNoDrag) {
    Press(2);
    SendMessageW(list_, WM_MOUSEMOVE, 0, PointOn(3, true));
    LetGo(PointOn(2, true));
    EXPECT_TRUE(marks_[2]);
}

TEST_F(KeptCheckBoxesTest, APressThatIsTakenAwayTurnsNone) {
    Press(2);
    ReleaseCapture();
    LetGo(PointOn(2, true));
    EXPECT_EQ(changes_, 0);
}

TEST_F(KeptCheckBoxesTest, APressOnTheBoxFocusesTheListAndSelectsNothing) {
    Click(2);
    EXPECT_EQ(GetFocus(), list_);
    EXPECT_EQ(SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), -1);
}

TEST_F(KeptCheckBoxesTest, EachHalfOfADoubleClickOnTheBoxTurnsTheMark) {
    DoubleClick(0);
    EXPECT_EQ(changes_, 2);
    EXPECT_FALSE(marks_[0]);
}

TEST_F(KeptCheckBoxesTest, OnlyADoubleClickOnTheTextIsNotified) {
    DoubleClick(0);
    EXPECT_EQ(doubleClicks_, 0);
    const LPARAM text = PointOn(0, false);
    PostMessageW(list_, WM_LBUTTONUP, 0, text);
    SendMessageW(list_, WM_LBUTTONDBLCLK, MK_LBUTTON, text);
    EXPECT_EQ(doubleClicks_, 1);
}

TEST_F(KeptCheckBoxesTest, AClickOnTheTextTurnsNone) {
    const LPARAM text = PointOn(2, false);
    // The control waits for the button to be let go.
    PostMessageW(list_, WM_LBUTTONUP, 0, text);
    SendMessageW(list_, WM_LBUTTONDOWN, MK_LBUTTON, text);
    LetGo(PointOn(2, true));
    EXPECT_EQ(changes_, 0);
}

TEST_F(KeptCheckBoxesTest, TheSpaceBarTurnsTheMarkOfTheRowWithTheFocus) {
    Select(2);
    PressSpace();
    EXPECT_THAT(marks_, ElementsAre(false, true, true, false));
    PressSpace();
    EXPECT_THAT(marks_, ElementsAre(false, true, false, false));
}

TEST_F(KeptCheckBoxesTest, TheSpaceBarGivesAllSelectedRowsTheMarkOfTheOneWithTheFocus) {
    Select(1);
    Select(2);
    Select(0);
    PressSpace();
    EXPECT_THAT(marks_, ElementsAre(true, true, true, false));
    EXPECT_EQ(changes_, 2);
}

TEST_F(KeptCheckBoxesTest, TheSpaceBarLeavesSelectedRowsAloneWhenTheFocusIsElsewhere) {
    Select(0);
    EXPECT_TRUE(SetState(3, LVIS_FOCUSED, LVIS_FOCUSED));
    PressSpace();
    EXPECT_THAT(marks_, ElementsAre(false, true, false, true));
}

TEST_F(KeptCheckBoxesTest, WithoutAFocusTheSpaceBarTurnsNone) {
    PressSpace();
    EXPECT_EQ(changes_, 0);
}

TEST_F(KeptCheckBoxesTest, AChangedMarkIsDrawn) {
    int redraws = 0;
    const MessageWatcher watcher(list_,
                                 [&redraws](UINT message) { redraws += message == LVM_REDRAWITEMS ? 1 : 0; });
    EXPECT_TRUE(Check(0, true));
    EXPECT_EQ(redraws, 1);
}

TEST_F(KeptCheckBoxesTest, AChangedMarkIsToldToScreenReaders) {
    static std::vector<LONG> told;
    told.clear();
    const HWINEVENTHOOK hook = SetWinEventHook(
        EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_STATECHANGE, GetModuleHandleW(nullptr),
        [](HWINEVENTHOOK, DWORD, HWND, LONG object, LONG child, DWORD, DWORD) {
            if (object == OBJID_CLIENT) {
                told.push_back(child);
            }
        },
        GetCurrentProcessId(), GetCurrentThreadId(), WINEVENT_INCONTEXT);
    ASSERT_NE(hook, nullptr);
    Click(2);
    EXPECT_TRUE(Check(0, true));
    EXPECT_TRUE(Check(0, true));
    UnhookWinEvent(hook);
    EXPECT_THAT(told, ElementsAre(3, 1)) << "rows count from 1 there";
}

TEST_F(KeptCheckBoxesTest, BoxesMadeAnewKeepTheirMarks) {
    int styles = 0;
    const MessageWatcher watcher(
        list_, [&styles](UINT message) { styles += message == LVM_SETEXTENDEDLISTVIEWSTYLE ? 1 : 0; });
    boxes_->MakeAnew();
    EXPECT_EQ(styles, 2) << "only a style that was away makes boxes";
    EXPECT_EQ(StateImage(1), 2U);
    EXPECT_EQ(SendMessageW(list_, LVM_GETCALLBACKMASK, 0, 0), LVIS_STATEIMAGEMASK);
    Click(2);
    EXPECT_THAT(marks_, ElementsAre(false, true, true, false));
}

TEST_F(KeptCheckBoxesTest, TheControlOutlivesItsBoxes) {
    boxes_.reset();
    SendMessageW(list_, LVM_SETITEMCOUNT, 2, 0);
    static_cast<void>(Check(0, true));
    EXPECT_EQ(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0), 2);
    EXPECT_EQ(changes_, 0);
}

TEST_F(KeptCheckBoxesTest, TheBoxesOutliveTheirControl) {
    DestroyWindow(list_);
    boxes_->MakeAnew();
    boxes_.reset();
    EXPECT_FALSE(IsWindow(list_));
}

TEST_F(KeptCheckBoxesAsDocumented, TheMarksAreTold) {
    Select(1);
    EXPECT_EQ(StateImage(0), 1U);
    EXPECT_EQ(StateImage(1), 2U);
    EXPECT_EQ(SendMessageW(list_, LVM_GETITEMSTATE, 1, static_cast<LPARAM>(~0U)),
              INDEXTOSTATEIMAGEMASK(2) | LVIS_FOCUSED | LVIS_SELECTED);
    EXPECT_EQ(SendMessageW(list_, LVM_GETITEMSTATE, 1, LVIS_SELECTED), LVIS_SELECTED);
    EXPECT_EQ(StateImage(4), 0U) << "no such row";
}

TEST_F(KeptCheckBoxesAsDocumented, TheMarksAreToldWithTheRestOfTheRow) {
    Select(1);
    for (const UINT message : {UINT{LVM_GETITEMA}, UINT{LVM_GETITEMW}}) {
        EXPECT_EQ(StateInItem(message, 0, LVIS_STATEIMAGEMASK), INDEXTOSTATEIMAGEMASK(1U));
        EXPECT_EQ(StateInItem(message, 1, LVIS_STATEIMAGEMASK | LVIS_SELECTED),
                  INDEXTOSTATEIMAGEMASK(2U) | LVIS_SELECTED);
        EXPECT_EQ(StateInItem(message, 1, LVIS_SELECTED), UINT{LVIS_SELECTED});
    }
}

TEST_F(KeptCheckBoxesAsDocumented, OnlyTheRestOfAStateIsHandedOn) {
    masksSet_.clear();
    EXPECT_TRUE(SetState(3, INDEXTOSTATEIMAGEMASK(2U) | LVIS_SELECTED, LVIS_STATEIMAGEMASK | LVIS_SELECTED));
    EXPECT_TRUE(Check(0, true));
    EXPECT_FALSE(Check(4, true));
    EXPECT_THAT(marks_, ElementsAre(true, true, false, true));
    EXPECT_THAT(masksSet_, ElementsAre(UINT{LVIS_SELECTED}));
    EXPECT_EQ(SendMessageW(list_, LVM_GETITEMSTATE, 3, LVIS_SELECTED), LVIS_SELECTED);
}

TEST_F(KeptCheckBoxesAsDocumented, APressOnTheBoxTurnsTheMarkOnce) {
    Click(2);
    EXPECT_EQ(changes_, 1);
    DoubleClick(2);
    EXPECT_EQ(changes_, 3);
}

TEST_F(KeptCheckBoxesAsDocumented, BoxesMadeAnewKeepTheirMarks) {
    boxes_->MakeAnew();
    EXPECT_EQ(clearings_, 1);
    EXPECT_EQ(changes_, 0);
    EXPECT_EQ(StateImage(1), 2U);
}

}  // namespace
}  // namespace corvane::test
