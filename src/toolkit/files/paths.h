#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace corvane::toolkit {

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

/// Makes a name that a file dialog may propose out of any text: each character that no file name can hold
/// (control characters and "*/:<>?\|) becomes an underscore. A dialog that is handed one of these fails at
/// once, without a word to the user, and a profile's name may well have a colon in it.
[[nodiscard]] std::wstring ProposedFileName(std::wstring name);

/// The form of a path in which every Windows takes it, however long. A path that is absolute and has as many
/// characters as the system takes at most by itself, closing NUL included (MAX_PATH, 260), or more, gets the
/// prefix \\?\, or \\?\UNC\ where it leads to another machine. Behind the prefix the system takes every
/// character as it is, so what it would otherwise do is done here: '/' becomes '\', repeated separators one,
/// and the steps "." and ".." are taken. All other paths, and those with a prefix, come back as they are.
[[nodiscard]] std::wstring LongPathForm(const std::wstring& path);

}  // namespace corvane::toolkit
