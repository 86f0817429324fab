#pragma once

#include <windows.h>

#include <commdlg.h>

#include <string>

#include "toolkit/path_choice.h"

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
/// chosen (GetSaveFileNameW). A failure is the caller's to report.
[[nodiscard]] PathChoice AskWhereToSave(HWND owner, const FileDialogOffer& offer);

/// Asks for a file that exists (GetOpenFileNameW). A failure is the caller's to report.
[[nodiscard]] PathChoice AskWhatToOpen(HWND owner, const FileDialogOffer& offer);

/// The two functions of the system that a file dialog is shown with.
struct FileDialogFunctions {
    decltype(&::GetOpenFileNameW) ask;
    decltype(&::CommDlgExtendedError) lastError;  ///< 0 after a cancel.
};

/// Shows a file dialog with `functions` and the OFN_ flags that are added to those of every file dialog. An
/// offered name that the system refuses is left out, so that the user still gets to choose. The process's
/// current folder is afterwards what it was before.
[[nodiscard]] PathChoice ShowFileDialog(const FileDialogFunctions& functions, HWND owner,
                                        const FileDialogOffer& offer, DWORD flags);

}  // namespace toolkit
