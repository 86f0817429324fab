#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

#include "tests/toolkit/test_dialog.h"
#include "toolkit/controls/list_view.h"
#include "toolkit/dialog/data_exchange.h"
#include "toolkit/system/icon.h"

namespace corvane::test {
namespace {

// A dialog with a window, but not shown and not running.
class DialogHooks : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(dialog_.CreateModeless());
        dialog_.onCommand = [this](int controlId, UINT code) {
            commands_.emplace_back(controlId, code);
            return false;
        };
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageW(dialog_.Window(), message, wParam, lParam);
    }

    static void DispatchWhatIsPosted() {
        for (MSG message = {}; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;) {
            DispatchMessageW(&message);
        }
    }

    TestDialog dialog_;
    std::vector<std::pair<int, UINT>> commands_;
};

using Commands = std::vector<std::pair<int, UINT>>;

TEST_F(DialogHooks, CommandsComeWithTheirNotificationCodes) {
    SetWindowTextW(dialog_.Control(IDC_TEXT_EDIT), L"new");
    EXPECT_EQ(commands_, (Commands{{IDC_TEXT_EDIT, EN_UPDATE}, {IDC_TEXT_EDIT, EN_CHANGE}}));
    commands_.clear();
    SendMessageW(dialog_.Control(IDC_CHOICE_CHECK), BM_CLICK, 0, 0);
    EXPECT_NE(
        std::find(commands_.begin(), commands_.end(), std::pair<int, UINT>(IDC_CHOICE_CHECK, BN_CLICKED)),
        commands_.end());
}

TEST_F(DialogHooks, AMenuCommandHasCodeZero) {
    Send(WM_COMMAND, MAKEWPARAM(32787, 0));
    EXPECT_EQ(commands_, (Commands{{32787, 0U}}));
}

TEST_F(DialogHooks, AnotherNotificationOfTheOkButtonIsNoOk) {
    TestDialog dialog;
    dialog.whenIdle = [&] {
        const auto button = reinterpret_cast<LPARAM>(dialog.Control(IDOK));
        for (const int code : {BN_SETFOCUS, BN_KILLFOCUS, BN_DBLCLK}) {
            SendMessageW(dialog.Window(), WM_COMMAND, MAKEWPARAM(IDOK, code), button);
            EXPECT_FALSE(dialog.HasEnded()) << "notification code " << code;
        }
        dialog.EndModal(IDCANCEL);
    };
    dialog.RunModal();
}

TEST_F(DialogHooks, WhatControlsTellWhileTheyAreFilledReachesNoHandler) {
    std::wstring text = L"filled";
    dialog_.exchangeFields = [&](toolkit::DataExchange& exchange) { exchange.Text(IDC_TEXT_EDIT, text); };
    dialog_.PutData();
    EXPECT_EQ(toolkit::WindowText(dialog_.Control(IDC_TEXT_EDIT)), L"filled");
    EXPECT_TRUE(commands_.empty());

    SetWindowTextW(dialog_.Control(IDC_TEXT_EDIT), L"typed");
    EXPECT_FALSE(commands_.empty()) << "Afterwards they are heard again.";
    dialog_.TakeData();
    EXPECT_EQ(text, L"typed");
}

TEST_F(DialogHooks, ControlsAreHeardAgainWhenFillingThemFailed) {
    dialog_.exchangeFields = [](toolkit::DataExchange&) { throw std::runtime_error("no field"); };
    EXPECT_THROW(dialog_.PutData(), std::runtime_error);
    SetWindowTextW(dialog_.Control(IDC_TEXT_EDIT), L"typed");
    EXPECT_FALSE(commands_.empty());
}

TEST_F(DialogHooks, AMenuCommandIsNoNotificationAndComesThroughWhileFilling) {
    dialog_.exchangeFields = [this](toolkit::DataExchange&) { Send(WM_COMMAND, MAKEWPARAM(32787, 0)); };
    dialog_.PutData();
    EXPECT_EQ(commands_, (Commands{{32787, 0U}}));
}

