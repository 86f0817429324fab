#include "certificates/selection/owner_list_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

class Owners final : public certificates::OwnerRows {
  public:
    [[nodiscard]] std::size_t RowCount() const override { return names.size(); }
    [[nodiscard]] certificates::OwnerRow Row(std::size_t row) const override {
        return {names.at(row), ticks.at(row)};
    }
    void Tick(std::size_t row, bool isTicked) override {
        ticks.at(row) = isTicked;
        ++changes;
    }
    void ClickHeader() override { ++headerClicks; }
    [[nodiscard]] certificates::SortMark Mark() const override { return certificates::SortMark::kUp; }
    [[nodiscard]] reporting::Information Details(std::size_t) const override { return {}; }

    void Fill(std::size_t count) {
        names.clear();
        for (std::size_t row = 0; row < count; ++row) {
            names.push_back(L"Owner " + std::to_wstring(row) + L",C=GB");
        }
        ticks.assign(count, false);
    }

    std::vector<std::wstring> names;
    std::vector<bool> ticks;
    int changes = 0;
    int headerClicks = 0;
};

// A list of owners in a window of the test's own. Beneath it the control does what Windows is documented or
// reported to do where the system that the test runs on does something else.
class OwnerListViewTest : public ::testing::Test {
  protected:
    void SetUp() override {
        WNDCLASSW parentClass = {};
        parentClass.lpfnWndProc = &DefWindowProcW;
        parentClass.hInstance = GetModuleHandleW(nullptr);
        parentClass.lpszClassName = L"OwnerListViewTest";
        RegisterClassW(&parentClass);
        parent_ = CreateWindowExW(0, parentClass.lpszClassName, L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                  400, 300, nullptr, nullptr, parentClass.hInstance, nullptr);
        SetWindowSubclass(parent_, &Parent, 1, reinterpret_cast<DWORD_PTR>(this));
        list_ = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 300, 150,
                                parent_, nullptr, parentClass.hInstance, nullptr);
        ASSERT_NE(list_, nullptr);
        SetWindowSubclass(list_, &Control, 1, reinterpret_cast<DWORD_PTR>(this));
        owners_.Fill(kManyOwners);
        view_ = std::make_unique<certificates::OwnerListView>(owners_);
        view_->Attach(list_, L"Owners");
    }
    void TearDown() override {
        RemoveWindowSubclass(list_, &Control, 1);
        DestroyWindow(parent_);
    }

    static LRESULT CALLBACK Parent(HWND parent, UINT message, WPARAM wParam, LPARAM lParam,
                                   UINT_PTR /*subclass*/, DWORD_PTR self) {
        auto& test = *reinterpret_cast<OwnerListViewTest*>(self);
        if (message == WM_NOTIFY) {
            auto& header = *reinterpret_cast<NMHDR*>(lParam);
            test.doubleClicks_ += header.code == NM_DBLCLK ? 1 : 0;
            if (test.view_ != nullptr && header.hwndFrom == test.list_ && test.view_->Answer(header)) {
                return 0;
            }
        }
        return DefSubclassProc(parent, message, wParam, lParam);
    }
    static LRESULT CALLBACK Control(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR /*subclass*/, DWORD_PTR self) {
        auto& test = *reinterpret_cast<OwnerListViewTest*>(self);
        switch (message) {
            case WM_SETREDRAW:
                test.draws_ = wParam != FALSE;
                break;
            case LVM_SCROLL:
                if (!test.draws_) {
                    return FALSE;
                }
                break;
            case WM_KEYDOWN:
                if (test.ticksAllSelected_) {
                    for (const std::size_t row : test.view_->Control().SelectedRows()) {
                        test.view_->Control().SetChecked(static_cast<int>(row), true);
                    }
                    return 0;
                }
                break;
            case LVM_SETEXTENDEDLISTVIEWSTYLE:
                test.stylesSet_.push_back(lParam & LPARAM{LVS_EX_CHECKBOXES});
                break;
            default:
                break;
        }
        return DefSubclassProc(list, message, wParam, lParam);
    }

    [[nodiscard]] int TopRow() const { return view_->Control().TopRow(); }
    [[nodiscard]] LPARAM PointOn(int row, bool onBox) const {
        RECT label = {};
        label.left = LVIR_LABEL;
        SendMessageW(list_, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&label));
        const int x = onBox ? label.left / 2 : (label.left + label.right) / 2;
        return MAKELPARAM(x, (label.top + label.bottom) / 2);
    }
    void DoubleClick(LPARAM point) const {
        // The control waits for the button to be let go where it is not on a box.
        PostMessageW(list_, WM_LBUTTONUP, 0, point);
        SendMessageW(list_, WM_LBUTTONDOWN, MK_LBUTTON, point);
        SendMessageW(list_, WM_LBUTTONUP, 0, point);
        SendMessageW(list_, WM_LBUTTONDBLCLK, MK_LBUTTON, point);
        SendMessageW(list_, WM_LBUTTONUP, 0, point);
    }
    void PressSpace() const { SendMessageW(list_, WM_KEYDOWN, VK_SPACE, 0); }
    [[nodiscard]] std::vector<std::size_t> TickedRows() const {
        std::vector<std::size_t> rows;
        for (std::size_t row = 0; row < owners_.ticks.size(); ++row) {
            if (owners_.ticks[row]) {
                rows.push_back(row);
            }
        }
        return rows;
    }

    static constexpr std::size_t kManyOwners = 60;

    HWND parent_ = nullptr;
    HWND list_ = nullptr;
    bool draws_ = true;
    bool ticksAllSelected_ = false;
    int doubleClicks_ = 0;
    std::vector<LPARAM> stylesSet_;
    Owners owners_;
    std::unique_ptr<certificates::OwnerListView> view_;
};

