#include "tests/kit/driver/watched_process.h"

#include <gtest/gtest.h>

#include "tests/kit/driver/waiting.h"

namespace corvane::test {
namespace {

constexpr DWORD kOwnEnd = 7;

/// Starts the program once, as the driver does.
DWORD Start(const std::wstring& file, PROCESS_INFORMATION& process) {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    return CreateProcessW(file.c_str(), nullptr, nullptr, nullptr, FALSE, DEBUG_ONLY_THIS_PROCESS, nullptr,
                          nullptr, &start, &process)
               ? ERROR_SUCCESS
               : GetLastError();
}

/// Starts the program, ends it before anything of it has run, and starts it again. What the first start has
/// to report is still to be heard when the second one is watched.
DWORD StartAfterAFailure(const std::wstring& file, PROCESS_INFORMATION& process) {
    PROCESS_INFORMATION failed{};
    const DWORD code = Start(file, failed);
    if (code != ERROR_SUCCESS) {
        return code;
    }
    const UniqueHandle failedProcess(failed.hProcess);
    const UniqueHandle failedThread(failed.hThread);
    TerminateProcess(failed.hProcess, 1);
    return Start(file, process);
}

class WatchedProcessTest : public ::testing::Test {
  protected:
    WatchedProcessTest() {
        file_.resize(MAX_PATH * 4);
        file_.resize(GetEnvironmentVariableW(L"CORVANE_ENDING_PROGRAM", file_.data(),
                                             static_cast<DWORD>(file_.size())));
    }
    [[nodiscard]] const std::wstring& File() const { return file_; }

  private:
    std::wstring file_;
};

TEST_F(WatchedProcessTest, ComesToItsOwnEnd) {
    const WatchedProcess process(File(), Start);
    ASSERT_TRUE(process.HasEndedWithin(kLimitMilliseconds));
    EXPECT_EQ(process.ExitCode(), kOwnEnd);
}

TEST_F(WatchedProcessTest, ComesToItsOwnEndAfterAStartThatFailed) {
    const WatchedProcess process(File(), StartAfterAFailure);
    ASSERT_TRUE(process.HasEndedWithin(kLimitMilliseconds));
    EXPECT_EQ(process.ExitCode(), kOwnEnd);
    EXPECT_TRUE(process.Crashes().empty());
}

}  // namespace
}  // namespace corvane::test
