#include "tests/kit/fakes/memory_files.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// The faults that are looked for elsewhere are seen through this stand-in, so it must not be blind itself.

namespace corvane::test {
namespace {

constexpr wchar_t kFilePath[] = L"C:\\file";

TEST(MemoryFiles, AFileIsCreatedWrittenAndReadBack) {
    MemoryFiles files;
    toolkit::FileCalls::Handle file = nullptr;
    std::size_t sizeBytes = 0;
    ASSERT_EQ(files.Create(kFilePath, file), 0U);
    EXPECT_EQ(files.Write(file, "abc", 3, sizeBytes), 0U);
    EXPECT_EQ(files.Write(file, "de", 2, sizeBytes), 0U);
    EXPECT_EQ(files.Close(file), 0U);
    ASSERT_EQ(files.Open(kFilePath, file), 0U);
    std::uint64_t fileBytes = 0;
    EXPECT_EQ(files.Size(file, fileBytes), 0U);
    EXPECT_EQ(fileBytes, 5U);
    std::array<char, 4> data{};
    EXPECT_EQ(files.Read(file, data.data(), data.size(), sizeBytes), 0U);
    EXPECT_EQ(std::string(data.data(), sizeBytes), "abcd");
    EXPECT_EQ(files.Read(file, data.data(), data.size(), sizeBytes), 0U);
    EXPECT_EQ(std::string(data.data(), sizeBytes), "e");
    EXPECT_EQ(files.Read(file, data.data(), data.size(), sizeBytes), 0U);
    EXPECT_EQ(sizeBytes, 0U);
    EXPECT_EQ(files.Close(file), 0U);
    EXPECT_EQ(files.Misuses(), 0U);
}

TEST(MemoryFiles, CreatingReplacesAndOpeningAMissingFileFails) {
    MemoryFiles files;
    toolkit::FileCalls::Handle file = nullptr;
    EXPECT_EQ(files.Open(kFilePath, file), 2U);
    EXPECT_EQ(files.CheckExists(kFilePath), 2U);
    EXPECT_EQ(file, nullptr);
    files.contents[kFilePath] = "old";
    EXPECT_EQ(files.CheckExists(kFilePath), 0U);
    ASSERT_EQ(files.Create(kFilePath, file), 0U);
    EXPECT_EQ(files.contents[kFilePath], "");
    EXPECT_EQ(files.Close(file), 0U);
}

TEST(MemoryFiles, AHandleThatIsNotClosedIsCounted) {
    MemoryFiles files;
    toolkit::FileCalls::Handle file = nullptr;
    ASSERT_EQ(files.Create(kFilePath, file), 0U);
    EXPECT_EQ(files.OpenHandles(), 1U);
    EXPECT_EQ(files.Close(file), 0U);
    EXPECT_EQ(files.OpenHandles(), 0U);
}

TEST(MemoryFiles, ASecondCloseAndAReadOfAFileForWritingAreMisuses) {
    MemoryFiles files;
    toolkit::FileCalls::Handle file = nullptr;
    ASSERT_EQ(files.Create(kFilePath, file), 0U);
    char byte = 0;
    std::size_t sizeBytes = 0;
    EXPECT_EQ(files.Read(file, &byte, 1, sizeBytes), 6U);
    EXPECT_EQ(files.Misuses(), 1U);
    EXPECT_EQ(files.Close(file), 0U);
    EXPECT_EQ(files.Close(file), 6U);
    EXPECT_EQ(files.Misuses(), 2U);
}

TEST(MemoryFiles, TheCallOfTheIndexFailsAndDoesNothing) {
    MemoryFiles files;
    toolkit::FileCalls::Handle file = nullptr;
    files.FailCall(1, 112);
    files.FailCall(3, 6);
    std::size_t sizeBytes = 0;
    ASSERT_EQ(files.Create(kFilePath, file), 0U);
    EXPECT_EQ(files.Write(file, "a", 1, sizeBytes), 112U);
    EXPECT_EQ(files.Write(file, "b", 1, sizeBytes), 0U);
    EXPECT_EQ(files.contents[kFilePath], "b");
    EXPECT_EQ(files.Close(file), 6U);
    EXPECT_EQ(files.OpenHandles(), 0U);
    const std::vector<FileCall> calls = {{FileOperation::kCreate, kFilePath, 0},
                                         {FileOperation::kWrite, kFilePath, 112},
                                         {FileOperation::kWrite, kFilePath, 0},
                                         {FileOperation::kClose, kFilePath, 6}};
    EXPECT_EQ(files.Calls(), calls);
}

}  // namespace
}  // namespace corvane::test