TEST_F(OwnerListViewTest, StaysWhereItIsScrolledToThroughARefill) {
    view_->Control().ScrollTo(17);
    ASSERT_EQ(TopRow(), 17);
    for (const std::size_t count : {kManyOwners, kManyOwners * 2, kManyOwners - 1}) {
        view_->Change([&] { owners_.Fill(count); });
        EXPECT_EQ(TopRow(), 17) << count;
    }
}

TEST_F(OwnerListViewTest, KeepsSelectionAndFocusMarkOfARefill) {
    view_->Control().ScrollTo(17);
    view_->Control().SelectOnly(18);
    view_->Change([this] {
        owners_.names.insert(owners_.names.begin(), L"A new one");
        owners_.ticks.push_back(false);
    });
    EXPECT_THAT(view_->Control().SelectedRows(), ElementsAre(19U));
    EXPECT_EQ(view_->Control().FocusedRow(), 19);
    EXPECT_EQ(TopRow(), 17);
}

TEST_F(OwnerListViewTest, TicksFollowTheirOwnersThroughARefill) {
    view_->Control().SetChecked(18, true);
    view_->Change([this] {
        owners_.names.insert(owners_.names.begin(), L"A new one");
        owners_.ticks.insert(owners_.ticks.begin(), false);
    });
    EXPECT_EQ(view_->Control().CheckState(18), 0);
    EXPECT_EQ(view_->Control().CheckState(19), 1);
    EXPECT_THAT(TickedRows(), ElementsAre(19U));
    EXPECT_EQ(owners_.changes, 1) << "what is only shown is nobody's tick";
}

TEST_F(OwnerListViewTest, AHeaderClickIsPassedOn) {
    NMLISTVIEW click = {};
    click.hdr.hwndFrom = list_;
    click.hdr.code = LVN_COLUMNCLICK;
    EXPECT_TRUE(view_->Answer(click.hdr));
    EXPECT_EQ(owners_.headerClicks, 1);
}

TEST_F(OwnerListViewTest, TypedLettersFindAnOwnerAndGoOnAtTheTop) {
    view_->Change([this] { owners_.names[40] = L"Zed"; });
    view_->Control().SelectOnly(50);
    SendMessageW(list_, WM_CHAR, L'z', 1);
    EXPECT_EQ(view_->Control().FocusedRow(), 40);
}

TEST_F(OwnerListViewTest, MakesItsCheckBoxesForTheNewScaleAndKeepsTheChecks) {
    view_->Control().SetChecked(3, true);
    stylesSet_.clear();
    owners_.changes = 0;
    view_->Rescale();
    EXPECT_THAT(stylesSet_, ElementsAre(0, LPARAM{LVS_EX_CHECKBOXES}));
    EXPECT_EQ(owners_.changes, 0);
    EXPECT_TRUE(owners_.ticks[3]);
    EXPECT_EQ(view_->Control().CheckState(3), 1);
    EXPECT_EQ(view_->Control().CheckState(4), 0);
    EXPECT_EQ(view_->Control().ColumnWidth(0), view_->Control().ClientWidth());
}

TEST_F(OwnerListViewTest, EachHalfOfADoubleClickOnABoxTurnsTheTick) {
    DoubleClick(PointOn(0, true));
    EXPECT_EQ(owners_.changes, 2);
    EXPECT_FALSE(owners_.ticks[0]);
}

TEST_F(OwnerListViewTest, OnlyADoubleClickOnTheTextIsNotified) {
    DoubleClick(PointOn(0, true));
    EXPECT_EQ(doubleClicks_, 0);
    owners_.changes = 0;
    DoubleClick(PointOn(0, false));
    EXPECT_EQ(doubleClicks_, 1);
    EXPECT_EQ(owners_.changes, 0);
}

TEST_F(OwnerListViewTest, TheSpaceBarGivesAllSelectedRowsTheTickOfTheOneWithTheFocus) {
    view_->Control().SetChecked(1, true);
    owners_.changes = 0;
    view_->Control().SelectOnly(0);
    view_->Control().AddToSelection(1);
    view_->Control().AddToSelection(2);
    PressSpace();
    EXPECT_THAT(TickedRows(), ElementsAre(0U, 1U, 2U));
    EXPECT_EQ(owners_.changes, 2) << "one was ticked already";
}

TEST_F(OwnerListViewTest, TheSpaceBarLeavesSelectedRowsAloneWhenTheFocusIsElsewhere) {
    view_->Control().SelectOnly(0);
    view_->Control().MarkFocus(3);
    PressSpace();
    EXPECT_THAT(TickedRows(), ElementsAre(3U));
}

TEST_F(OwnerListViewTest, WithoutAFocusTheSpaceBarTurnsNone) {
    PressSpace();
    EXPECT_EQ(owners_.changes, 0);
}

// As Windows does by itself.
TEST_F(OwnerListViewTest, AControlThatTicksAllSelectedRowsIsNotCorrected) {
    ticksAllSelected_ = true;
    view_->Control().SelectOnly(0);
    view_->Control().AddToSelection(2);
    PressSpace();
    EXPECT_THAT(TickedRows(), ElementsAre(0U, 2U));
    EXPECT_EQ(owners_.changes, 2);
}

TEST_F(OwnerListViewTest, TheControlOutlivesTheView) {
    view_.reset();
    PressSpace();
    EXPECT_EQ(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0), kManyOwners);
}

TEST_F(OwnerListViewTest, TheViewOutlivesItsControl) {
    DestroyWindow(list_);
    EXPECT_EQ(view_->Control().Window(), nullptr);
    view_.reset();
    EXPECT_EQ(owners_.changes, 0);
}

}  // namespace
}  // namespace corvane::test
