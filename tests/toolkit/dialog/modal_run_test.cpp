#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <stdexcept>
#include <thread>

#include "tests/toolkit/box_closer.h"
#include "tests/toolkit/test_dialog.h"
#include "tests/toolkit/test_window.h"

namespace corvane::test {
namespace {

constexpr int kOwnResult = 77;

void Press(const TestDialog& dialog, int controlId) {
    SendMessageW(dialog.Control(controlId), BM_CLICK, 0, 0);
}

// A key as it comes from the queue: what it means is found out by the dialog.
void PostKey(HWND window, WPARAM key) {
    PostMessageW(window, WM_KEYDOWN, key, 1);
}

TEST(RunModal, OkGivesIdOk) {
    TestDialog dialog;
    dialog.whenIdle = [&] { Press(dialog, IDOK); };
    EXPECT_EQ(dialog.RunModal(), IDOK);
}

TEST(RunModal, CancelGivesIdCancel) {
    TestDialog dialog;
    dialog.whenIdle = [&] { Press(dialog, IDCANCEL); };
    EXPECT_EQ(dialog.RunModal(), IDCANCEL);
}

TEST(RunModal, TheCloseBoxIsCancel) {
    TestDialog dialog;
    dialog.whenIdle = [&] { PostMessageW(dialog.Window(), WM_SYSCOMMAND, SC_CLOSE, 0); };
    EXPECT_EQ(dialog.RunModal(), IDCANCEL);
}

TEST(RunModal, GivesTheResultThatItWasEndedWith) {
    TestDialog dialog;
    dialog.whenIdle = [&] {
        dialog.EndModal(kOwnResult);
        dialog.EndModal(IDOK);
    };
    EXPECT_EQ(dialog.RunModal(), kOwnResult) << "The first end counts.";
}

TEST(RunModal, MayEndInOnInitDialog) {
    TestDialog dialog;
    dialog.onInit = [&] {
        dialog.EndModal(kOwnResult);
        return true;
    };
    dialog.whenIdle = [] { ADD_FAILURE() << "The dialog ran although it had ended."; };
    EXPECT_EQ(dialog.RunModal(), kOwnResult);
    EXPECT_EQ(dialog.Window(), nullptr);
}

TEST(RunModal, MayRunAgain) {
    TestDialog dialog;
    dialog.whenIdle = [&] { dialog.EndModal(kOwnResult); };
    EXPECT_EQ(dialog.RunModal(), kOwnResult);
    dialog.whenIdle = [&] { Press(dialog, IDCANCEL); };
    EXPECT_EQ(dialog.RunModal(), IDCANCEL);
}

TEST(RunModal, LeavesNoWindow) {
    TestDialog dialog;
    HWND window = nullptr;
    dialog.whenIdle = [&] {
        window = dialog.Window();
        EXPECT_TRUE(IsWindowVisible(window)) << "A modal dialog is shown, whatever its template says.";
        Press(dialog, IDOK);
    };
    dialog.RunModal();
    EXPECT_EQ(dialog.Window(), nullptr);
    ASSERT_NE(window, nullptr);
    EXPECT_FALSE(IsWindow(window));
}

TEST(RunModal, QuitEndsItLikeCancelAndIsHandedOn) {
    TestDialog dialog;
    dialog.whenIdle = [] { PostQuitMessage(5); };
    EXPECT_EQ(dialog.RunModal(), IDCANCEL);
    MSG quit = {};
    ASSERT_TRUE(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(quit.wParam, 5U);
}

TEST(RunModal, AMissingTemplateGivesMinusOneAndLeavesTheOwnerAlone) {
    const TestWindow owner;
    TestDialog dialog(IDD_NOWHERE, owner.Handle());
    EXPECT_EQ(dialog.RunModal(), -1);
    EXPECT_EQ(dialog.Window(), nullptr);
    EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
}

TEST(RunModal, AWindowDestroyedFromOutsideIsCancel) {
    TestDialog dialog;
    dialog.whenIdle = [&] { DestroyWindow(dialog.Window()); };
    EXPECT_EQ(dialog.RunModal(), IDCANCEL);
}

TEST(RunModal, AnOwnerThatDiesTakesTheDialogWithIt) {
    const TestWindow owner;
    TestDialog dialog(IDD_HIDDEN_FORM, owner.Handle());
    dialog.whenIdle = [&] { DestroyWindow(owner.Handle()); };
    EXPECT_EQ(dialog.RunModal(), IDCANCEL);
}

// Runs the dialog until `act`, called by a message that another thread sends while the loop waits.
int RunUntilSentMessage(TestDialog& dialog, TestWindow& window, const std::function<void()>& act) {
    std::thread sender;
    window.onAppMessage = act;
    dialog.whenIdle = [&] {
        sender = std::thread([handle = window.Handle()] { SendMessageW(handle, WM_APP, 0, 0); });
    };
    const int result = dialog.RunModal();
    if (sender.joinable()) {
        sender.join();
    }
    return result;
}

TEST(RunModal, EndsWhenAMessageOfAnotherThreadEndsIt) {
    TestWindow window;
    TestDialog dialog;
    EXPECT_EQ(RunUntilSentMessage(dialog, window, [&] { dialog.EndModal(kOwnResult); }), kOwnResult);
}

TEST(RunModal, EndsWhenAMessageOfAnotherThreadDestroysTheWindow) {
    TestWindow window;
    TestDialog dialog;
    EXPECT_EQ(RunUntilSentMessage(dialog, window, [&] { DestroyWindow(dialog.Window()); }), IDCANCEL);
}

TEST(RunModal, TheOwnerIsDisabledMeanwhile) {
    const TestWindow owner;
    TestDialog dialog(IDD_HIDDEN_FORM, owner.Handle());
    dialog.whenIdle = [&] {
        EXPECT_FALSE(IsWindowEnabled(owner.Handle()));
        EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), owner.Handle());
        Press(dialog, IDOK);
    };
    dialog.RunModal();
    EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
}

TEST(RunModal, TheOwnerIsEnabledAndActiveBeforeTheWindowDies) {
    const TestWindow owner;
    TestDialog dialog(IDD_HIDDEN_FORM, owner.Handle());
    std::optional<MessageWatcher> watcher;
    bool hasDied = false;
    dialog.whenIdle = [&] {
        SetActiveWindow(dialog.Window());
        watcher.emplace(dialog.Window(), [&](UINT message) {
            if (message == WM_DESTROY) {
                hasDied = true;
                EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
                EXPECT_EQ(GetActiveWindow(), owner.Handle());
                EXPECT_FALSE(IsWindowVisible(dialog.Window()));
            }
        });
        Press(dialog, IDOK);
    };
    dialog.RunModal();
    EXPECT_TRUE(hasDied);
    EXPECT_EQ(GetActiveWindow(), owner.Handle());
}

TEST(RunModal, AnOwnerThatWasDisabledBeforeStaysDisabled) {
    const TestWindow owner;
    EnableWindow(owner.Handle(), FALSE);
    TestDialog dialog(IDD_HIDDEN_FORM, owner.Handle());
    dialog.whenIdle = [&] { Press(dialog, IDOK); };
    dialog.RunModal();
    EXPECT_FALSE(IsWindowEnabled(owner.Handle()));
}

TEST(RunModal, WhatOnInitDialogThrowsComesOutAndLeavesNoWindow) {
    const TestWindow owner;
    TestDialog dialog(IDD_HIDDEN_FORM, owner.Handle());
    HWND window = nullptr;
    dialog.onInit = [&]() -> bool {
        window = dialog.Window();
        throw std::out_of_range("no entry");
    };
    EXPECT_THROW(dialog.RunModal(), std::out_of_range);
    ASSERT_NE(window, nullptr);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(dialog.Window(), nullptr);
    EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
    EXPECT_TRUE(dialog.reported.empty());
}

TEST(RunModal, AWindowWhoseInitialisationThrewIsNeverShown) {
    TestDialog dialog(IDD_FORM);
    std::optional<MessageWatcher> watcher;
    bool wasShown = false;
    dialog.onInit = [&]() -> bool {
        watcher.emplace(dialog.Window(), [&](UINT message) { wasShown |= message == WM_SHOWWINDOW; });
        throw std::out_of_range("no entry");
    };
    EXPECT_THROW(dialog.RunModal(), std::out_of_range);
    EXPECT_FALSE(wasShown);
}

TEST(RunModal, WhatAHandlerThrowsIsReportedAndTheDialogGoesOn) {
    TestDialog dialog;
    dialog.onCommand = [&](int controlId, UINT) -> bool {
        if (controlId == IDC_CHOICE_CHECK) {
            throw std::runtime_error("no such row");
        }
        return false;
    };
    dialog.whenIdle = [&] {
        Press(dialog, IDC_CHOICE_CHECK);
        EXPECT_FALSE(dialog.HasEnded());
        Press(dialog, IDOK);
    };
    EXPECT_EQ(dialog.RunModal(), IDOK);
    EXPECT_EQ(dialog.reported, std::vector<std::string>{"no such row"});
}

TEST(RunModal, WhatIsThrownBeforeAMessageIsDispatchedIsReportedAndTheDialogGoesOn) {
    TestDialog dialog;
    dialog.preTranslate = [&](const MSG& message) -> bool {
        if (message.message == WM_APP) {
            throw std::runtime_error("no such key");
        }
        return false;
    };
    dialog.whenIdle = [&] {
        PostMessageW(dialog.Window(), WM_APP, 0, 0);
        PostMessageW(dialog.Window(), WM_COMMAND, IDOK, 0);
    };
    EXPECT_EQ(dialog.RunModal(), IDOK);
    EXPECT_EQ(dialog.reported, std::vector<std::string>{"no such key"});
}

TEST(RunModal, SomethingThrownThatIsNoExceptionIsReportedToo) {
    TestDialog dialog;
    dialog.onSystemCommand = [](WPARAM) -> bool { throw 1; };
    dialog.whenIdle = [&] {
        SendMessageW(dialog.Window(), WM_SYSCOMMAND, SC_CLOSE, 0);
        Press(dialog, IDOK);
    };
    EXPECT_EQ(dialog.RunModal(), IDOK);
    EXPECT_EQ(dialog.reported, std::vector<std::string>{"An unknown error occurred."});
}

TEST(RunModal, ADialogWithoutWordsOfItsOwnReportsInAMessageBox) {
    BoxCloser closer;
    TestDialog dialog;
    dialog.reportException = [&](const std::exception& exception) {
        dialog.ReportAsTheBaseClassDoes(exception);
    };
    dialog.onSystemCommand = [](WPARAM) -> bool { throw std::runtime_error("no such row"); };
    dialog.whenIdle = [&] {
        SendMessageW(dialog.Window(), WM_SYSCOMMAND, SC_CLOSE, 0);
        Press(dialog, IDOK);
    };
    EXPECT_EQ(dialog.RunModal(), IDOK);
    const auto boxes = closer.Boxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, L"no such row");
}

