#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace corvane::reporting {

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

/// The message tables of the running Windows, in the user's language.
class WindowsSystemMessages : public SystemMessages {
  public:
    /// FormatMessageW with the system's table. Places for inserts stay as they stand in the table.
    [[nodiscard]] std::optional<std::wstring> FromSystem(std::uint32_t code) const override;

    /// FormatMessageW with the table of wininet.dll: of the module that is loaded, else of the file in the
    /// system folder, which is then mapped as data for the time of the call and none of its code is run.
    [[nodiscard]] std::optional<std::wstring> FromInternetModule(std::uint32_t code) const override;
};

}  // namespace corvane::reporting
