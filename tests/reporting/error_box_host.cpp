// Shows the error box alone, with its longest text and the icon of refusals.
#include <windows.h>

#include "provider/provider_library.h"
#include "reporting/error_box.h"
#include "reporting/error_reporter.h"
#include "reporting/system_messages.h"
#include "res/ids.h"
#include "toolkit/system/icon.h"
#include "toolkit/system/message_presenter.h"
#include "toolkit/text/system_text.h"

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int /*show*/) {
    const corvane::toolkit::UniqueIcon icon =
        corvane::toolkit::LoadIconResource(IDI_REFUSAL, GetSystemMetrics(SM_CXICON));
    corvane::toolkit::WindowsMessagePresenter messages;
    const corvane::reporting::WindowsSystemMessages systemMessages;
    corvane::provider::SystemProviderLibrary provider;
    const corvane::toolkit::WindowsSystemText text;
    corvane::reporting::ErrorReporter reporter(messages, systemMessages, provider, text);
    corvane::reporting::ErrBox box(nullptr, L"No certificate is selected for operation.", icon.get(),
                                   reporter);
    box.RunModal();
    return 0;
}
