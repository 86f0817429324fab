#include "reporting/system_messages.h"

#include <windows.h>

#include "reporting/message_styles.h"
#include "toolkit/system/handles.h"
#include "toolkit/system/libraries.h"

namespace corvane::reporting {

namespace {

// What deciding code knows of the platform's numbers without its headers.
static_assert(kRefusalStyle == (MB_ICONWARNING | MB_OK) && kContinueStyle == (MB_ICONWARNING | MB_OKCANCEL) &&
              kConfirmationStyle == (MB_ICONQUESTION | MB_YESNO | MB_DEFBUTTON2) &&
              kWarningQuestionStyle == (MB_ICONWARNING | MB_YESNO | MB_DEFBUTTON2) &&
              kErrorStyle == (MB_ICONERROR | MB_OK) && kInformationStyle == (MB_ICONINFORMATION | MB_OK));
static_assert(kAnswerOk == IDOK && kAnswerCancel == IDCANCEL && kAnswerYes == IDYES && kAnswerNo == IDNO);

// Inserts must be ignored: there are no arguments, and a text such as that of code 34 names some.
constexpr DWORD kHowToFormat = FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS;

std::optional<std::wstring> FormatSystemMessage(DWORD table, HMODULE module, std::uint32_t code) {
    toolkit::UniqueLocalMemory<wchar_t> text;
    // With an allocated buffer the parameter is the address of the pointer, in the clothes of the pointer.
    const DWORD lengthChars = FormatMessageW(kHowToFormat | table, module, code, 0,
                                             reinterpret_cast<wchar_t*>(text.Receive()), 0, nullptr);
    return lengthChars == 0 ? std::nullopt : std::optional(std::wstring(text.Get(), lengthChars));
}

}  // namespace

std::optional<std::wstring> WindowsSystemMessages::FromSystem(std::uint32_t code) const {
    return FormatSystemMessage(FORMAT_MESSAGE_FROM_SYSTEM, nullptr, code);
}

std::optional<std::wstring> WindowsSystemMessages::FromInternetModule(std::uint32_t code) const {
    HMODULE module = GetModuleHandleW(L"wininet.dll");
    toolkit::UniqueModule mapped;
    if (module == nullptr) {
        const std::wstring file = std::wstring(toolkit::SystemFolder().data()) + L"\\wininet.dll";
        mapped.Reset(
            LoadLibraryExW(file.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE));
        module = mapped.Get();
    }
    // Without a module the function would look into the table of the program itself.
    return module == nullptr ? std::nullopt : FormatSystemMessage(FORMAT_MESSAGE_FROM_HMODULE, module, code);
}

}  // namespace corvane::reporting
