#pragma once

#include <windows.h>

#include <commdlg.h>

#include <string>

#include "toolkit/files/paths.h"

namespace corvane::toolkit {

/// Puts the process's current folder back at its end. File dialogs of the system go with the user from folder
/// to folder, and what asks them to leave the current folder alone does not bind all of them
/// (OFN_NOCHANGEDIR has no effect on GetOpenFileNameW).
class KeptCurrentFolder {
  public:
    KeptCurrentFolder() {
        // The size asked for has room for the closing NUL, and the length given does not count it.
        path_.resize(GetCurrentDirectoryW(0, nullptr));
        path_.resize(GetCurrentDirectoryW(static_cast<DWORD>(path_.size()), path_.data()));
    }
    KeptCurrentFolder(const KeptCurrentFolder&) = delete;
    KeptCurrentFolder& operator=(const KeptCurrentFolder&) = delete;
    KeptCurrentFolder(KeptCurrentFolder&&) = delete;
    KeptCurrentFolder& operator=(KeptCurrentFolder&&) = delete;
    ~KeptCurrentFolder() { SetCurrentDirectoryW(path_.c_str()); }

  private:
    std::wstring path_;
};

/// What a file dialog offers.
struct FileDialogOffer {
    std::wstring fileName;  ///< Proposed name, may be empty; ProposedFileName is applied to it.
    std::wstring folder;    ///< Where to start when the name has no path; empty leaves it to the system.
    std::wstring defaultExtension;  ///< Without its point.
    std::wstring filter;  ///< Descriptions and patterns in turn, each ended by "|", one more at the end.
    /// A file to propose whose folder is known too, taken as it is in place of the name; empty for none.
    std::wstring path;
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

/// The program's way to the shell. It opens the thread's COM apartment with its start and closes it with its
/// own end, so there is one for the life of the program, and no library that is loaded later can have opened
/// one of another kind before, in which the shell's dialogs do not work well.
class ShellManager {
  public:
    /// Opens a single-threaded apartment (CoInitializeEx). Where the thread has one of another kind already,
    /// that one is used and left alone.
    ShellManager();
    ShellManager(const ShellManager&) = delete;
    ShellManager& operator=(const ShellManager&) = delete;
    ShellManager(ShellManager&&) = delete;
    ShellManager& operator=(ShellManager&&) = delete;
    ~ShellManager();

    /// Lets the user choose a folder of the file system (IFileOpenDialog with FOS_PICKFOLDERS). A failure is
    /// the caller's to report. The process's current folder is afterwards what it was before.
    [[nodiscard]] PathChoice PickFolder(HWND owner);

  private:
    HRESULT apartment_;  ///< What opening the apartment came to.
};

}  // namespace corvane::toolkit
