#pragma once

#include <cstdint>
#include <string>

#include "certs/provider/provider_functions.h"

namespace corvane {

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

}  // namespace corvane
