#include "provider/provider_library.h"

#include <windows.h>

#include <array>
#include <bit>
#include <string>

#include "toolkit/files/quiet_drives.h"
#include "toolkit/system/handles.h"
#include "toolkit/system/libraries.h"

namespace corvane::provider {

namespace {

constexpr wchar_t kLibraryFile[] = L"tarn1.dll";

// The folders in which the system finds a library by its name, separated by semicolons.
std::wstring SearchedFolders() {
    // The longest path and the longest variable that the system has, in characters.
    constexpr DWORD kLongest = 0x8000;
    std::wstring program(kLongest, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), kLongest));
    program.erase(program.find_last_of(L'\\') + 1);
    std::array<wchar_t, MAX_PATH> windows{};
    GetWindowsDirectoryW(windows.data(), static_cast<UINT>(windows.size()));
    std::wstring searchPath(kLongest, L'\0');
    searchPath.resize(GetEnvironmentVariableW(L"PATH", searchPath.data(), kLongest));
    return program + L';' + toolkit::SystemFolder().data() + L';' + windows.data() + L';' + searchPath;
}

// What is missing when the library cannot be loaded: the system gives the same code for one that is not there
// and for one that lacks what it needs itself.
const char* MissingWithCode(DWORD code) {
    const bool isAboutImports = code == ERROR_MOD_NOT_FOUND || code == ERROR_PROC_NOT_FOUND;
    if (!isAboutImports ||
        SearchPathW(SearchedFolders().c_str(), kLibraryFile, nullptr, 0, nullptr, nullptr) == 0) {
        return "tarn1.dll";
    }
    return code == ERROR_MOD_NOT_FOUND ? "a library that tarn1.dll needs" : "a function that tarn1.dll needs";
}

// Looks functions up until one is missing; the first missing one is remembered.
class FunctionFinder {
  public:
    explicit FunctionFinder(HMODULE module) : module_(module) {}

    template <typename Function>
    void Find(const char* name, Function*& function) {
        if (failure_.code != 0) {
            return;
        }
        const FARPROC found = GetProcAddress(module_, name);
        if (found == nullptr) {
            failure_ = {GetLastError(), name};
            return;
        }
        function = std::bit_cast<Function*>(found);
    }

    [[nodiscard]] const ProviderBindFailure& Failure() const { return failure_; }

  private:
    HMODULE module_;
    ProviderBindFailure failure_;
};

}  // namespace

const ProviderFunctions* SystemProviderLibrary::Functions() {
    if (functions_) {
        return &*functions_;
    }
    const toolkit::QuietDrives quiet;
    toolkit::UniqueModule module(LoadLibraryExW(kLibraryFile, nullptr, 0));
    if (!module) {
        const DWORD code = GetLastError();
        lastFailure_ = {code, MissingWithCode(code)};
        return nullptr;
    }
    ProviderFunctions functions{};
    FunctionFinder finder(module.Get());
    finder.Find("XSIG_Initialize", functions.initialize);
    finder.Find("XSIG_Uninitialize", functions.uninitialize);
    finder.Find("XSIG_Ctrl", functions.control);
    finder.Find("XSIG_FindCert", functions.findCert);
    finder.Find("XSIG_FreeFindResult", functions.freeFindResult);
    finder.Find("XSIG_FreeMem", functions.freeMem);
    finder.Find("XSIG_GetErrorText", functions.getErrorText);
    finder.Find("XSIG_GetErrorLineEx", functions.getErrorLine);
    lastFailure_ = finder.Failure();
    if (lastFailure_.code != 0) {
        return nullptr;
    }
    static_cast<void>(module.Release());
    functions_ = functions;
    return &*functions_;
}

}  // namespace corvane::provider
