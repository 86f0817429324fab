#include "toolkit/dialog/modal_state.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <optional>

#include "tests/toolkit/box_closer.h"
#include "tests/toolkit/test_dialog.h"
#include "tests/toolkit/test_window.h"
#include "toolkit/system/message_presenter.h"

namespace corvane::test {
namespace {

// A top-level window of the given look that is gone with this object.
class OtherWindow {
  public:
    OtherWindow(DWORD extendedStyle, DWORD style)
        : handle_(CreateWindowExW(extendedStyle, L"STATIC", L"", style, 0, 0, 50, 50, nullptr, nullptr,
                                  nullptr, nullptr)) {}
    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;
    OtherWindow(OtherWindow&&) = delete;
    OtherWindow& operator=(OtherWindow&&) = delete;
    ~OtherWindow() { DestroyWindow(handle_); }

    [[nodiscard]] HWND Handle() const { return handle_; }

  private:
    HWND handle_;
};

TEST(ModalState, DisablesEveryWindowOfTheThreadAndEnablesThemAgain) {
    const TestWindow first;
    const TestWindow second;
    {
        const toolkit::ModalState state;
        EXPECT_FALSE(IsWindowEnabled(first.Handle()));
        EXPECT_FALSE(IsWindowEnabled(second.Handle()));
    }
    EXPECT_TRUE(IsWindowEnabled(first.Handle()));
    EXPECT_TRUE(IsWindowEnabled(second.Handle()));
}

TEST(ModalState, AMinimisedWindowAndAHiddenDialogAreDisabledToo) {
    const TestWindow minimised;
    ShowWindow(minimised.Handle(), SW_SHOWMINNOACTIVE);
    TestDialog hidden(IDD_HIDDEN_FORM);
    ASSERT_TRUE(hidden.CreateModeless());
    ASSERT_FALSE(IsWindowVisible(hidden.Window()));
    const toolkit::ModalState state;
    EXPECT_FALSE(IsWindowEnabled(minimised.Handle()));
    EXPECT_FALSE(IsWindowEnabled(hidden.Window()));
}

TEST(ModalState, TheExemptWindowIsLeftAloneAlsoWhenAControlOfItIsNamed) {
    const TestWindow other;
    TestDialog exempt(IDD_FORM);
    ASSERT_TRUE(exempt.CreateModeless());
    const toolkit::ModalState state(exempt.Control(IDC_TEXT_EDIT));
    EXPECT_TRUE(IsWindowEnabled(exempt.Window()));
    EXPECT_FALSE(IsWindowEnabled(other.Handle()));
}

TEST(ModalState, AWindowThatWasDisabledStaysSo) {
    const TestWindow window;
    EnableWindow(window.Handle(), FALSE);
    static_cast<void>(toolkit::ModalState());
    EXPECT_FALSE(IsWindowEnabled(window.Handle()));
}

TEST(ModalState, AWindowMadeMeanwhileTakesInputAndIsLeftAlone) {
    std::optional<TestWindow> later;
    {
        const toolkit::ModalState state;
        later.emplace();
        EXPECT_TRUE(IsWindowEnabled(later->Handle()));
        EnableWindow(later->Handle(), FALSE);
    }
    EXPECT_FALSE(IsWindowEnabled(later->Handle())) << "It is not this object that disabled it.";
}

TEST(ModalState, AWindowThatDiesMeanwhileIsForgotten) {
    const TestWindow stays;
    std::optional<TestWindow> dies(std::in_place);
    {
        const toolkit::ModalState state;
        dies.reset();
    }
    EXPECT_TRUE(IsWindowEnabled(stays.Handle()));
}

TEST(ModalState, TooltipsAndHiddenHelpersAreLeftAlone) {
    TestDialog dialog(IDD_FORM);
    ASSERT_TRUE(dialog.CreateModeless());
    const OtherWindow tip(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, WS_POPUP | WS_VISIBLE);
    const OtherWindow helper(0, WS_POPUP);
    const toolkit::ModalState state;
    EXPECT_FALSE(IsWindowEnabled(dialog.Window()));
    EXPECT_TRUE(IsWindowEnabled(tip.Handle()));
    EXPECT_TRUE(IsWindowEnabled(helper.Handle()));
}

TEST(ModalState, Nests) {
    const TestWindow outer;
    {
        const toolkit::ModalState first;
        const TestWindow inner;
        {
            const toolkit::ModalState second;
            EXPECT_FALSE(IsWindowEnabled(inner.Handle()));
        }
        EXPECT_TRUE(IsWindowEnabled(inner.Handle()));
        EXPECT_FALSE(IsWindowEnabled(outer.Handle())) << "It belongs to the outer one.";
    }
    EXPECT_TRUE(IsWindowEnabled(outer.Handle()));
}

TEST(ModalState, ActivationComesBackWhereItWasLost) {
    const TestWindow used;
    const TestWindow topmost;
    SetActiveWindow(used.Handle());
    {
        const toolkit::ModalState state;
        // As a box without owner leaves it that closes while nothing else can be active.
        TestWindow box;
    }
    EXPECT_EQ(GetActiveWindow(), used.Handle());
    EXPECT_EQ(GetFocus(), used.Handle());
}

TEST(ModalState, FocusStaysInTheControlThatHasIt) {
    TestDialog dialog(IDD_FORM);
    ASSERT_TRUE(dialog.CreateModeless());
    SetActiveWindow(dialog.Window());
    SetFocus(dialog.Control(IDC_NUMBER_EDIT));
    static_cast<void>(toolkit::ModalState());
    EXPECT_EQ(GetFocus(), dialog.Control(IDC_NUMBER_EDIT));
}

TEST(ModalState, TheWindowInUseIsTheActiveOne) {
    const TestWindow used;
    const TestWindow topmost;
    SetActiveWindow(used.Handle());
    EXPECT_EQ(toolkit::ModalState().WindowInUse(), used.Handle());
}

TEST(ModalState, WithoutAnActiveWindowTheTopmostOneIsInUse) {
    const TestWindow below;
    const TestWindow topmost;
    const OtherWindow tip(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, WS_POPUP | WS_VISIBLE);
    SetWindowPos(topmost.Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    SetActiveWindow(nullptr);
    ASSERT_EQ(GetActiveWindow(), nullptr);
    EXPECT_EQ(toolkit::ModalState().WindowInUse(), topmost.Handle());
}

// Shows a box over two windows; tells what could be used meanwhile.
struct UsableDuringBox {
    bool owner = true;
    bool other = true;
    HWND owned = nullptr;
};

UsableDuringBox ShowBox(const TestWindow& owner, const TestWindow& other, HWND boxOwner) {
    UsableDuringBox usable;
    BoxCloser closer([&](HWND box) {
        usable = {IsWindowEnabled(owner.Handle()) != FALSE, IsWindowEnabled(other.Handle()) != FALSE,
                  GetWindow(box, GW_OWNER)};
    });
    EXPECT_EQ(toolkit::WindowsMessagePresenter().Show(boxOwner, L"Text", L"Title", MB_ICONWARNING | MB_OK),
              IDOK);
    EXPECT_EQ(closer.Boxes().size(), 1U);
    return usable;
}

TEST(ModalMessageBox, DisablesTheOtherWindowsToo) {
    const TestWindow other;
    const TestWindow owner;
    const UsableDuringBox usable = ShowBox(owner, other, owner.Handle());
    EXPECT_FALSE(usable.owner);
    EXPECT_FALSE(usable.other);
    EXPECT_EQ(usable.owned, owner.Handle());
    EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
    EXPECT_TRUE(IsWindowEnabled(other.Handle()));
    EXPECT_EQ(GetActiveWindow(), owner.Handle());
}

TEST(ModalMessageBox, WithoutAnOwnerDisablesThemAllAndGivesBackTheFocus) {
    const TestWindow other;
    const TestWindow used;
    const UsableDuringBox usable = ShowBox(used, other, nullptr);
    EXPECT_FALSE(usable.owner);
    EXPECT_FALSE(usable.other);
    EXPECT_EQ(usable.owned, nullptr);
    EXPECT_TRUE(IsWindowEnabled(used.Handle()));
    EXPECT_TRUE(IsWindowEnabled(other.Handle()));
    EXPECT_EQ(GetActiveWindow(), used.Handle());
}

}  // namespace
}  // namespace corvane::test
