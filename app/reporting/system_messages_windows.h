#pragma once

#include "app/reporting/system_messages.h"

namespace corvane {

/// The message tables of the running Windows, in the user's language.
class WindowsSystemMessages : public SystemMessages {
  public:
    /// FormatMessageW with the system's table. Places for inserts stay as they stand in the table.
    [[nodiscard]] std::optional<std::wstring> FromSystem(std::uint32_t code) const override;

    /// FormatMessageW with the table of wininet.dll: of the module that is loaded, else of the file in the
    /// system folder, which is then mapped as data for the time of the call and none of its code is run.
    [[nodiscard]] std::optional<std::wstring> FromInternetModule(std::uint32_t code) const override;
};

}  // namespace corvane
