#pragma once

#include <windows.h>

#include <array>
#include <bit>
#include <string>

namespace corvane::toolkit {

/// Finds an exported function of a loaded module; null where it is missing or there is no module.
template <typename Function>
[[nodiscard]] Function FindFunction(HMODULE module, const char* name) {
    const FARPROC found = module != nullptr ? GetProcAddress(module, name) : nullptr;
    // A copy, because a cast between unrelated function types is what the compiler rightly warns of.
    return std::bit_cast<Function>(found);
}

/// Finds a function that not every supported Windows has, in a module that is loaded already.
template <typename Function>
[[nodiscard]] Function FindSystemFunction(const wchar_t* moduleName, const char* name) {
    return FindFunction<Function>(GetModuleHandleW(moduleName), name);
}

/// The folder of the system's libraries (GetSystemDirectoryW), ended by a NUL.
[[nodiscard]] inline std::array<wchar_t, MAX_PATH> SystemFolder() {
    std::array<wchar_t, MAX_PATH> folder{};
    GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    return folder;
}

/// Takes the current folder, which may be anyone's, out of the folders in which the process finds a library
/// by its name: for the program itself and for everything that it loads. To be called before anything else.
inline void LeaveCurrentFolderOutOfLibrarySearch() {
    // Any folder that is named takes the place of the current one. The system's is searched anyway; an empty
    // name, which Windows has for this, is none for Wine (SetDllDirectoryW).
    SetDllDirectoryW(SystemFolder().data());
}

/// A library of the system that is loaded when it is first needed, so that neither the start of the program
/// nor its memory pays for dialogs that are not opened. It stays loaded: the shell's libraries do not like
/// to be unloaded while the process lives.
class LateLibrary {
  public:
    /// `name` with its ending; taken from the system's folder only, and what it needs is looked for there
    /// first (LoadLibraryExW with a full path, which no Windows has to be updated for).
    explicit LateLibrary(const wchar_t* name)
        : handle_(LoadLibraryExW((std::wstring(SystemFolder().data()) + L'\\' + name).c_str(), nullptr,
                                 LOAD_WITH_ALTERED_SEARCH_PATH)),
          failureCode_(handle_ == nullptr ? GetLastError() : ERROR_PROC_NOT_FOUND) {}

    /// The function of that name and of the type of the given declaration, or null.
    template <typename Function>
    [[nodiscard]] Function Find(const char* name) const {
        return FindFunction<Function>(handle_, name);
    }

    [[nodiscard]] bool IsLoaded() const { return handle_ != nullptr; }

    /// Why Find gave null: the system's code of a library that could not be loaded, or the one of a function
    /// that it does not have.
    [[nodiscard]] DWORD FailureCode() const { return failureCode_; }

  private:
    HMODULE handle_;
    DWORD failureCode_;
};

}  // namespace corvane::toolkit
