#pragma once

#include <windows.h>

#include "toolkit/system_function.h"

namespace toolkit {

/// A library of the system that is loaded when it is first needed, so that neither the start of the program
/// nor its memory pays for dialogs that are not opened. It stays loaded: the shell's libraries do not like
/// to be unloaded while the process lives.
class LateLibrary {
  public:
    /// `name` with its ending; searched in the system's folder only.
    explicit LateLibrary(const wchar_t* name)
        : handle_(LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {}

    /// The function of that name and of the type of the given declaration, or null.
    template <typename Function>
    [[nodiscard]] Function Find(const char* name) const {
        return FindFunction<Function>(handle_, name);
    }

  private:
    HMODULE handle_;
};

}  // namespace toolkit
