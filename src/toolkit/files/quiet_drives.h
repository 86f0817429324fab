#pragma once

#include <windows.h>

namespace corvane::toolkit {

/// While it lives, the system fails calls of this thread instead of asking the user to put a disk into a
/// drive: the program tells of failures in its own words. The thread's own mode is put back afterwards
/// (SetThreadErrorMode).
class QuietDrives {
  public:
    QuietDrives() { SetThreadErrorMode(GetThreadErrorMode() | SEM_FAILCRITICALERRORS, &former_); }
    QuietDrives(const QuietDrives&) = delete;
    QuietDrives& operator=(const QuietDrives&) = delete;
    QuietDrives(QuietDrives&&) = delete;
    QuietDrives& operator=(QuietDrives&&) = delete;
    ~QuietDrives() { SetThreadErrorMode(former_, nullptr); }

  private:
    DWORD former_ = 0;
};

}  // namespace corvane::toolkit
