// A window with one button, which shows the dialog that its setup names, as the rule editor shows it.
#include <windows.h>

#include <commctrl.h>

#include <array>
#include <filesystem>
#include <optional>

#include "certificates/selection/selection_dialog.h"
#include "certificates/session/clock.h"
#include "certificates/session/wait_dialog.h"
#include "certificates/session/warning_presenter.h"
#include "certificates/signer_lists/signer_lists_dialog.h"
#include "provider/provider_library.h"
#include "reporting/error_reporter.h"
#include "reporting/system_messages.h"
#include "store/cs_profile_settings.h"
#include "store/registry/registry_calls.h"
#include "tests/kit/scriptable_library/host_setup.h"
#include "toolkit/dialog/modal_state.h"
#include "toolkit/files/file_calls.h"
#include "toolkit/system/libraries.h"
#include "toolkit/system/message_presenter.h"
#include "toolkit/text/system_text.h"

namespace corvane::test {
namespace {

constexpr wchar_t kWindowClass[] = L"certificate_host";

void AppendCsProfile(store::Profile& profile, const store::CsProfile& csProfile) {
    store::ForEachCsProfileSetting(profile, csProfile,
                                   [](auto& list, const auto& field) { list.push_back(field); });
}

class CertificateHost {
  public:
    explicit CertificateHost(HostSetup setup) : setup_(std::move(setup)) {
        store::CsProfile other;
        other.name = L"not the chosen one";
        AppendCsProfile(profile_, other);
        AppendCsProfile(profile_, setup_.csProfile);
    }

    void Create(HINSTANCE instance) {
        WNDCLASSEXW windowClass{};
        windowClass.cbSize = sizeof windowClass;
        windowClass.lpfnWndProc = &Procedure;
        windowClass.hInstance = instance;
        windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        windowClass.lpszClassName = kWindowClass;
        RegisterClassExW(&windowClass);
        window_ = CreateWindowExW(WS_EX_CONTROLPARENT, kWindowClass, kHostTitle, WS_OVERLAPPEDWINDOW, 300,
                                  200, 900, 600, nullptr, nullptr, instance, nullptr);
        SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        AddChild(L"BUTTON", L"Open", WS_TABSTOP | BS_PUSHBUTTON, kHostOpenButton, {10, 10, 100, 30});
        AddChild(L"EDIT", L"", WS_TABSTOP | WS_BORDER | WS_VSCROLL | ES_MULTILINE | ES_READONLY,
                 kHostResultEdit, {10, 50, 860, 480});
        ShowWindow(window_, SW_SHOWNORMAL);
    }

    [[nodiscard]] HWND Window() const { return window_; }

  private:
    struct Place {
        int left;
        int top;
        int width;
        int height;
    };

    void AddChild(const wchar_t* windowClass, const wchar_t* text, DWORD style, int id, const Place& place) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): a child's number stands in the place of a menu.
        const auto number = reinterpret_cast<HMENU>(static_cast<INT_PTR>(id));
        CreateWindowExW(0, windowClass, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top,
                        place.width, place.height, window_, number, nullptr, nullptr);
    }

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the platform keeps the pointer as a number.
        auto* const host = reinterpret_cast<CertificateHost*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (host != nullptr && message == WM_COMMAND && LOWORD(wParam) == kHostOpenButton &&
            HIWORD(wParam) == BN_CLICKED) {
            host->Open();
            return 0;
        }
        if (message == WM_DESTROY) {
            PostQuitMessage(0);
            return 0;
        }
        return DefWindowProcW(window, message, wParam, lParam);
    }

    void Open() {
        SetDlgItemTextW(window_, kHostResultEdit, L"");
        ++run_;
        SetDlgItemTextW(window_, kHostResultEdit, OpenDialog().c_str());
    }

    std::wstring OpenDialog() {
        switch (setup_.dialog) {
            case HostSetup::Dialog::kRecipients:
                return OpenRecipients();
            case HostSetup::Dialog::kSignerLists:
                return OpenSignerLists();
            case HostSetup::Dialog::kWaitWindow:
                break;
        }
        if (run_ % 2 == 0) {
            waitWindow_.Destroy();
        } else {
            waitWindow_.Show(window_, certificates::kWaitText);
        }
        return HostCancelled(run_);
    }

    std::wstring OpenRecipients() {
        const std::optional<certificates::ChosenRecipients> chosen = certificates::EditRecipients(
            window_, profile_, kCsProfileIndex, setup_.recipients, services_, files_);
        return chosen ? HostResult(run_, chosen->owners) : HostCancelled(run_);
    }

    std::wstring OpenSignerLists() {
        const std::optional<std::vector<store::SignerGroup>> lists = certificates::EditSignerLists(
            window_, profile_, kCsProfileIndex, setup_.lists, services_, files_);
        return lists ? HostResult(run_, *lists) : HostCancelled(run_);
    }

    static constexpr std::size_t kCsProfileIndex = 1;

    HostSetup setup_;
    store::Profile profile_;
    HWND window_ = nullptr;
    int run_ = 0;

    toolkit::WindowsMessagePresenter messages_;
    toolkit::WindowsSystemText text_;
    reporting::WindowsSystemMessages systemMessages_;
    provider::SystemProviderLibrary provider_;
    reporting::ErrorReporter reporter_{messages_, systemMessages_, provider_, text_};
    toolkit::WindowsFileCalls files_;
    store::WindowsRegistryCalls registry_;
    certificates::WarningBoxPresenter warnings_{reporter_};
    certificates::SystemClock clock_;
    toolkit::WindowsInputGate input_;
    certificates::SessionOpening opening_;
    certificates::AwaitWindow waitWindow_{reporter_};
    certificates::CertServices services_{.provider = provider_,
                                         .reporter = reporter_,
                                         .warnings = warnings_,
                                         .registry = registry_,
                                         .clock = clock_,
                                         .input = input_,
                                         .opening = opening_};
};

std::filesystem::path OwnFolder() {
    std::array<wchar_t, 1024> path{};
    GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return std::filesystem::path(path.data()).parent_path();
}

}  // namespace
}  // namespace corvane::test

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, PWSTR /*commandLine*/, int /*show*/) {
    corvane::toolkit::LeaveCurrentFolderOutOfLibrarySearch();
    INITCOMMONCONTROLSEX classes{};
    classes.dwSize = sizeof classes;
    classes.dwICC = ICC_WIN95_CLASSES;
    InitCommonControlsEx(&classes);
    corvane::test::CertificateHost host(
        corvane::test::ReadHostSetup(corvane::test::OwnFolder() / corvane::test::kHostSetupFile));
    host.Create(instance);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (IsDialogMessageW(host.Window(), &message) == FALSE) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    return 0;
}
