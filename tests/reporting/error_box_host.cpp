// Shows the error box alone, with its longest text and the icon of refusals.
#include <windows.h>

#include "reporting/error_box.h"
#include "res/ids.h"
#include "toolkit/system/icon.h"

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int /*show*/) {
    const corvane::toolkit::UniqueIcon icon =
        corvane::toolkit::LoadIconResource(IDI_REFUSAL, GetSystemMetrics(SM_CXICON));
    corvane::reporting::ErrBox box(nullptr, L"No certificate is selected for operation.", icon.get());
    box.RunModal();
    return 0;
}
