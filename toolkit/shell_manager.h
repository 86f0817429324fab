#pragma once

#include <windows.h>

#include "toolkit/path_choice.h"

namespace toolkit {

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

}  // namespace toolkit
