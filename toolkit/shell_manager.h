#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace toolkit {

/// The program's way to the shell. It opens the thread's COM apartment when it is first needed and closes it
/// with its own end, so there is one for the life of the program.
class ShellManager {
  public:
    ShellManager() = default;
    ShellManager(const ShellManager&) = delete;
    ShellManager& operator=(const ShellManager&) = delete;
    ShellManager(ShellManager&&) = delete;
    ShellManager& operator=(ShellManager&&) = delete;
    ~ShellManager();

    /// Lets the user choose a folder of the file system (IFileOpenDialog with FOS_PICKFOLDERS). None when the
    /// user cancels or the shell has no such dialog.
    [[nodiscard]] std::optional<std::wstring> PickFolder(HWND owner);

  private:
    bool OpenApartment();

    bool hasApartment_ = false;
};

}  // namespace toolkit