TEST(RunModal, EveryMessageIsSeenBeforeItIsDispatched) {
    TestDialog dialog;
    std::optional<MessageWatcher> watcher;
    std::vector<std::wstring> order;
    dialog.preTranslate = [&](const MSG& message) {
        if (message.message == WM_APP || message.message == WM_APP + 1) {
            order.emplace_back(message.message == WM_APP ? L"first seen" : L"second seen");
        }
        return message.message == WM_APP + 1;
    };
    dialog.whenIdle = [&] {
        watcher.emplace(dialog.Control(IDC_NAME_TEXT), [&](UINT message) {
            if (message == WM_APP || message == WM_APP + 1) {
                order.emplace_back(message == WM_APP ? L"first dispatched" : L"second dispatched");
            }
        });
        PostMessageW(dialog.Control(IDC_NAME_TEXT), WM_APP, 0, 0);
        PostMessageW(dialog.Control(IDC_NAME_TEXT), WM_APP + 1, 0, 0);
        PostMessageW(dialog.Window(), WM_COMMAND, IDOK, 0);
    };
    EXPECT_EQ(dialog.RunModal(), IDOK);
    EXPECT_EQ(order, (std::vector<std::wstring>{L"first seen", L"first dispatched", L"second seen"}))
        << "A message that was used up is not dispatched.";
}

