#include "tests/certificates/certificate_test.h"

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <fstream>
#include <system_error>

#include "res/ids.h"
#include "tests/driver/failure.h"
#include "tests/driver/waiting.h"

namespace corvane::test {

using driver::Window;

namespace {

constexpr wchar_t kCatalogueEntry[] = L"tarn\\Profiles\\Profile01";
constexpr wchar_t kLibraryFile[] = L"tarn1.dll";

std::filesystem::path PathFromEnvironment(const std::wstring& variable) {
    std::array<wchar_t, 2048> value{};
    if (GetEnvironmentVariableW(variable.c_str(), value.data(), static_cast<DWORD>(value.size())) == 0) {
        throw driver::Failure(variable + L" names no file; CTest tells the tests where things are.");
    }
    const std::wstring path = value.data();
    // A cross-built test sees the building machine's files through drive Z.
    return path.front() == L'/' ? L"Z:" + path : path;
}

void CopyInto(const std::filesystem::path& file, const std::filesystem::path& target) {
    if (CopyFileW(file.c_str(), target.c_str(), FALSE) == FALSE) {
        throw driver::Failure(L"The file could not be copied (system code " +
                              std::to_wstring(GetLastError()) + L"): " + file.wstring());
    }
}

}  // namespace

FolderOfTest::FolderOfTest() {
    static int count = 0;
    path_ = std::filesystem::temp_directory_path() /
            (L"certificates_" + std::to_wstring(GetCurrentProcessId()) + L"_" + std::to_wstring(++count));
    std::filesystem::create_directories(path_);
}

FolderOfTest::~FolderOfTest() {
    // The files of a program that has just ended can be in use for another moment.
    static_cast<void>(driver::WaitUntil([&] {
        std::error_code failure;
        std::filesystem::remove_all(path_, failure);
        return !failure;
    }));
}

CertificateTest::CertificateTest() {
    driver::UseScreenPixels();
    setup.csProfile.name = L"Clearing";
}

void CertificateTest::InstallLibrary(Library library) {
    std::ofstream(folder_.Path() / L"tarn1_script.txt", std::ios::binary) << script.Lines();
    switch (library) {
        case Library::kScriptable:
            return CopyInto(PathFromEnvironment(L"CORVANE_SCRIPTABLE_LIBRARY"),
                            folder_.Path() / kLibraryFile);
        case Library::kIncomplete:
            return CopyInto(PathFromEnvironment(L"CORVANE_INCOMPLETE_LIBRARY"),
                            folder_.Path() / kLibraryFile);
        case Library::kStandIn:
            std::filesystem::copy(PathFromEnvironment(L"CORVANE_CERTIFICATES"),
                                  folder_.Path() / L"certificates", std::filesystem::copy_options::recursive);
            return CopyInto(PathFromEnvironment(L"CORVANE_STANDIN_LIBRARY"), folder_.Path() / kLibraryFile);
        case Library::kNone:
            return;
    }
}

void CertificateTest::Start(const std::wstring& programVariable, const wchar_t* programFile,
                            Library library) {
    driver::WriteRegistryValue(kCatalogueEntry, L"ProfileName", setup.csProfile.name);
    InstallLibrary(library);
    WriteHostSetup(setup, folder_.Path() / kHostSetupFile);
    CopyInto(PathFromEnvironment(programVariable), folder_.Path() / programFile);
    program_.emplace(Folder() + programFile);
    main_ = program_->WaitForWindow(Window());
}

void CertificateTest::StartHost(Library library) {
    Start(L"CORVANE_CERTIFICATE_HOST", L"certificate_host.exe", library);
}

void CertificateTest::StartEditor(Library library) {
    Start(L"CORVANE_EDITOR", L"corvane.exe", library);
}

void CertificateTest::PressOpen() const {
    main_.Control(kHostOpenButton).PostClick();
}

Window CertificateTest::OpenDialog() const {
    PressOpen();
    return WaitForDialogOf(main_);
}

Window CertificateTest::WaitForDialogOf(const Window& owner) const {
    Window dialog;
    static_cast<void>(driver::WaitUntil([&] {
        for (const Window& window : program_->TopLevelWindows()) {
            if (window.Owner() == owner && window.IsEnabled() &&
                (window.HasControl(IDOK) || driver::MessageBoxWindow::Is(window))) {
                dialog = window;
            }
        }
        return dialog.Handle() != nullptr || !program_->IsRunning();
    }));
    if (dialog.Handle() == nullptr) {
        throw driver::Failure(L"A dialog of " + owner.Name() + L" was expected, and none came.");
    }
    if (driver::MessageBoxWindow::Is(dialog)) {
        throw driver::Failure(L"A dialog was expected, and a message box came: \"" +
                              driver::MessageBoxWindow(dialog).View().text + L"\".");
    }
    if (dialog.HasControl(IDC_WARNING_BOX_EDIT)) {
        throw driver::Failure(L"A dialog was expected, and a warning box came: \"" +
                              dialog.Control(IDC_WARNING_BOX_EDIT).Text() + L"\".");
    }
    Settle(dialog);
    return dialog;
}

std::wstring CertificateTest::Result() const {
    std::wstring result;
    if (!driver::WaitUntil([&] {
            result = main_.Control(kHostResultEdit).Text();
            return !result.empty();
        })) {
        throw driver::Failure(L"The host was expected to come back from its dialog, and does not.");
    }
    return result;
}

void CertificateTest::Settle(const Window& dialog) {
    // Posted messages are handled in order. Of these, a list's hover time can be asked for, and nothing
    // depends on it: when the list tells the new one, all that was posted before has been handled.
    for (const Window& child : dialog.Children()) {
        if (!child.IsOfClass(WC_LISTVIEWW)) {
            continue;
        }
        const LRESULT mark = child.Send(LVM_GETHOVERTIME) == 500 ? 501 : 500;
        child.Post(LVM_SETHOVERTIME, 0, mark);
        if (!driver::WaitUntil([&] { return child.Send(LVM_GETHOVERTIME) == mark; })) {
            throw driver::Failure(dialog.Name() + L" was expected to handle its messages, and does not.");
        }
        return;
    }
    dialog.Send(WM_NULL);
}

std::vector<std::string> CertificateTest::Calls(const std::string& function) const {
    std::vector<std::string> calls;
    std::ifstream stream(folder_.Path() / L"tarn1_log.txt", std::ios::binary);
    for (std::string line; std::getline(stream, line);) {
        if (function.empty() || line.starts_with(function + " ")) {
            calls.push_back(line.substr(0, line.rfind(" | ")));
        }
    }
    return calls;
}

void CertificateTest::ForgetCalls() {
    program_.reset();
    DeleteFileW((folder_.Path() / L"tarn1_log.txt").c_str());
}

std::string CertificateTest::Out() const {
    std::string last;
    std::ifstream stream(folder_.Path() / L"tarn1_log.txt", std::ios::binary);
    for (std::string line; std::getline(stream, line);) {
        last = line;
    }
    const std::size_t mark = last.rfind(" | ");
    return mark == std::string::npos ? "no call" : last.substr(mark + 3);
}

driver::MessageBoxWindow CertificateTest::WaitForMessageBox(const Window& owner) const {
    // Whatever else the owner shows at the moment is on its way out.
    Window box;
    static_cast<void>(driver::WaitUntil([&] {
        for (const Window& window : program_->TopLevelWindows()) {
            if (window.Owner() == owner && window.IsEnabled() && driver::MessageBoxWindow::Is(window)) {
                box = window;
            }
        }
        return box.Handle() != nullptr || !program_->IsRunning();
    }));
    if (box.Handle() == nullptr) {
        throw driver::Failure(L"A message box of " + owner.Name() + L" was expected, and none came.");
    }
    return driver::MessageBoxWindow(box);
}

void CertificateTest::ExpectMessageBox(const Window& owner, const std::wstring& text, unsigned style,
                                       int answer, const std::wstring& title) const {
    const driver::MessageBoxWindow box = WaitForMessageBox(owner);
    EXPECT_EQ(box.View(), driver::MessageBoxOfStyle(text, title, style));
    box.Answer(answer);
}

Window CertificateTest::WaitForWarningBox(const Window& owner) const {
    Window box;
    if (!driver::WaitUntil([&] {
            for (const Window& window : program_->TopLevelWindows()) {
                if (window.Owner() == owner && window.HasControl(IDC_WARNING_BOX_EDIT)) {
                    box = window;
                }
            }
            return box.Handle() != nullptr || !program_->IsRunning();
        }) ||
        box.Handle() == nullptr) {
        throw driver::Failure(L"A warning box was expected, and none came.");
    }
    Settle(box);
    return box;
}

void CertificateTest::ExpectWarningBox(const Window& owner, const std::wstring& title,
                                       const std::wstring& text) const {
    const Window box = WaitForWarningBox(owner);
    EXPECT_EQ(driver::Utf8(box.Text()), driver::Utf8(title));
    EXPECT_EQ(driver::Utf8(box.Control(IDC_WARNING_BOX_EDIT).Text()), driver::Utf8(text));
    box.Control(IDCANCEL).PostClick();
    box.WaitUntilGone();
}

std::string ToCodePage(const std::wstring& text) {
    const int size = static_cast<int>(text.size());
    std::string bytes(text.size() * 2, '\0');
    bytes.resize(static_cast<std::size_t>(WideCharToMultiByte(
        CP_ACP, 0, text.data(), size, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

std::wstring FromCodePage(const std::string& bytes) {
    const int size = static_cast<int>(bytes.size());
    std::wstring text(bytes.size(), L'\0');
    text.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, text.data(), size)));
    return text;
}

}  // namespace corvane::test
