#include "tests/toolkit/box_closer.h"

#include <utility>

#include "toolkit/dialog/data_exchange.h"

namespace corvane::test {

namespace {

// The id that message boxes have always used for their text.
constexpr int kTextId = 0xFFFF;

void GiveTheProcessorAway() {
    constexpr DWORD kMilliseconds = 5;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, kMilliseconds, QS_ALLINPUT);
}

BOOL CALLBACK TakeBox(HWND window, LPARAM found) {
    if (IsWindowVisible(window) != FALSE && GetDlgItem(window, kTextId) != nullptr &&
        GetDlgItem(window, IDOK) != nullptr) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the platform hands the pointer over as a number.
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }
    return TRUE;
}

}  // namespace

BoxCloser::BoxCloser(std::function<void(HWND box)> look)
    : look_(std::move(look)), watcher_(&BoxCloser::Watch, this, GetCurrentThreadId()) {}

BoxCloser::~BoxCloser() {
    static_cast<void>(Boxes());
}

std::vector<ShownBox> BoxCloser::Boxes() {
    isDone_ = true;
    if (watcher_.joinable()) {
        watcher_.join();
    }
    return boxes_;
}

void BoxCloser::Watch(DWORD threadId) {
    while (!isDone_) {
        HWND box = nullptr;
        EnumThreadWindows(threadId, &TakeBox, reinterpret_cast<LPARAM>(&box));
        if (box != nullptr) {
            boxes_.push_back({toolkit::WindowText(box), toolkit::WindowText(GetDlgItem(box, kTextId))});
            if (look_) {
                look_(box);
            }
            PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED),
                         reinterpret_cast<LPARAM>(GetDlgItem(box, IDOK)));
            while (!isDone_ && IsWindow(box) != FALSE) {
                GiveTheProcessorAway();
            }
        }
        GiveTheProcessorAway();
    }
}

}  // namespace corvane::test