TEST(RunModal, EnterPressesTheDefaultButton) {
    TestDialog dialog;
    dialog.whenIdle = [&] {
        SetFocus(dialog.Control(IDC_TEXT_EDIT));
        PostKey(dialog.Control(IDC_TEXT_EDIT), VK_RETURN);
    };
    EXPECT_EQ(dialog.RunModal(), IDOK);
}

TEST(RunModal, EnterPressesAnotherDefaultButtonWhereThereIsOne) {
    TestDialog dialog;
    dialog.onCommand = [&](int controlId, UINT code) {
        if (controlId == IDC_TALL_BUTTON && code == BN_CLICKED) {
            dialog.EndModal(kOwnResult);
        }
        return false;
    };
    dialog.whenIdle = [&] {
        SendMessageW(dialog.Window(), DM_SETDEFID, IDC_TALL_BUTTON, 0);
        SetFocus(dialog.Control(IDC_TEXT_EDIT));
        PostKey(dialog.Control(IDC_TEXT_EDIT), VK_RETURN);
    };
    EXPECT_EQ(dialog.RunModal(), kOwnResult);
}

TEST(RunModal, EscapeCancels) {
    TestDialog dialog;
    dialog.whenIdle = [&] { PostKey(dialog.Control(IDC_TEXT_EDIT), VK_ESCAPE); };
    EXPECT_EQ(dialog.RunModal(), IDCANCEL);
}

