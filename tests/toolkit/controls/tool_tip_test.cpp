#include "toolkit/controls/tool_tip.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <array>
#include <string>

#include "tests/toolkit/test_dialog.h"
#include "tests/toolkit/test_window.h"

namespace corvane::test {
namespace {

class ToolTipTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(dialog_.CreateModeless());
        toolTip_.Create(dialog_.Window());
        ASSERT_NE(toolTip_.Window(), nullptr);
    }

    [[nodiscard]] std::wstring TextOf(int controlId) const {
        std::array<wchar_t, 500> text = {};
        TTTOOLINFOW tool = {};
        tool.cbSize = sizeof tool;
        tool.hwnd = dialog_.Window();
        tool.uId = reinterpret_cast<UINT_PTR>(dialog_.Control(controlId));
        tool.lpszText = text.data();
        SendMessageW(toolTip_.Window(), TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
        return text.data();
    }

    TestDialog dialog_;
    toolkit::ToolTip toolTip_;
};

TEST_F(ToolTipTest, EachToolHasItsText) {
    toolTip_.Add(dialog_.Control(IDOK), L"Take it");
    toolTip_.Add(dialog_.Control(IDCANCEL), L"Leave & go");
    EXPECT_EQ(SendMessageW(toolTip_.Window(), TTM_GETTOOLCOUNT, 0, 0), 2);
    EXPECT_EQ(TextOf(IDOK), L"Take it");
    EXPECT_EQ(TextOf(IDCANCEL), L"Leave & go");
    EXPECT_EQ(TextOf(IDC_TEXT_EDIT), L"");
}

TEST_F(ToolTipTest, TheTextIsCopied) {
    std::wstring text = L"Take it";
    toolTip_.Add(dialog_.Control(IDOK), text.c_str());
    text = L"-------";
    EXPECT_EQ(TextOf(IDOK), L"Take it");
}

TEST_F(ToolTipTest, ATextIsReplacedForItsControlOnly) {
    toolTip_.Add(dialog_.Control(IDOK), L"Add recipients");
    toolTip_.Add(dialog_.Control(IDCANCEL), L"Leave");
    toolTip_.SetText(dialog_.Control(IDOK), L"Add signers");
    EXPECT_EQ(TextOf(IDOK), L"Add signers");
    EXPECT_EQ(TextOf(IDCANCEL), L"Leave");
    EXPECT_EQ(SendMessageW(toolTip_.Window(), TTM_GETTOOLCOUNT, 0, 0), 2);
}

// What the tooltip control is told: relayed messages arrive in it as this.
class RelayCount {
  public:
    explicit RelayCount(HWND toolTip)
        : watcher_(toolTip, [this](UINT message) { count_ += message == TTM_RELAYEVENT ? 1 : 0; }) {}
    [[nodiscard]] int Count() const { return count_; }

  private:
    int count_ = 0;
    MessageWatcher watcher_;
};

TEST_F(ToolTipTest, MessagesAreRelayed) {
    const RelayCount relayed(toolTip_.Window());
    MSG message = {};
    message.hwnd = dialog_.Control(IDOK);
    message.message = WM_MOUSEMOVE;
    toolTip_.Relay(message);
    EXPECT_EQ(relayed.Count(), 1);
}

TEST(ToolTip, ShowsTheToolUnderTheMouseOnlyWhileActive) {
    TestDialog dialog(IDD_FORM);
    toolkit::ToolTip toolTip;
    ASSERT_TRUE(dialog.CreateModeless());
    toolTip.Create(dialog.Window());
    toolTip.Add(dialog.Control(IDOK), L"Take it");
    SendMessageW(toolTip.Window(), TTM_SETDELAYTIME, TTDT_INITIAL, 0);
    SetActiveWindow(dialog.Window());

    const auto isPoppedUp = [&](bool isActive) {
        toolTip.Activate(isActive);
        RECT button = {};
        GetWindowRect(dialog.Control(IDOK), &button);
        SetCursorPos(button.left + 5, button.top + 5);
        bool hasTool = false;
        MSG move = {};
        move.hwnd = dialog.Control(IDOK);
        move.message = WM_MOUSEMOVE;
        move.lParam = MAKELPARAM(5, 5);
        toolTip.Relay(move);
        TTTOOLINFOW tool = {};
        tool.cbSize = sizeof tool;
        const ULONGLONG start = GetTickCount64();
        const ULONGLONG limit = isActive ? 10000 : 0;
        do {
            for (MSG message = {}; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;) {
                DispatchMessageW(&message);
            }
            hasTool = IsWindowVisible(toolTip.Window()) != FALSE;
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
        } while (!hasTool && GetTickCount64() - start < limit);
        return hasTool;
    };
    EXPECT_FALSE(isPoppedUp(false));
    EXPECT_TRUE(isPoppedUp(true));
    toolTip.Activate(false);
    EXPECT_FALSE(IsWindowVisible(toolTip.Window()));
}

TEST_F(ToolTipTest, DiesWithTheDialog) {
    const HWND window = toolTip_.Window();
    dialog_.DestroyDialogWindow();
    EXPECT_FALSE(IsWindow(window));
}

TEST(ToolTip, RelaysNothingBeforeItIsCreated) {
    const toolkit::ToolTip toolTip;
    toolTip.Relay(MSG{});
    EXPECT_EQ(toolTip.Window(), nullptr);
}

}  // namespace
}  // namespace corvane::test
