#include "toolkit/kept_check_boxes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "tests/toolkit/window/test_dialog.h"
#include "tests/toolkit/window/test_window.h"

namespace toolkit {
namespace {

using ::testing::ElementsAre;
using testing::MessageWatcher;
using testing::TestDialog;

// A list of four rows that are kept here.
class KeptCheckBoxesTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(dialog_.CreateModeless());
        list_ = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, 0,
                                0, 200, 150, dialog_.Window(), nullptr, GetModuleHandleW(nullptr), nullptr);
        dialog_.onNotify = [this](NMHDR& header, LRESULT&) {
            if (header.code == LVN_GETDISPINFOW && boxes_ != nullptr) {
                boxes_->AnswerDisplayRequest(reinterpret_cast<NMLVDISPINFOW&>(header).item);
            }
            return false;
        };
        boxes_ = std::make_unique<KeptCheckBoxes>(
            KeptCheckBoxes::Marks{.isChecked = [this](std::size_t row) { return bool{marks_.at(row)}; },
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
    // The mouse goes down on the check box of the row, or on its text.
    void Press(UINT message, int row, bool onBox) const {
        RECT label = {};
        label.left = LVIR_LABEL;
        SendMessageW(list_, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&label));
        const int x = onBox ? label.left / 2 : (label.left + label.right) / 2;
        const LPARAM point = MAKELPARAM(x, (label.top + label.bottom) / 2);
        // Where the control waits for the button to be released, it is.
        PostMessageW(list_, WM_LBUTTONUP, 0, point);
        SendMessageW(list_, message, MK_LBUTTON, point);
    }

    TestDialog dialog_;
    HWND list_ = nullptr;
    std::vector<bool> marks_ = {false, true, false, false};
    int changes_ = 0;
    std::unique_ptr<KeptCheckBoxes> boxes_;
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
    Press(WM_LBUTTONDOWN, 2, true);
    EXPECT_THAT(marks_, ElementsAre(false, true, true, false));
    Press(WM_LBUTTONDOWN, 2, true);
    EXPECT_THAT(marks_, ElementsAre(false, true, false, false));
}

TEST_F(KeptCheckBoxesTest, EachHalfOfADoubleClickOnTheBoxTurnsTheMark) {
    Press(WM_LBUTTONDOWN, 0, true);
    Press(WM_LBUTTONDBLCLK, 0, true);
    EXPECT_EQ(changes_, 2);
    EXPECT_FALSE(marks_[0]);
}

TEST_F(KeptCheckBoxesTest, AClickOnTheTextTurnsNone) {
    Press(WM_LBUTTONDOWN, 2, false);
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

TEST_F(KeptCheckBoxesTest, TheControlOutlivesItsBoxes) {
    boxes_.reset();
    SendMessageW(list_, LVM_SETITEMCOUNT, 2, 0);
    static_cast<void>(Check(0, true));
    EXPECT_EQ(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0), 2);
    EXPECT_EQ(changes_, 0);
}

TEST_F(KeptCheckBoxesTest, TheBoxesOutliveTheirControl) {
    DestroyWindow(list_);
    boxes_.reset();
    EXPECT_FALSE(IsWindow(list_));
}

}  // namespace
}  // namespace toolkit
