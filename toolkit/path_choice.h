#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace toolkit {

/// Why a file dialog or a folder picker could not be shown, or not asked for what was chosen.
struct DialogFailure {
    const char* operationFormat;  ///< What was being done, 8-bit, with one %s.
    std::string detail;           ///< For the %s: the library, function or step that failed, 8-bit.
    std::uint32_t code;           ///< The system's code.

    bool operator==(const DialogFailure&) const = default;
};

/// What came of letting the user choose a file or a folder. Neither a path nor a failure: the user cancelled.
struct PathChoice {
    std::optional<std::wstring> path;
    std::optional<DialogFailure> failure;

    bool operator==(const PathChoice&) const = default;
};

inline constexpr char kShowFileDialogOperation[] = "Showing file dialog (%s)";
inline constexpr char kShowFolderPickerOperation[] = "Showing folder picker (%s)";

/// The number with which common dialogs refuse the name that they were to offer.
inline constexpr std::uint32_t kCommonDialogInvalidFileName = 0x3002;

/// The failure that the number of a common dialog stands for, which is not 0 (CommDlgExtendedError). These
/// numbers are no codes of the system: the code says the same as near as it can, the detail has the number.
[[nodiscard]] DialogFailure CommonDialogFailure(std::uint32_t commonDialogError);

}  // namespace toolkit
