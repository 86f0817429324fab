#pragma once

#include <optional>

#include "certs/provider/provider_library.h"

namespace corvane {

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

}  // namespace corvane
