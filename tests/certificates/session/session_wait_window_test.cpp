#include <algorithm>

#include "certificates/session/wait_window.h"
#include "tests/kit/fixtures/session_fixture.h"
#include "tests/kit/scriptable_library/held_call.h"

namespace corvane::test {
namespace {

class WaitWindowTest : public SessionTest {
  protected:
    WaitWindowTest() { CheckNothing(); }

    /// Starts what opens a cryptocontext, and waits for the window that comes up while the library is held.
    Window PressAndWait() const {
        PressOpen();
        return WaitForWaitWindow(Program());
    }

    static void ExpectInTheMiddle(const Window& window, const Window& owner) {
        const RECT outer = owner.RestoredBounds();
        const RECT inner = window.RestoredBounds();
        EXPECT_EQ(inner.left, outer.left + (outer.right - outer.left) / 2 - (inner.right - inner.left) / 2);
        EXPECT_EQ(inner.top, outer.top + (outer.bottom - outer.top) / 2 - (inner.bottom - inner.top) / 2);
    }
};

TEST_F(WaitWindowTest, StandsWithItsTextWhileTheLibraryIsAtWork) {
    HeldCall held(script, "Initialize", 1);
    StartHost();
    const Window window = PressAndWait();
    EXPECT_EQ(Utf8(StoredText(window.Control(IDC_WAIT_TEXT))), Utf8(certificates::kWaitText));
    EXPECT_EQ(Utf8(StoredText(window)), Utf8(kProgramTitle));
    EXPECT_EQ(window.Owner(), Main());
    EXPECT_FALSE(Main().IsEnabled()) << "the owner collects clicks that nobody sees";
    EXPECT_EQ(window.Style() & (WS_SYSMENU | WS_THICKFRAME), 0U) << "it offers to be closed or resized";
    EXPECT_TRUE(Calls("Initialize").empty()) << "the library has answered too early for this test";
    held.Release();
    window.WaitUntilGone();
    static_cast<void>(WaitForDialogOf(Main()));
}

TEST_F(WaitWindowTest, IsPaintedBeforeTheLibraryIsCalled) {
    HeldCall held(script, "Initialize", 1);
    StartHost();
    const Window text = PressAndWait().Control(IDC_WAIT_TEXT);
    const RECT place = text.Bounds();
    const auto countPixels = [&](COLORREF colour) {
        const HDC screen = GetDC(nullptr);
        int count = 0;
        for (int y = place.top; y < place.bottom; ++y) {
            for (int x = place.left; x < place.right; ++x) {
                count += GetPixel(screen, x, y) == colour ? 1 : 0;
            }
        }
        ReleaseDC(nullptr, screen);
        return count;
    };
    // The program does not paint any more while it is held, so this comes from before the call or never.
    EXPECT_TRUE(WaitUntil([&] { return countPixels(GetSysColor(COLOR_WINDOWTEXT)) > 100; }))
        << "the text is not on the screen";
    EXPECT_GT(countPixels(GetSysColor(COLOR_BTNFACE)), 1000) << "the background is not on the screen";
    held.Release();
}

TEST_F(WaitWindowTest, StandsInTheMiddleOfItsOwner) {
    HeldCall held(script, "Initialize", 1);
    StartHost();
    MoveWindow(Main().Handle(), 333, 211, 777, 555, TRUE);
    ExpectInTheMiddle(PressAndWait(), Main());
    held.Release();
}

TEST_F(WaitWindowTest, StandsInTheMiddleOfTheSignerListsDialog) {
    setup.dialog = HostSetup::Dialog::kSignerLists;
    HeldCall held(script, "Initialize", 1);
    StartHost();
    const Window dialog = OpenDialog();
    dialog.Control(IDC_SIGNER_LISTS_ADD_BUTTON).PostClick();
    const Window window = WaitForWaitWindow(Program());
    EXPECT_EQ(window.Owner(), dialog);
    ExpectInTheMiddle(window, dialog);
    held.Release();
}

TEST_F(WaitWindowTest, LeavesTheFocusWhereItWas) {
    setup.dialog = HostSetup::Dialog::kSignerLists;
    HeldCall held(script, "Initialize", 1);
    script.Status("Initialize", 1, 0xE0700010);
    StartHost();
    const Window dialog = OpenDialog();
    const Window button = dialog.Control(IDC_SIGNER_LISTS_ADD_BUTTON);
    button.PostLeftClick({5, 5});
    static_cast<void>(WaitForWaitWindow(Program()));
    button.WaitForFocus();
    held.Release();
    WaitForWarningBox(dialog).Control(IDCANCEL).PostClick();
    button.WaitForFocus();
    EXPECT_EQ(Leave(dialog, IDCANCEL), HostCancelled(1));
}

TEST_F(WaitWindowTest, IsGoneBeforeAFailureIsShown) {
    HeldCall held(script, "Initialize", 1);
    script.Status("Initialize", 1, 0xE0700010);
    StartHost();
    const Window window = PressAndWait();
    held.Release();
    const Window box = WaitForWarningBox(Main());
    EXPECT_FALSE(window.IsLive());
    box.Control(IDCANCEL).PostClick();
    EXPECT_EQ(Result(), HostCancelled(1));
}

TEST_F(WaitWindowTest, IsGoneBeforeTheChecks) {
    CheckNetworkStoreOnly();
    HeldCall held(script, "Initialize", 1);
    HeldCall heldSearch(script, "FindCert", 1);
    StartHost();
    const Window window = PressAndWait();
    held.Release();
    ASSERT_TRUE(WaitUntil([&] { return Calls("Initialize").size() == 1; }));
    window.WaitUntilGone();
    EXPECT_TRUE(Calls("FindCert").empty());
    heldSearch.Release();
}

TEST_F(WaitWindowTest, DoesNotComeWithoutALibrary) {
    StartHost(Library::kNone);
    PressOpen();
    const MessageBoxWindow box = WaitForMessageBox(Main());
    for (const Window& window : Program().TopLevelWindows()) {
        EXPECT_FALSE(window.HasControl(IDC_WAIT_TEXT));
    }
    box.Answer(IDOK);
}

}  // namespace
}  // namespace corvane::test
