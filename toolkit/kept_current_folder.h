#pragma once

#include <windows.h>

#include <string>

namespace toolkit {

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

}  // namespace toolkit
