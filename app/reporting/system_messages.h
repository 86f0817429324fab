#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace corvane {

/// The texts that the system has for its error codes.
class SystemMessages {
  public:
    virtual ~SystemMessages() = default;

    /// The text of the system's own message table (FormatMessageW), as it comes, or none.
    [[nodiscard]] virtual std::optional<std::wstring> FromSystem(std::uint32_t code) const = 0;

    /// The text of the message table of the "wininet" module, whether or not it happens to be loaded.
    [[nodiscard]] virtual std::optional<std::wstring> FromInternetModule(std::uint32_t code) const = 0;

  protected:
    SystemMessages() = default;
    SystemMessages(const SystemMessages&) = default;
    SystemMessages& operator=(const SystemMessages&) = default;
    SystemMessages(SystemMessages&&) = default;
    SystemMessages& operator=(SystemMessages&&) = default;
};

}  // namespace corvane
