#include "tests/toolkit/test_dialog.h"

#include <gtest/gtest.h>

#include <utility>

namespace corvane::test {

namespace {

// Far beyond what any dialog here needs: it only ends a test whose dialog would never end.
constexpr UINT kLimitMilliseconds = 30000;

}  // namespace

TestDialog::~TestDialog() {
    KillTimer(nullptr, idleTimer_);
    KillTimer(nullptr, limitTimer_);
}

bool TestDialog::OnInitDialog() {
    // Timers of the thread, not of the window: they go on when the window is gone.
    KillTimer(nullptr, limitTimer_);
    limitTimer_ = SetTimer(nullptr, 0, kLimitMilliseconds, nullptr);
    if (whenIdle) {
        idleTimer_ = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, nullptr);
    }
    return onInit ? onInit() : toolkit::Dialog::OnInitDialog();
}

bool TestDialog::PreTranslateMessage(MSG& message) {
    if (message.message == WM_TIMER && message.hwnd == nullptr && message.wParam == limitTimer_) {
        ADD_FAILURE() << "The dialog is still waiting for its end.";
        EndModal(-2);
        return true;
    }
    if (message.message == WM_TIMER && message.hwnd == nullptr && message.wParam == idleTimer_) {
        // Timers come after everything else; what has come meanwhile is dealt with first.
        if (HIWORD(GetQueueStatus(QS_ALLEVENTS & ~QS_TIMER)) == 0 && whenIdle) {
            KillTimer(nullptr, idleTimer_);
            std::exchange(whenIdle, nullptr)();
        }
        return true;
    }
    return (preTranslate && preTranslate(message)) || toolkit::Dialog::PreTranslateMessage(message);
}

bool TestDialog::OnCommand(int controlId, UINT notificationCode) {
    return (onCommand && onCommand(controlId, notificationCode)) ||
           toolkit::Dialog::OnCommand(controlId, notificationCode);
}

bool TestDialog::OnNotify(NMHDR& header, LRESULT& result) {
    return onNotify ? onNotify(header, result) : toolkit::Dialog::OnNotify(header, result);
}

void TestDialog::OnSize(WPARAM kind, int width, int height) {
    if (onSize) {
        onSize(kind, width, height);
    }
}

void TestDialog::OnMinimumMaximumInfo(MINMAXINFO& info) {
    if (onMinimumMaximumInfo) {
        onMinimumMaximumInfo(info);
    }
}

bool TestDialog::OnSystemCommand(WPARAM command) {
    return onSystemCommand ? onSystemCommand(command) : toolkit::Dialog::OnSystemCommand(command);
}

bool TestDialog::OnPaint() {
    return onPaint ? onPaint() : toolkit::Dialog::OnPaint();
}

HICON TestDialog::OnQueryDragIcon() {
    return onQueryDragIcon ? onQueryDragIcon() : toolkit::Dialog::OnQueryDragIcon();
}

const wchar_t* TestDialog::UnsavedInputReason() {
    return unsavedInputReason ? unsavedInputReason() : toolkit::Dialog::UnsavedInputReason();
}

void TestDialog::BlockShutdown(HWND window, const wchar_t* reason) {
    shutdownReasons.emplace_back(window, reason);
    toolkit::Dialog::BlockShutdown(window, reason);
}

void TestDialog::UnblockShutdown(HWND window) {
    shutdownReasons.emplace_back(window, L"");
    toolkit::Dialog::UnblockShutdown(window);
}

void TestDialog::OnScaleChanged() {
    if (onScaleChanged) {
        onScaleChanged();
    }
}

void TestDialog::ExchangeFields(toolkit::DataExchange& exchange) {
    if (exchangeFields) {
        exchangeFields(exchange);
    }
}

void TestDialog::ReportException(const std::exception& exception) {
    if (reportException) {
        reportException(exception);
    } else {
        reported.emplace_back(exception.what());
    }
}

}  // namespace corvane::test
