#include <map>

#include "tests/kit/driver/icon.h"
#include "tests/kit/driver/menu.h"
#include "tests/kit/driver/probe.h"
#include "tests/kit/driver/remote_block.h"
#include "tests/kit/driver/waiting.h"
#include "tests/kit/fixtures/editor_fixture.h"

#include <commctrl.h>

namespace corvane::test {
namespace {

/// The place of each control in the main window, by id.
using Places = std::map<int, RECT>;

class WindowSize : public EditorTest {
  protected:
    [[nodiscard]] Places ControlPlaces() const {
        Places places;
        for (const Window& control : Main().Children()) {
            places[control.Id()] = control.BoundsInParent();
        }
        return places;
    }
    void ResizeBy(int dx, int dy) const {
        const RECT bounds = Main().Bounds();
        const SIZE before = Main().ClientSize();
        SetWindowPos(Main().Handle(), nullptr, 0, 0, bounds.right - bounds.left + dx,
                     bounds.bottom - bounds.top + dy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        ASSERT_TRUE(WaitUntil([&] {
            const SIZE now = Main().ClientSize();
            return now.cx == before.cx + dx && now.cy == before.cy + dy;
        })) << "the client area did not become "
            << dx << " by " << dy << " larger";
        Settle();
    }
    void Minimise() const {
        Main().Post(WM_SYSCOMMAND, SC_MINIMIZE);
        ASSERT_TRUE(WaitUntil([&] { return Main().IsMinimised(); }));
    }
    void Restore() const {
        Main().Post(WM_SYSCOMMAND, SC_RESTORE);
        // The window counts as restored a moment before it has left the place off screen where minimised
        // ones wait.
        ASSERT_TRUE(WaitUntil([&] {
            RECT bounds = {};
            GetWindowRect(Main().Handle(), &bounds);
            return !Main().IsMinimised() && bounds.left > -10000;
        }));
        Settle();
    }
    void ExpectColumnsFillTheRuleList() const {
        Settle();
        EXPECT_EQ(Rules().Style() & WS_HSCROLL, 0U) << "a needless horizontal scroll bar";
        const int scrollBar = GetSystemMetrics(SM_CXVSCROLL);
        EXPECT_EQ(Rules().ColumnWidth(0), 3 * scrollBar);
        for (int column = 1; column < kRuleColumnCount; ++column) {
            EXPECT_EQ(Rules().ColumnWidth(column), (Rules().ClientSize().cx - 3 * scrollBar) / 8)
                << "column " << column;
        }
    }
    /// Tells the window that it is on a screen of another scale now, as the system does.
    void MoveToScreenOf(UINT dotsPerInch) const {
        RemoteBlock block(Main().Handle(), sizeof(RECT));
        block.Put(Main().Bounds());
        Main().Send(WM_DPICHANGED, MAKEWPARAM(dotsPerInch, dotsPerInch), block.Parameter());
    }
    static void ExpectPlace(const Places& places, int id, RECT expected) {
        const RECT found = places.at(id);
        EXPECT_TRUE(EqualRect(&found, &expected))
            << "control " << id << " was expected at " << expected.left << "," << expected.top << " to "
            << expected.right << "," << expected.bottom << "; it is at " << found.left << "," << found.top
            << " to " << found.right << "," << found.bottom;
    }
    void StoreRectangle(std::uint32_t left, std::uint32_t top, std::uint32_t right,
                        std::uint32_t bottom) const {
        WriteRegistryValue(kProgramKey, L"Window_left", left);
        WriteRegistryValue(kProgramKey, L"Window_top", top);
        WriteRegistryValue(kProgramKey, L"Window_right", right);
        WriteRegistryValue(kProgramKey, L"Window_bottom", bottom);
    }
};

TEST_F(WindowSize, GrowingBy100By50MovesAndGrowsWhatItShould) {
    StartWithSample();
    const Places before = ControlPlaces();
    ResizeBy(100, 50);
    const Places after = ControlPlaces();
    for (const auto& [id, place] : before) {
        RECT expected = place;
        switch (id) {
            case IDC_RULE_LIST:
                expected.right += 100;
                expected.bottom += 50;
                break;
            case IDC_RULE_LIST_CAPTION_EDIT:
            case IDC_SEARCH_EDIT:
                expected.right += 100;
                break;
            case IDC_PROFILE_LIST:
                expected.bottom += 50;
                break;
            case IDC_SAVE_BUTTON:
            case IDOK:
            case IDCANCEL:
                OffsetRect(&expected, 100, 50);
                break;
            default:
                break;
        }
        ExpectPlace(after, id, expected);
    }
}

TEST_F(WindowSize, ShrinkingBackPutsEverythingBack) {
    StartWithSample();
    const Places before = ControlPlaces();
    ResizeBy(120, 60);
    ResizeBy(-120, -60);
    const Places after = ControlPlaces();
    for (const auto& [id, place] : before) {
        ExpectPlace(after, id, place);
    }
}

TEST_F(WindowSize, ResizingLaysOutTheColumnsAgain) {
    StartWithSample();
    ResizeBy(100, 50);
    const int scrollBar = GetSystemMetrics(SM_CXVSCROLL);
    const int width = Rules().ClientSize().cx;
    EXPECT_EQ(Rules().ColumnWidth(0), 3 * scrollBar);
    for (int column = 1; column < kRuleColumnCount; ++column) {
        EXPECT_EQ(Rules().ColumnWidth(column), (width - 3 * scrollBar) / 8) << "column " << column;
    }
    EXPECT_EQ(Profiles().ColumnWidth(0), Profiles().ClientSize().cx);
}

// Rows that do not all fit bring a vertical scroll bar, and columns that are laid out without it a horizontal
// one.
TEST_F(WindowSize, MoreRulesThanFitBringNoHorizontalScrollBar) {
    WriteSampleConfiguration();
    for (int rule = kSampleRuleCount; rule < 40; ++rule) {
        WriteRule(L"alpha", rule, PlainRule(L"ENCR", L"rule " + std::to_wstring(rule)));
    }
    Start();
    ExpectColumnsFillTheRuleList();
    ASSERT_NE(Rules().Style() & WS_VSCROLL, 0U);
    // The bar goes, and comes back.
    OpenProfile(L"beta");
    ExpectColumnsFillTheRuleList();
    ASSERT_EQ(Rules().Style() & WS_VSCROLL, 0U);
    OpenProfile(L"alpha");
    ExpectColumnsFillTheRuleList();
    Control(IDC_SEARCH_EDIT).SetText(L"orders");
    ExpectColumnsFillTheRuleList();
    Control(IDC_SEARCH_EDIT).SetText(L"");
    Control(IDC_DELETE_PROFILE_BUTTON).PostClick();
    ExpectBox(L"Delete profile 'alpha'?", kConfirmation, IDYES);
    ExpectColumnsFillTheRuleList();
}

// At the old widths a smaller list has both scroll bars for a moment, and less room than it has without them.
TEST_F(WindowSize, AListThatIsJustHighEnoughHasNoStubColumnWhenItIsMadeNarrower) {
    StartWithSample();
    while (Rules().RowCount() < static_cast<int>(Rules().Send(LVM_GETCOUNTPERPAGE))) {
        Rules().Select({0});
        Press(IDC_COPY_RULE_BUTTON);
    }
    ResizeBy(100, 0);
    ASSERT_EQ(Rules().Style() & WS_VSCROLL, 0U);
    ResizeBy(-100, 0);
    EXPECT_EQ(Rules().Style() & WS_VSCROLL, 0U);
    ExpectColumnsFillTheRuleList();
}

// Only a scroll bar that comes or goes changes the widths: they may be the user's own.
TEST_F(WindowSize, ARefillLeavesColumnWidthsThatTheUserHasSet) {
    StartWithSample();
    Rules().Send(LVM_SETCOLUMNWIDTH, kDescriptionColumn, 5);
    Control(IDC_SEARCH_EDIT).SetText(L"orders");
    EXPECT_EQ(Rules().ColumnWidth(kDescriptionColumn), 5);
}

TEST_F(WindowSize, MinimisingAndRestoringMovesNothing) {
    StartWithSample();
    const Places before = ControlPlaces();
    Minimise();
    Restore();
    const Places after = ControlPlaces();
    for (const auto& [id, place] : before) {
        ExpectPlace(after, id, place);
    }
}

// A minimised window has no client area. Were that taken for the size that the controls stand in, they would
// all move by the whole size of the window when it is restored.
TEST_F(WindowSize, AnotherScaleAndBackWhileMinimisedMovesNothing) {
    StartWithSample();
    const Places before = ControlPlaces();
    Minimise();
    MoveToScreenOf(144);
    MoveToScreenOf(96);
    Restore();
    for (const auto& [id, place] : ControlPlaces()) {
        ExpectPlace(before, id, place);
    }
}

TEST_F(WindowSize, DrawsItsIconWhileMinimised) {
    StartWithSample();
    Minimise();
    // What a system sends that lets minimised windows draw themselves.
    const MessageWatch watch(Main(), {WM_ICONERASEBKGND});
    Main().Send(WM_PAINT);
    EXPECT_EQ(watch.Sent().size(), 1U);
    Restore();
    Main().Send(WM_PAINT);
    EXPECT_EQ(watch.Sent().size(), 1U) << "a restored window paints as a dialog";
}

TEST_F(WindowSize, IsDraggedByItsOwnIconWhileMinimised) {
    StartWithSample();
    Minimise();
    EXPECT_TRUE(IconOf(Main(), IconPlace::kDragIcon, IDI_MAIN_WINDOW).showsResource);
}

TEST_F(WindowSize, HasASmallestSize) {
    StartWithSample();
    const POINT smallest = Main().SmallestTrackingSize();
    const RECT button = Control(IDOK).Bounds();
    EXPECT_EQ(smallest.x, 11 * (button.right - button.left) + 2 * GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_EQ(smallest.y, 2 * (GetSystemMetrics(SM_CYVSCROLL) + 5 * (button.bottom - button.top)));
}

TEST_F(WindowSize, CannotBeMadeSmallerThanItsSmallestSize) {
    StartWithSample();
    const RECT button = Control(IDOK).Bounds();
    const LONG width = 11 * (button.right - button.left) + 2 * GetSystemMetrics(SM_CXVSCROLL);
    const LONG height = 2 * (GetSystemMetrics(SM_CYVSCROLL) + 5 * (button.bottom - button.top));
    SetWindowPos(Main().Handle(), nullptr, 0, 0, 100, 60, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Settle();
    const RECT bounds = Main().Bounds();
    EXPECT_EQ(bounds.right - bounds.left, width);
    EXPECT_EQ(bounds.bottom - bounds.top, height);
}

TEST_F(WindowSize, ShowsEveryControlWhollyAtItsFirstSize) {
    StartWithSample();
    const SIZE client = Main().ClientSize();
    for (const Window& control : Main().Children()) {
        const RECT place = control.BoundsInParent();
        EXPECT_TRUE(place.left >= 0 && place.top >= 0 && place.right <= client.cx &&
                    place.bottom <= client.cy)
            << "control " << control.Id() << " reaches out of the client area, to " << place.right << ","
            << place.bottom << " of " << client.cx << "," << client.cy;
    }
}

TEST_F(WindowSize, OpensWhereItWasStored) {
    WriteSampleConfiguration();
    StoreRectangle(130, 140, 1230, 640);
    Start();
    const RECT bounds = Main().RestoredBounds();
    EXPECT_EQ(bounds.left, 130);
    EXPECT_EQ(bounds.top, 140);
    EXPECT_EQ(bounds.right, 1230);
    EXPECT_EQ(bounds.bottom, 640);
}

// Deliberate: a window stored exactly at the left or the upper edge opens at its first place instead.
TEST_F(WindowSize, AStoredZeroEdgeMeansTheFirstPlace) {
    StartWithSample();
    const RECT first = Main().RestoredBounds();
    for (const auto& [left, top] : {std::pair<std::uint32_t, std::uint32_t>{0, 140}, {130, 0}}) {
        StoreRectangle(left, top, 1230, 640);
        StartAgain();
        const RECT bounds = Main().RestoredBounds();
        EXPECT_TRUE(EqualRect(&bounds, &first))
            << "stored at " << left << "," << top << " it opened at " << bounds.left << "," << bounds.top
            << " to " << bounds.right << "," << bounds.bottom << " instead of " << first.left << ","
            << first.top << " to " << first.right << "," << first.bottom;
    }
}

TEST_F(WindowSize, SavingStoresTheRestoredRectangle) {
    WriteSampleConfiguration();
    StoreRectangle(130, 140, 1230, 640);
    Start();
    SetWindowPos(Main().Handle(), nullptr, 0, 0, 1200, 560, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    Settle();
    Press(IDC_SAVE_BUTTON);
    const RECT bounds = Main().RestoredBounds();
    EXPECT_EQ(ReadRegistryValue(kProgramKey, L"Window_left"),
              RegistryData(static_cast<std::uint32_t>(bounds.left)));
    EXPECT_EQ(ReadRegistryValue(kProgramKey, L"Window_top"),
              RegistryData(static_cast<std::uint32_t>(bounds.top)));
    EXPECT_EQ(ReadRegistryValue(kProgramKey, L"Window_right"),
              RegistryData(static_cast<std::uint32_t>(bounds.right)));
    EXPECT_EQ(ReadRegistryValue(kProgramKey, L"Window_bottom"),
              RegistryData(static_cast<std::uint32_t>(bounds.bottom)));
    EXPECT_EQ(bounds.right - bounds.left, 1200);
}

class About : public EditorTest {};

TEST_F(About, StandsAtTheEndOfTheSystemMenuBelowASeparator) {
    StartWithSample();
    const std::vector<MenuItem> items = SystemMenuOf(Main());
    ASSERT_GE(items.size(), 2U);
    EXPECT_EQ(items.back().id, IDM_ABOUT);
    EXPECT_EQ(items.back().text, L"About programm...");
    EXPECT_TRUE(items[items.size() - 2].isSeparator);
}

TEST_F(About, ShowsTheProductAndTheVersion) {
    StartWithSample();
    Main().Post(WM_SYSCOMMAND, IDM_ABOUT);
    const Window box = Editor().WaitForDialog(Main());
    EXPECT_EQ(box.Text(), L"About programm...");
    EXPECT_EQ(box.Control(IDC_ABOUT_PRODUCT_TEXT).Text(), L"Client Velmaris");
    EXPECT_EQ(box.Control(IDC_ABOUT_VERSION_TEXT).Text(),
              L"QENT AC Velmaris - configuration (x64) Version " CORVANE_SHOWN_VERSION);
    EXPECT_FALSE(box.Control(IDC_ABOUT_MAKER_TEXT).Text().empty());
    EXPECT_EQ(LOWORD(box.Send(DM_GETDEFID)), IDOK);
    box.Control(IDOK).PostClick();
    box.WaitUntilGone();
    WaitForMain();
    ExpectNothingToSave();
}

TEST_F(About, IgnoresTheLowFourBitsThatTheSystemKeepsForItself) {
    StartWithSample();
    Main().Post(WM_SYSCOMMAND, IDM_ABOUT | 2);
    const Window box = Editor().WaitForDialog(Main());
    EXPECT_EQ(box.Text(), L"About programm...");
    box.FocusOfThread().PostKey(VK_ESCAPE);
    box.WaitUntilGone();
}

}  // namespace
}  // namespace corvane::test