TEST(RunModal, TabMovesTheFocus) {
    TestDialog dialog;
    dialog.preTranslate = [&](const MSG& message) {
        if (message.message == WM_APP) {
            EXPECT_EQ(GetFocus(), dialog.Control(IDC_NUMBER_EDIT));
            dialog.EndModal(kOwnResult);
        }
        return message.message == WM_APP;
    };
    dialog.whenIdle = [&] {
        SetFocus(dialog.Control(IDC_TEXT_EDIT));
        PostKey(dialog.Control(IDC_TEXT_EDIT), VK_TAB);
        PostMessageW(dialog.Window(), WM_APP, 0, 0);
    };
    EXPECT_EQ(dialog.RunModal(), kOwnResult);
}

TEST(RunModal, KeysNeverReachTheOwner) {
    const TestWindow owner;
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_ESCAPE}}) {
        TestDialog dialog(IDD_HIDDEN_FORM, owner.Handle());
        dialog.whenIdle = [&] {
            PostKey(dialog.Control(IDC_TEXT_EDIT), VK_TAB);
            PostKey(dialog.Control(IDC_TEXT_EDIT), 'A');
            PostKey(dialog.Control(IDC_TEXT_EDIT), key);
            PostMessageW(dialog.Control(IDC_TEXT_EDIT), WM_KEYUP, key, 1);
        };
        dialog.RunModal();
    }
    for (MSG message = {}; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;) {
        DispatchMessageW(&message);
    }
    for (const int message : {WM_KEYDOWN, WM_KEYUP, WM_CHAR, WM_COMMAND}) {
        EXPECT_FALSE(owner.HasSeen(static_cast<UINT>(message))) << "message " << message;
    }
}

TEST(RunModal, WithoutAnOwnerEveryWindowIsDisabledAndTheOneInUseIsActiveAgain) {
    const TestWindow other;
    const TestWindow used;
    // What the system would choose by itself is another one.
    SetWindowPos(other.Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    TestDialog dialog;
    std::optional<MessageWatcher> watcher;
    HWND activeAtDeath = nullptr;
    dialog.whenIdle = [&] {
        EXPECT_FALSE(IsWindowEnabled(used.Handle()));
        EXPECT_FALSE(IsWindowEnabled(other.Handle()));
        EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), nullptr);
        EXPECT_TRUE(IsWindowEnabled(dialog.Window()));
        SetActiveWindow(dialog.Window());
        watcher.emplace(dialog.Window(), [&](UINT message) {
            activeAtDeath = message == WM_DESTROY ? GetActiveWindow() : activeAtDeath;
        });
        Press(dialog, IDOK);
    };
    dialog.RunModal();
    EXPECT_TRUE(IsWindowEnabled(used.Handle()));
    EXPECT_TRUE(IsWindowEnabled(other.Handle()));
    EXPECT_EQ(activeAtDeath, used.Handle()) << "another program's window comes up";
    EXPECT_EQ(GetActiveWindow(), used.Handle());
}

TEST(RunModal, WithAnOwnerTheOtherWindowsAreDisabledToo) {
    const TestWindow other;
    const TestWindow owner;
    TestDialog dialog(IDD_HIDDEN_FORM, owner.Handle());
    dialog.whenIdle = [&] {
        EXPECT_FALSE(IsWindowEnabled(other.Handle()));
        Press(dialog, IDOK);
    };
    dialog.RunModal();
    EXPECT_TRUE(IsWindowEnabled(other.Handle()));
}

