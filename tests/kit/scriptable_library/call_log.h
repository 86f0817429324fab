#pragma once

#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "toolkit/system/handles.h"

namespace corvane::test {

/// What the library is still out with: contexts that are open, results and texts that were handed out, and
/// how many calls so far were made with something that was not out.
struct CountsOut {
    std::size_t contexts = 0;
    std::size_t results = 0;
    std::size_t texts = 0;
    unsigned wrong = 0;
};

/// A call of the library, as the log has it after the call.
struct LoggedCall {
    std::string function;
    std::string arguments;  ///< As "name=value" or words, with blanks between them; may be empty.
    std::uint32_t status = 0;
    CountsOut out;
};

/// The file beside the library that tells a test what it was called with, a JSON object in each line, while
/// it is still at work.
inline constexpr wchar_t kCallLogFile[] = L"tarn1_log.jsonl";

/// Appends to that file.
class CallLog {
  public:
    explicit CallLog(const std::filesystem::path& folder)
        : file_(CreateFileW((folder / kCallLogFile).c_str(), FILE_APPEND_DATA,
                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {}

    void Write(const LoggedCall& call) const;
    /// Says that the library could not do what it was asked for; whoever reads the log fails.
    void WriteFailure(const std::string& what) const;

  private:
    void WriteLine(const std::string& line) const;

    toolkit::UniqueKernelHandle file_;
};

/// Reads the log in a folder; none is a library that was not called. Throws std::exception for a line that is
/// no logged call.
[[nodiscard]] std::vector<LoggedCall> ReadCallLog(const std::filesystem::path& folder);

}  // namespace corvane::test
