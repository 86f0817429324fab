#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <type_traits>

#include "certs/provider/provider_library.h"

namespace corvane {

/// The maker's library tarn1.dll, bound by name at first use, so that the program starts and works without
/// it. It is looked for in the program's own folder and in the system's, never in the current folder, where
/// anyone may have put a file of that name (LoadLibraryExW, GetProcAddress). It is bound as a whole or not at
/// all, and stays loaded as long as this object lives.
class SystemProviderLibrary : public ProviderLibrary {
  public:
    [[nodiscard]] const ProviderFunctions* Functions() override;

    /// The code of LoadLibraryExW and "tarn1.dll", or the code of GetProcAddress and the function's name.
    [[nodiscard]] const ProviderBindFailure& LastFailure() const override { return lastFailure_; }

  private:
    struct ModuleFreer {
        using pointer = HMODULE;
        void operator()(HMODULE module) const { FreeLibrary(module); }
    };

    std::unique_ptr<std::remove_pointer_t<HMODULE>, ModuleFreer> module_;
    std::optional<ProviderFunctions> functions_;
    ProviderBindFailure lastFailure_;
};

}  // namespace corvane