TEST(RunModal, WithoutAnOwnerItStandsOverTheWindowInUse) {
    const TestWindow used;
    MoveWindow(used.Handle(), 500, 300, 800, 600, TRUE);
    SetActiveWindow(used.Handle());
    TestDialog dialog;
    RECT place = {};
    RECT behind = {};
    dialog.whenIdle = [&] {
        GetWindowRect(dialog.Window(), &place);
        GetWindowRect(used.Handle(), &behind);
        Press(dialog, IDOK);
    };
    dialog.RunModal();
    EXPECT_NEAR(place.left + place.right, behind.left + behind.right, 2);
    EXPECT_NEAR(place.top + place.bottom, behind.top + behind.bottom, 2);
}

TEST(RunModal, TheFocusComesBackToTheControlThatHadIt) {
    TestDialog outer(IDD_HIDDEN_FORM);
    outer.whenIdle = [&] {
        SetFocus(outer.Control(IDC_NUMBER_EDIT));
        TestDialog inner;
        inner.whenIdle = [&] { Press(inner, IDOK); };
        inner.RunModal();
        EXPECT_EQ(GetFocus(), outer.Control(IDC_NUMBER_EDIT));
        Press(outer, IDOK);
    };
    EXPECT_EQ(outer.RunModal(), IDOK);
}

// Runs a dialog over another one and does something to that one.
void ActBehindAModalDialog(TestDialog& behind, const std::function<void(TestDialog& modal)>& act) {
    behind.whenIdle = [&] {
        TestDialog modal;
        modal.whenIdle = [&] { act(modal); };
        EXPECT_EQ(modal.RunModal(), IDOK);
        behind.EndModal(kOwnResult);
    };
    EXPECT_EQ(behind.RunModal(), kOwnResult);
}

TEST(RunModal, CommandsToTheDialogsBehindAreDropped) {
    TestDialog behind;
    std::vector<int> commands;
    behind.onCommand = [&](int controlId, UINT code) {
        // That an edit gets the focus is no command.
        if (code < EN_SETFOCUS) {
            commands.push_back(controlId);
        }
        return false;
    };
    behind.onSystemCommand = [&](WPARAM command) {
        commands.push_back(static_cast<int>(command));
        return true;
    };
    ActBehindAModalDialog(behind, [&](TestDialog& modal) {
        commands.clear();
        SendMessageW(behind.Window(), WM_COMMAND, IDOK, 0);
        SendMessageW(behind.Control(IDC_CHOICE_CHECK), BM_CLICK, 0, 0);
        SendMessageW(behind.Window(), WM_SYSCOMMAND, 16, 0);
        SendMessageW(behind.Window(), WM_CLOSE, 0, 0);
        PostMessageW(behind.Window(), WM_COMMAND, IDCANCEL, 0);
        PostMessageW(behind.Window(), WM_SYSCOMMAND, SC_CLOSE, 0);
        PostMessageW(behind.Window(), WM_COMMAND, 32787, 0);
        PostMessageW(modal.Window(), WM_COMMAND, IDOK, 0);
    });
    EXPECT_TRUE(commands.empty()) << "command " << commands.front();
}

TEST(RunModal, CommandsAreTakenAgainAfterwards) {
    TestDialog behind;
    ActBehindAModalDialog(behind, [](TestDialog& modal) { Press(modal, IDOK); });
    TestDialog again;
    again.whenIdle = [&] { PostMessageW(again.Window(), WM_COMMAND, IDOK, 0); };
    EXPECT_EQ(again.RunModal(), IDOK);
}

TEST(RunModal, ClicksAndKeysInTheListsOfTheDialogsBehindAreDroppedAndNewsIsNot) {
    TestDialog behind;
    std::vector<int> notifications;
    std::vector<UINT> news;
    ActBehindAModalDialog(behind, [&](TestDialog& modal) {
        behind.onNotify = [&](NMHDR& header, LRESULT&) {
            notifications.push_back(static_cast<int>(header.code));
            return true;
        };
        behind.onCommand = [&](int, UINT code) {
            news.push_back(code);
            return false;
        };
        for (const UINT code : {static_cast<UINT>(NM_DBLCLK), static_cast<UINT>(LVN_KEYDOWN),
                                static_cast<UINT>(NM_KILLFOCUS), static_cast<UINT>(LVN_ITEMCHANGED)}) {
            NMHDR header = {behind.Control(IDC_ROW_LIST), IDC_ROW_LIST, code};
            SendMessageW(behind.Window(), WM_NOTIFY, IDC_ROW_LIST, reinterpret_cast<LPARAM>(&header));
        }
        SetWindowTextW(behind.Control(IDC_TEXT_EDIT), L"new");
        behind.onNotify = nullptr;
        behind.onCommand = nullptr;
        Press(modal, IDOK);
    });
    EXPECT_EQ(notifications,
              (std::vector<int>{static_cast<int>(NM_KILLFOCUS), static_cast<int>(LVN_ITEMCHANGED)}));
    EXPECT_EQ(news, (std::vector<UINT>{EN_UPDATE, EN_CHANGE}));
}

