#include "app/corvane_app.h"

#include <windows.h>

#include <commctrl.h>

#include "app/main_window/main_window_dialog.h"
#include "app/services.h"
#include "app/start_texts.h"
#include "certificates/session/clock.h"
#include "certificates/session/warning_presenter.h"
#include "provider/provider_library.h"
#include "reporting/message_styles.h"
#include "reporting/system_messages.h"
#include "store/registry/registry_calls.h"
#include "toolkit/dialog/modal_state.h"
#include "toolkit/files/file_calls.h"
#include "toolkit/files/path_pickers.h"
#include "toolkit/system/application.h"
#include "toolkit/system/message_presenter.h"
#include "toolkit/text/system_text.h"

namespace corvane::app {

bool CCorvaneApp::InitInstance() {
    // Where a call of the provider takes long, Windows would offer to end the program with its "ghost"
    // window.
    DisableProcessWindowsGhosting();
    INITCOMMONCONTROLSEX classes = {};
    classes.dwSize = sizeof classes;
    // All classes of the first generation of common controls.
    classes.dwICC = 0xFF;
    InitCommonControlsEx(&classes);
    toolkit::Application::InitInstance();
    SetRegistryKey(L"Local AppWizard-Generated Applications");

    toolkit::WindowsMessagePresenter messages;
    const toolkit::WindowsSystemText text;
    const reporting::WindowsSystemMessages systemMessages;
    provider::SystemProviderLibrary provider;
    reporting::ErrorReporter reporter(messages, systemMessages, provider, text);

    // Two copies started at the same instant may both get past this question; that is accepted.
    if (toolkit::NamedMutex::Exists(reporting::AppTitle)) {
        reporter.ShowMessage(nullptr, AlreadyStartedText(), reporting::kRefusalStyle);
        return true;
    }
    const toolkit::NamedMutex instance(reporting::AppTitle);
    if (!instance.IsHeld()) {
        reporter.ReportError(nullptr, 0, reporting::kShowReport, instance.FailureCode(),
                             kCreateMutexOperation, nullptr, nullptr);
        return true;
    }
    toolkit::ShellManager shell;
    toolkit::WindowsFileCalls files;
    store::WindowsRegistryCalls registry;
    certificates::WarningBoxPresenter warnings(reporter);
    const certificates::SystemClock clock;
    toolkit::WindowsInputGate input;
    certificates::SessionOpening opening;
    const certificates::CertServices certs = {.provider = provider,
                                              .reporter = reporter,
                                              .warnings = warnings,
                                              .registry = registry,
                                              .clock = clock,
                                              .input = input,
                                              .opening = opening};
    editors::AcceptedCsProfile acceptedCsProfile;
    editors::ShownCsProfile shownCsProfile;
    const editors::EditorServices editors = {.files = files,
                                             .shell = shell,
                                             .reporter = reporter,
                                             .certs = certs,
                                             .acceptedCsProfile = acceptedCsProfile,
                                             .shownCsProfile = shownCsProfile};
    const Services services = {
        .files = files, .shell = shell, .registry = registry, .reporter = reporter, .editors = editors};
    CCorvaneDlg(services).RunModal();
    return true;
}

int CCorvaneApp::ExitInstance() {
    return toolkit::Application::ExitInstance();
}

std::wstring CCorvaneApp::Title() const {
    return reporting::AppTitle;
}

}  // namespace corvane::app
