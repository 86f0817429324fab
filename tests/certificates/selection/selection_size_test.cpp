#include <windows.h>

#include "tests/kit/fixtures/selection_fixture.h"

namespace corvane::test {
namespace {

LONG Width(const RECT& bounds) {
    return bounds.right - bounds.left;
}
LONG Height(const RECT& bounds) {
    return bounds.bottom - bounds.top;
}

class SelectionSize : public SelectionTest {
  protected:
    /// Gives the dialog another size and waits until it has settled in it.
    void Resize(LONG byWidth, LONG byHeight) const {
        const RECT bounds = Dialog().Bounds();
        SetWindowPos(Dialog().Handle(), nullptr, 0, 0, Width(bounds) + byWidth, Height(bounds) + byHeight,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        SettleDialog();
    }
    [[nodiscard]] std::vector<RECT> Places() const {
        std::vector<RECT> places;
        for (const Window& child : Dialog().Children()) {
            places.push_back(child.BoundsInParent());
        }
        return places;
    }
};

TEST_F(SelectionSize, BothListsShareTheNewHeightAndTakeTheNewWidth) {
    OpenRecipients({L"CN=Ann,C=GB"});
    const RECT found = Found().BoundsInParent();
    const RECT chosen = Chosen().BoundsInParent();
    const RECT arrow = Control(IDC_SELECTION_ADD_BUTTON).BoundsInParent();
    const RECT search = Control(IDC_SELECTION_FROM_STORE_BUTTON).BoundsInParent();
    const RECT exit = Control(IDCANCEL).BoundsInParent();
    Resize(120, 81);
    const RECT newFound = Found().BoundsInParent();
    const RECT newChosen = Chosen().BoundsInParent();
    EXPECT_EQ(Width(newFound), Width(found) + 120);
    EXPECT_EQ(Height(newFound), Height(found) + 40);
    EXPECT_EQ(newChosen.top, chosen.top + 40);
    EXPECT_EQ(Width(newChosen), Width(chosen) + 120);
    EXPECT_EQ(Height(newChosen), Height(chosen) + 41);
    EXPECT_EQ(Control(IDC_SELECTION_ADD_BUTTON).BoundsInParent().top, arrow.top + 40);
    EXPECT_EQ(Control(IDC_SELECTION_FROM_STORE_BUTTON).BoundsInParent().left, search.left + 120);
    EXPECT_EQ(Control(IDC_SELECTION_FROM_STORE_BUTTON).BoundsInParent().top, search.top);
    EXPECT_EQ(Control(IDCANCEL).BoundsInParent().left, exit.left + 120);
    EXPECT_EQ(Control(IDCANCEL).BoundsInParent().top, exit.top + 81);
    for (const ListView& list : {Found(), Chosen()}) {
        EXPECT_EQ(list.ColumnWidth(0), list.ClientSize().cx);
    }
}

TEST_F(SelectionSize, NothingDriftsOnTheWayBack) {
    OpenNewList();
    const std::vector<RECT> before = Places();
    for (const LONG step : {7, 13, 1, 29}) {
        Resize(step, step);
    }
    Resize(-50, -50);
    const std::vector<RECT> after = Places();
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_TRUE(EqualRect(&before[i], &after[i])) << Utf8(Dialog().Children()[i].Name());
    }
}

TEST_F(SelectionSize, CannotBeMadeSmallerThanItOpens) {
    OpenRecipients();
    const RECT bounds = Dialog().Bounds();
    const POINT smallest = Dialog().SmallestTrackingSize();
    EXPECT_EQ(smallest.x, Width(bounds));
    EXPECT_EQ(smallest.y, Height(bounds));
    Resize(-100, -100);
    EXPECT_EQ(Width(Dialog().Bounds()), smallest.x);
    EXPECT_EQ(Height(Dialog().Bounds()), smallest.y);
}

TEST_F(SelectionSize, AMaximisedWindowIsFilledToo) {
    OpenRecipients();
    const RECT found = Found().BoundsInParent();
    const LONG clientWidth = Dialog().ClientSize().cx;
    Dialog().Post(WM_SYSCOMMAND, SC_MAXIMIZE);
    ASSERT_TRUE(WaitUntil([&] { return Dialog().ClientSize().cx > clientWidth; }));
    SettleDialog();
    EXPECT_EQ(Width(Found().BoundsInParent()) - Width(found), Dialog().ClientSize().cx - clientWidth);
}

}  // namespace
}  // namespace corvane::test
