#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

#include "toolkit/system/handles.h"

namespace scriptable {

/// The file that tells a test what the library was called with, line by line, while it is still at work.
class CallLog {
  public:
    explicit CallLog(const std::filesystem::path& file)
        : file_(CreateFileW(file.c_str(), FILE_APPEND_DATA,
                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {}

    void Write(const std::string& line) const {
        const std::string text = line + "\n";
        DWORD written = 0;
        WriteFile(file_.Get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    }

  private:
    corvane::toolkit::UniqueKernelHandle file_;
};

}  // namespace scriptable
