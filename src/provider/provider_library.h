#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "provider/provider_functions.h"

namespace corvane::provider {

/// Why the provider library could not be bound.
struct ProviderBindFailure {
    std::uint32_t code = 0;  ///< The system's error code; 0 when nothing failed.
    /// The library's or the function's name, or what the library needs and cannot find.
    std::string missing;
};

/// The crypto provider library as far as it is at hand.
class ProviderLibrary {
  public:
    virtual ~ProviderLibrary() = default;

    /// The eight functions, or null when the library or one of them is missing. The first call binds; a
    /// failed binding is tried again by the next call, so that a library installed meanwhile is found.
    [[nodiscard]] virtual const ProviderFunctions* Functions() = 0;

    /// What the last call of Functions() failed with.
    [[nodiscard]] virtual const ProviderBindFailure& LastFailure() const = 0;

  protected:
    ProviderLibrary() = default;
    ProviderLibrary(const ProviderLibrary&) = default;
    ProviderLibrary& operator=(const ProviderLibrary&) = default;
    ProviderLibrary(ProviderLibrary&&) = default;
    ProviderLibrary& operator=(ProviderLibrary&&) = default;
};

/// The maker's library tarn1.dll, bound by name at first use, so that the program starts and works without
/// it. It is found where the system finds a library that a program imports by name: in the program's own
/// folder, in the system's folders and on the search path (LoadLibraryExW, GetProcAddress). The current
/// folder, where anyone may have put a file of that name, is for the program to take out of the search
/// (LeaveCurrentFolderOutOfLibrarySearch), since what this library loads in its turn is looked for in the
/// same places.
///
/// It is bound as a whole or not at all. Once bound it is never unloaded: cryptocontexts may still be open in
/// it when this object goes.
class SystemProviderLibrary : public ProviderLibrary {
  public:
    [[nodiscard]] const ProviderFunctions* Functions() override;

    /// The code of LoadLibraryExW and "tarn1.dll", or what "tarn1.dll" lacks of its own where the file is
    /// there; or the code of GetProcAddress and the function's name.
    [[nodiscard]] const ProviderBindFailure& LastFailure() const override { return lastFailure_; }

  private:
    std::optional<ProviderFunctions> functions_;
    ProviderBindFailure lastFailure_;
};

}  // namespace corvane::provider
