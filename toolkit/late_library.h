#pragma once

#include <windows.h>

#include <string>

#include "toolkit/library_search.h"
#include "toolkit/system_function.h"

namespace toolkit {

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

}  // namespace toolkit