TEST_F(DialogHooks, AListViewIsAnsweredAlsoWhileFilling) {
    toolkit::ListView list;
    list.Attach(dialog_.Control(IDC_ROW_LIST));
    list.InsertColumn(0, L"Name");
    list.AppendRowsOnRequest(1);
    std::wstring answer = L"asked for";
    dialog_.onNotify = [&](NMHDR& header, LRESULT&) {
        if (header.code == LVN_GETDISPINFOW) {
            reinterpret_cast<NMLVDISPINFOW&>(header).item.pszText = answer.data();
        }
        return false;
    };
    std::wstring shown;
    dialog_.exchangeFields = [&](toolkit::DataExchange&) { shown = list.RowText(0); };
    dialog_.PutData();
    EXPECT_EQ(shown, L"asked for");
}

TEST_F(DialogHooks, ANotificationIsAnsweredWithTheResult) {
    NMHDR header = {dialog_.Control(IDC_ROW_LIST), IDC_ROW_LIST, NM_CUSTOMDRAW};
    const auto send = [&] { return Send(WM_NOTIFY, IDC_ROW_LIST, reinterpret_cast<LPARAM>(&header)); };
    dialog_.onNotify = [](NMHDR& got, LRESULT& result) {
        EXPECT_EQ(got.idFrom, static_cast<UINT_PTR>(IDC_ROW_LIST));
        result = CDRF_NOTIFYITEMDRAW;
        return true;
    };
    EXPECT_EQ(send(), CDRF_NOTIFYITEMDRAW);
    dialog_.onNotify = [](NMHDR&, LRESULT& result) {
        result = CDRF_NOTIFYITEMDRAW;
        return false;
    };
    EXPECT_EQ(send(), 0) << "What was not handled gets the default answer.";
}

