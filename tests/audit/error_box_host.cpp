// Shows the error box alone, with its longest text and the icon of refusals.
#include <windows.h>

#include "app/reporting/error_box.h"
#include "res/ids.h"
#include "toolkit/icon.h"

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int /*show*/) {
    const toolkit::UniqueIcon icon = toolkit::LoadIconResource(IDI_REFUSAL, GetSystemMetrics(SM_CXICON));
    corvane::ErrBox box(nullptr, L"No certificate is selected for operation.", icon.get());
    box.RunModal();
    return 0;
}
