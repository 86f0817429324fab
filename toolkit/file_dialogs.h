#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace toolkit {

/// What a file dialog offers.
struct FileDialogOffer {
    std::wstring fileName;  ///< Proposed name, may be empty; ProposedFileName is applied to it.
    std::wstring folder;    ///< Where to start when the name has no path; empty leaves it to the system.
    std::wstring defaultExtension;  ///< Without its point.
    std::wstring filter;  ///< Descriptions and patterns in turn, each ended by "|", one more at the end.
    /// A file to propose whose folder is known too, taken as it is in place of the name; empty for none.
    std::wstring path = {};
};

/// Asks where to save a file: the read-only box is hidden, and an existing file is asked about before it is
/// chosen (GetSaveFileNameW). None when the user cancels.
[[nodiscard]] std::optional<std::wstring> AskWhereToSave(HWND owner, const FileDialogOffer& offer);

/// Asks for a file that exists (GetOpenFileNameW). None when the user cancels.
[[nodiscard]] std::optional<std::wstring> AskWhatToOpen(HWND owner, const FileDialogOffer& offer);

}  // namespace toolkit
