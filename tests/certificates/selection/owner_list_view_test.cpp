#include "certificates/selection/owner_list_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

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
        list_ = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, 0,
                                0, 300, 150, parent_, nullptr, parentClass.hInstance, nullptr);
        ASSERT_NE(list_, nullptr);
        SetWindowSubclass(list_, &Control, 1, reinterpret_cast<DWORD_PTR>(this));
        view_.Attach(list_, L"Owners");
        Fill(kManyOwners);
        view_.Show({}, certificates::SortMark::kNone);
    }
    void TearDown() override {
        RemoveWindowSubclass(list_, &Control, 1);
        DestroyWindow(parent_);
    }

    static LRESULT CALLBACK Parent(HWND parent, UINT message, WPARAM wParam, LPARAM lParam,
                                   UINT_PTR /*subclass*/, DWORD_PTR self) {
        LRESULT result = 0;
        if (message == WM_NOTIFY && reinterpret_cast<OwnerListViewTest*>(self)->view_.Answer(
                                        *reinterpret_cast<NMHDR*>(lParam), result)) {
            return result;
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
            case LVM_SETITEMCOUNT: {
                // The list goes back to its first row unless it is told to stay.
                const LRESULT result = DefSubclassProc(list, message, wParam, lParam);
                if ((lParam & LVSICF_NOSCROLL) == 0 && wParam != 0) {
                    DefSubclassProc(list, LVM_ENSUREVISIBLE, 0, FALSE);
                }
                return result;
            }
            case WM_CHAR:
                return test.FindTyped();
            case LVM_SETEXTENDEDLISTVIEWSTYLE:
                test.stylesSet_.push_back(lParam & LPARAM{LVS_EX_CHECKBOXES});
                break;
            default:
                break;
        }
        return DefSubclassProc(list, message, wParam, lParam);
    }
    // As Windows is reported to ask for typed letters: as if for the whole text, and without a wrap.
    LRESULT FindTyped() {
        NMLVFINDITEMW question = {};
        question.hdr.hwndFrom = list_;
        question.hdr.code = LVN_ODFINDITEMW;
        question.iStart = static_cast<int>(owners_.size());
        question.lvfi.flags = LVFI_STRING;
        question.lvfi.psz = L"owner 11";
        typedRow_ =
            static_cast<int>(SendMessageW(parent_, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&question)));
        return 0;
    }

    void Fill(std::size_t count) {
        owners_.clear();
        for (std::size_t row = 0; row < count; ++row) {
            owners_.push_back(L"Owner " + std::to_wstring(row) + L",C=GB");
        }
        checks_.assign(count, false);
    }
    [[nodiscard]] certificates::OwnerRow RowAt(std::size_t row) const {
        return {owners_.at(row), checks_.at(row)};
    }
    [[nodiscard]] int TopRow() const { return view_.Control().TopRow(); }

    static constexpr std::size_t kManyOwners = 60;

    HWND parent_ = nullptr;
    HWND list_ = nullptr;
    std::vector<std::wstring> owners_;
    std::vector<bool> checks_;
    bool draws_ = true;
    int typedRow_ = -2;
    std::vector<LPARAM> stylesSet_;
    certificates::OwnerListView view_{{
        .count = [this] { return owners_.size(); },
        .row = [this](std::size_t row) { return RowAt(row); },
        .check = [this](std::size_t row, bool isChecked) { checks_.at(row) = isChecked; },
    }};
};

TEST_F(OwnerListViewTest, StaysWhereItIsScrolledToThroughARefill) {
    view_.Control().ScrollTo(17);
    ASSERT_EQ(TopRow(), 17);
    for (const std::size_t count : {kManyOwners, kManyOwners * 2, kManyOwners - 1}) {
        const certificates::OwnerListView::Place place = view_.CurrentPlace();
        Fill(count);
        view_.Show(place, certificates::SortMark::kNone);
        EXPECT_EQ(TopRow(), 17) << count;
    }
}

TEST_F(OwnerListViewTest, KeepsSelectionAndFocusMarkOfARefill) {
    view_.Control().ScrollTo(17);
    view_.Control().SelectOnly(18);
    const certificates::OwnerListView::Place place = view_.CurrentPlace();
    owners_.insert(owners_.begin(), L"A new one");
    checks_.push_back(false);
    view_.Show(place, certificates::SortMark::kNone);
    EXPECT_THAT(view_.Control().SelectedRows(), ElementsAre(19U));
    EXPECT_EQ(view_.Control().FocusedRow(), 19);
    EXPECT_EQ(TopRow(), 17);
}

TEST_F(OwnerListViewTest, TypedLettersFindAnOwnerAsWindowsAsksForThem) {
    SendMessageW(list_, WM_CHAR, L'1', 1);
    EXPECT_EQ(typedRow_, 11);
}

TEST_F(OwnerListViewTest, MakesItsCheckBoxesForTheNewScaleAndKeepsTheChecks) {
    checks_[3] = true;
    stylesSet_.clear();
    view_.Rescale();
    EXPECT_THAT(stylesSet_, ElementsAre(0, LPARAM{LVS_EX_CHECKBOXES}));
    EXPECT_EQ(view_.Control().CheckState(3), 1);
    EXPECT_EQ(view_.Control().CheckState(4), 0);
    EXPECT_EQ(view_.Control().ColumnWidth(0), view_.Control().ClientWidth());
}

}  // namespace
}  // namespace corvane::test