TEST_F(DialogHooks, ANewSizeComesAsThatOfTheClientArea) {
    std::vector<std::vector<int>> sizes;
    dialog_.onSize = [&](WPARAM kind, int width, int height) {
        sizes.push_back({static_cast<int>(kind), width, height});
    };
    SetWindowPos(dialog_.Window(), nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    RECT client = {};
    GetClientRect(dialog_.Window(), &client);
    EXPECT_EQ(sizes, (std::vector<std::vector<int>>{{SIZE_RESTORED, client.right, client.bottom}}));
}

TEST_F(DialogHooks, TheSmallestSizeHolds) {
    dialog_.onMinimumMaximumInfo = [](MINMAXINFO& info) { info.ptMinTrackSize = {450, 350}; };
    SetWindowPos(dialog_.Window(), nullptr, 0, 0, 100, 100, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    RECT window = {};
    GetWindowRect(dialog_.Window(), &window);
    EXPECT_EQ(window.right - window.left, 450);
    EXPECT_EQ(window.bottom - window.top, 350);
}

TEST_F(DialogHooks, AHandledSystemCommandIsNotHandledByTheSystemToo) {
    std::vector<WPARAM> systemCommands;
    dialog_.onSystemCommand = [&](WPARAM command) {
        systemCommands.push_back(command);
        return true;
    };
    Send(WM_SYSCOMMAND, SC_CLOSE);
    DispatchWhatIsPosted();
    EXPECT_EQ(systemCommands, std::vector<WPARAM>{SC_CLOSE});
    EXPECT_TRUE(commands_.empty());
    dialog_.onSystemCommand = [](WPARAM) { return false; };
    Send(WM_SYSCOMMAND, SC_CLOSE);
    DispatchWhatIsPosted();
    EXPECT_EQ(commands_, (Commands{{IDCANCEL, 0U}})) << "The close box is Cancel.";
}

TEST_F(DialogHooks, TheIconToDragIsTheDialogsOrTheClasss) {
    const toolkit::UniqueIcon icon = toolkit::LoadIconResource(IDI_SQUARE, 32);
    dialog_.onQueryDragIcon = [&] { return icon.get(); };
    EXPECT_EQ(Send(WM_QUERYDRAGICON), reinterpret_cast<LRESULT>(icon.get()));
    dialog_.onQueryDragIcon = nullptr;
    EXPECT_NE(Send(WM_QUERYDRAGICON), reinterpret_cast<LRESULT>(icon.get()));
}

using Reasons = std::vector<std::pair<HWND, std::wstring>>;

TEST_F(DialogHooks, TheEndOfTheSessionIsAnsweredYesOrNo) {
    EXPECT_EQ(Send(WM_QUERYENDSESSION), TRUE) << "who has nothing against it";
    dialog_.unsavedInputReason = [] { return L"not saved"; };
    EXPECT_EQ(Send(WM_QUERYENDSESSION), FALSE);
    dialog_.unsavedInputReason = []() -> const wchar_t* { return nullptr; };
    EXPECT_EQ(Send(WM_QUERYENDSESSION), TRUE);
    dialog_.unsavedInputReason = []() -> const wchar_t* { throw std::runtime_error("unsure"); };
    EXPECT_EQ(Send(WM_QUERYENDSESSION), FALSE) << "who does not know must not lose data";
    EXPECT_EQ(dialog_.reported, std::vector<std::string>{"unsure"});
}

TEST_F(DialogHooks, WindowsIsToldTheReasonAndThatItHoldsNoLonger) {
    dialog_.unsavedInputReason = [] { return L"not saved"; };
    Send(WM_QUERYENDSESSION);
    EXPECT_EQ(dialog_.shutdownReasons, (Reasons{{dialog_.Window(), L"not saved"}}));
    for (const WPARAM isEnding : {WPARAM{FALSE}, WPARAM{TRUE}}) {
        dialog_.shutdownReasons.clear();
        Send(WM_ENDSESSION, isEnding);
        EXPECT_EQ(dialog_.shutdownReasons, (Reasons{{dialog_.Window(), L""}})) << "ending: " << isEnding;
    }
}

TEST_F(DialogHooks, WhereNothingWouldBeLostWindowsIsToldNoReason) {
    Send(WM_QUERYENDSESSION);
    EXPECT_EQ(dialog_.shutdownReasons, Reasons());
}

TEST_F(DialogHooks, TheReasonStandsBesideTheWindowThatWindowsLists) {
    TestDialog middle(IDD_HIDDEN_FORM, dialog_.Window());
    ASSERT_TRUE(middle.CreateModeless());
    TestDialog top(IDD_HIDDEN_FORM, middle.Window());
    ASSERT_TRUE(top.CreateModeless());
    top.unsavedInputReason = [] { return L"not saved"; };
    SendMessageW(top.Window(), WM_QUERYENDSESSION, 0, 0);
    SendMessageW(top.Window(), WM_ENDSESSION, FALSE, 0);
    EXPECT_EQ(top.shutdownReasons, (Reasons{{dialog_.Window(), L"not saved"}, {dialog_.Window(), L""}}));
}

TEST_F(DialogHooks, ADisabledDialogIsAskedForItsInputToo) {
    dialog_.unsavedInputReason = [] { return L"not saved"; };
    EnableWindow(dialog_.Window(), FALSE);
    EXPECT_EQ(Send(WM_QUERYENDSESSION), FALSE);
}

TEST_F(DialogHooks, FieldsAreReadAsShownAndKeepWhatTheyHold) {
    std::wstring text = L"held";
    dialog_.exchangeFields = [&](toolkit::DataExchange& exchange) { exchange.Text(IDC_TEXT_EDIT, text); };
    SetWindowTextW(dialog_.Control(IDC_TEXT_EDIT), L"typed");
    EXPECT_EQ(dialog_.FieldsAsShown(text), L"typed");
    EXPECT_EQ(text, L"held");
}

TEST(DialogPaint, APaintingThatFailsIsReportedOnceAndNotAskedForAgain) {
    TestDialog dialog;
    bool isFailing = false;
    int paintings = 0;
    dialog.onPaint = [&]() -> bool {
        if (isFailing) {
            ++paintings;
            throw std::runtime_error("no brush");
        }
        return false;
    };
    // As a report does that shows a window: whatever is to be painted is painted before it ends.
    dialog.reportException = [&](const std::exception& exception) {
        dialog.reported.emplace_back(exception.what());
        if (dialog.reported.size() < 5) {
            UpdateWindow(dialog.Window());
        }
    };
    dialog.whenIdle = [&] {
        isFailing = true;
        InvalidateRect(dialog.Window(), nullptr, FALSE);
        UpdateWindow(dialog.Window());
        isFailing = false;
        EXPECT_FALSE(GetUpdateRect(dialog.Window(), nullptr, FALSE));
        dialog.EndModal(IDOK);
    };
    dialog.RunModal();
    EXPECT_EQ(paintings, 1);
    EXPECT_EQ(dialog.reported, std::vector<std::string>{"no brush"});
}

}  // namespace
}  // namespace corvane::test
