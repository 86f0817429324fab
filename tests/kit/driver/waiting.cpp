#include "tests/kit/driver/waiting.h"

#include <windows.h>

namespace corvane::test {

bool WaitUntil(const std::function<bool()>& holds, unsigned limitMilliseconds) {
    const ULONGLONG start = GetTickCount64();
    for (;;) {
        if (holds()) {
            return true;
        }
        if (GetTickCount64() - start > limitMilliseconds) {
            return false;
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            DispatchMessageW(&message);
        }
    }
}

}  // namespace corvane::test