TEST(RunModal, InputPostedToTheWindowsBehindIsDropped) {
    TestDialog behind;
    bool isChecked = true;
    bool isTyped = true;
    ActBehindAModalDialog(behind, [&](TestDialog& modal) {
        SetWindowTextW(behind.Control(IDC_TEXT_EDIT), L"");
        PostMessageW(behind.Control(IDC_CHOICE_CHECK), BM_CLICK, 0, 0);
        PostMessageW(behind.Control(IDC_CHOICE_CHECK), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        PostMessageW(behind.Control(IDC_CHOICE_CHECK), WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
        PostMessageW(behind.Control(IDC_TEXT_EDIT), WM_CHAR, 'x', 1);
        modal.preTranslate = [&](const MSG& message) {
            if (message.message == WM_APP) {
                isChecked =
                    SendMessageW(behind.Control(IDC_CHOICE_CHECK), BM_GETCHECK, 0, 0) != BST_UNCHECKED;
                isTyped = GetWindowTextLengthW(behind.Control(IDC_TEXT_EDIT)) != 0;
                modal.EndModal(IDOK);
            }
            return false;
        };
        PostMessageW(modal.Window(), WM_APP, 0, 0);
    });
    EXPECT_FALSE(isChecked);
    EXPECT_FALSE(isTyped);
}

TEST(RunModal, DialogsNest) {
    const TestWindow owner;
    TestDialog outer(IDD_HIDDEN_FORM, owner.Handle());
    int innerResult = 0;
    outer.whenIdle = [&] {
        // A control serves as owner: it stands for the window that it is in.
        TestDialog inner(IDD_HIDDEN_FORM, outer.Control(IDC_TEXT_EDIT));
        inner.whenIdle = [&] {
            EXPECT_FALSE(IsWindowEnabled(outer.Window()));
            EXPECT_FALSE(IsWindowEnabled(owner.Handle()));
            inner.EndModal(kOwnResult);
        };
        innerResult = inner.RunModal();
        EXPECT_TRUE(IsWindowEnabled(outer.Window()));
        EXPECT_FALSE(IsWindowEnabled(owner.Handle()));
        EXPECT_EQ(GetActiveWindow(), outer.Window());
        EXPECT_FALSE(outer.HasEnded());
        Press(outer, IDOK);
    };
    EXPECT_EQ(outer.RunModal(), IDOK);
    EXPECT_EQ(innerResult, kOwnResult);
    EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
}

TEST(RunModal, QuitEndsNestedDialogsToo) {
    TestDialog outer;
    int innerResult = 0;
    outer.whenIdle = [&] {
        TestDialog inner(IDD_HIDDEN_FORM, outer.Window());
        inner.whenIdle = [] { PostQuitMessage(6); };
        innerResult = inner.RunModal();
    };
    EXPECT_EQ(outer.RunModal(), IDCANCEL);
    EXPECT_EQ(innerResult, IDCANCEL);
    MSG quit = {};
    ASSERT_TRUE(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(quit.wParam, 6U);
}

TEST(RunModal, TheOuterDialogMayEndWhileTheInnerOneRuns) {
    TestDialog outer;
    int innerResult = 0;
    outer.whenIdle = [&] {
        TestDialog inner(IDD_HIDDEN_FORM, outer.Window());
        inner.whenIdle = [&] {
            outer.EndModal(kOwnResult);
            PostMessageW(inner.Window(), WM_COMMAND, IDOK, 0);
        };
        innerResult = inner.RunModal();
    };
    EXPECT_EQ(outer.RunModal(), kOwnResult);
    EXPECT_EQ(innerResult, IDOK);
}

}  // namespace
}  // namespace corvane::test
