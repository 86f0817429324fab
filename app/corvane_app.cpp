#include "app/corvane_app.h"

#include <windows.h>

#include <commctrl.h>

#include "app/main_window_dialog.h"
#include "app/reporting/app_title.h"
#include "app/reporting/message_styles.h"
#include "app/reporting/system_messages_windows.h"
#include "app/services.h"
#include "app/start_texts.h"
#include "certs/provider/provider_library_windows.h"
#include "certs/system_clock.h"
#include "certs/warning_box_presenter.h"
#include "config/registry_calls_windows.h"
#include "toolkit/file_calls_windows.h"
#include "toolkit/input_gate_windows.h"
#include "toolkit/message_presenter_windows.h"
#include "toolkit/named_mutex.h"
#include "toolkit/shell_manager.h"
#include "toolkit/system_text_windows.h"

namespace corvane {

bool CCorvaneApp::InitInstance() {
    // Where a call of the provider takes long, Windows would offer to end the program with its "ghost"
    // window.
    DisableProcessWindowsGhosting();
    INITCOMMONCONTROLSEX classes = {};
    classes.dwSize = sizeof classes;
    // All classes of the first generation of common controls.
    classes.dwICC = 0xFF;
    InitCommonControlsEx(&classes);
    Application::InitInstance();
    SetRegistryKey(L"Local AppWizard-Generated Applications");

    toolkit::WindowsMessagePresenter messages;
    const toolkit::WindowsSystemText text;
    const WindowsSystemMessages systemMessages;
    SystemProviderLibrary provider;
    ErrorReporter reporter(messages, systemMessages, provider, text);

    // Two copies started at the same instant may both get past this question; that is accepted.
    if (toolkit::NamedMutex::Exists(AppTitle)) {
        reporter.ShowMessage(nullptr, AlreadyStartedText(), kRefusalStyle);
        return true;
    }
    const toolkit::NamedMutex instance(AppTitle);
    if (!instance.IsHeld()) {
        reporter.ReportError(nullptr, 0, kShowReport, instance.FailureCode(), kCreateMutexOperation, nullptr,
                             nullptr);
        return true;
    }
    toolkit::ShellManager shell;
    toolkit::WindowsFileCalls files;
    WindowsRegistryCalls registry;
    WarningBoxPresenter warnings;
    const SystemClock clock;
    toolkit::WindowsInputGate input;
    SessionOpening opening;
    const CertServices certs = {.provider = provider,
                                .reporter = reporter,
                                .warnings = warnings,
                                .registry = registry,
                                .clock = clock,
                                .input = input,
                                .opening = opening};
    AcceptedCsProfile acceptedCsProfile;
    ShownCsProfile shownCsProfile;
    const EditorServices editors = {.messages = messages,
                                    .files = files,
                                    .shell = shell,
                                    .reporter = reporter,
                                    .certs = certs,
                                    .acceptedCsProfile = acceptedCsProfile,
                                    .shownCsProfile = shownCsProfile};
    const Services services = {.messages = messages,
                               .files = files,
                               .shell = shell,
                               .registry = registry,
                               .reporter = reporter,
                               .editors = editors};
    CCorvaneDlg(services).RunModal();
    return true;
}

int CCorvaneApp::ExitInstance() {
    return Application::ExitInstance();
}

std::wstring CCorvaneApp::Title() const {
    return AppTitle;
}

}  // namespace corvane
