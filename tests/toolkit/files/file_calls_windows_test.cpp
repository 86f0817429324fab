#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "tests/kit/fixtures/temporary_folder.h"
#include "toolkit/files/file_calls.h"
#include "toolkit/system/handles.h"

namespace corvane::test {
namespace {

constexpr std::uint32_t kUntouchedCount = 77;

// A file with these bytes.
void PutFile(const std::wstring& path, const std::string& bytes) {
    toolkit::WindowsFileCalls files;
    toolkit::FileCalls::Handle file = nullptr;
    ASSERT_EQ(files.Create(path, file), 0U);
    std::size_t written = 0;
    EXPECT_EQ(files.Write(file, bytes.data(), bytes.size(), written), 0U);
    EXPECT_EQ(written, bytes.size());
    EXPECT_EQ(files.Close(file), 0U);
}

// The bytes of a file, as far as they fit into one read.
std::string BytesOf(const std::wstring& path) {
    toolkit::WindowsFileCalls files;
    toolkit::FileCalls::Handle file = nullptr;
    if (files.Open(path, file) != 0) {
        return "(not there)";
    }
    std::string bytes(1000, '\0');
    std::size_t readBytes = 0;
    EXPECT_EQ(files.Read(file, bytes.data(), bytes.size(), readBytes), 0U);
    EXPECT_EQ(files.Close(file), 0U);
    bytes.resize(readBytes);
    return bytes;
}

TEST(WindowsFileCalls, WhatIsWrittenIsReadByteByByte) {
    const TemporaryFolder folder;
    const std::string bytes("line\n\r\0\x1A\xFF end", 13);
    PutFile(folder.File(L"a.prx"), bytes);
    EXPECT_EQ(BytesOf(folder.File(L"a.prx")), bytes);
}

TEST(WindowsFileCalls, NamesOutsideOfTheCodePageWork) {
    const TemporaryFolder folder;
    PutFile(folder.File(L"Жук 表 ü.prx"), "bytes");
    EXPECT_EQ(BytesOf(folder.File(L"Жук 表 ü.prx")), "bytes");
}

TEST(WindowsFileCalls, CreatingReplacesWhatWasThere) {
    const TemporaryFolder folder;
    PutFile(folder.File(L"a.prx"), "a longer text");
    PutFile(folder.File(L"a.prx"), "short");
    EXPECT_EQ(BytesOf(folder.File(L"a.prx")), "short");
}

TEST(WindowsFileCalls, CreatingInAFolderThatIsNotThereFailsAndLeavesTheHandle) {
    const TemporaryFolder folder;
    toolkit::WindowsFileCalls files;
    toolkit::FileCalls::Handle file = &files;
    EXPECT_EQ(files.Create(folder.File(L"no folder\\a.prx"), file),
              static_cast<std::uint32_t>(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(file, &files);
}

TEST(WindowsFileCalls, OpeningAFileThatIsNotThereFailsAndLeavesTheHandle) {
    const TemporaryFolder folder;
    toolkit::WindowsFileCalls files;
    toolkit::FileCalls::Handle file = &files;
    EXPECT_EQ(files.Open(folder.File(L"a.prx"), file), static_cast<std::uint32_t>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(file, &files);
}

TEST(WindowsFileCalls, OthersMayReadButNotWriteMeanwhile) {
    const TemporaryFolder folder;
    const std::wstring path = folder.File(L"a.prx");
    toolkit::WindowsFileCalls files;
    toolkit::FileCalls::Handle file = nullptr;
    ASSERT_EQ(files.Create(path, file), 0U);
    const auto openToo = [&path](DWORD access) {
        const toolkit::UniqueKernelHandle other(CreateFileW(path.c_str(), access,
                                                            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        return static_cast<bool>(other);
    };
    EXPECT_TRUE(openToo(GENERIC_READ));
    EXPECT_FALSE(openToo(GENERIC_WRITE));
    EXPECT_EQ(files.Close(file), 0U);

    ASSERT_EQ(files.Open(path, file), 0U);
    EXPECT_TRUE(openToo(GENERIC_READ));
    EXPECT_FALSE(openToo(GENERIC_WRITE));
    EXPECT_EQ(files.Close(file), 0U);
    EXPECT_TRUE(openToo(GENERIC_WRITE)) << "A closed file is free again";
}

TEST(WindowsFileCalls, TheSizeIsThatInBytes) {
    const TemporaryFolder folder;
    PutFile(folder.File(L"a.prx"), "12345");
    toolkit::WindowsFileCalls files;
    toolkit::FileCalls::Handle file = nullptr;
    ASSERT_EQ(files.Open(folder.File(L"a.prx"), file), 0U);
    std::uint64_t sizeBytes = 0;
    EXPECT_EQ(files.Size(file, sizeBytes), 0U);
    EXPECT_EQ(sizeBytes, 5U);
    EXPECT_EQ(files.Close(file), 0U);
}

TEST(WindowsFileCalls, ASizeBeyond32BitIsToldWhole) {
    const TemporaryFolder folder;
    const std::wstring path = folder.File(L"large");
    constexpr LONGLONG kSize = 0x1'4000'0003;
    {
        const toolkit::UniqueKernelHandle large(
            CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        ASSERT_TRUE(large);
        LARGE_INTEGER end{};
        end.QuadPart = kSize;
        ASSERT_NE(SetFilePointerEx(large.Get(), end, nullptr, FILE_BEGIN), FALSE);
        ASSERT_NE(SetEndOfFile(large.Get()), FALSE);
    }
    toolkit::WindowsFileCalls files;
    toolkit::FileCalls::Handle file = nullptr;
    ASSERT_EQ(files.Open(path, file), 0U);
    std::uint64_t sizeBytes = 0;
    EXPECT_EQ(files.Size(file, sizeBytes), 0U);
    EXPECT_EQ(sizeBytes, static_cast<std::uint64_t>(kSize));
    EXPECT_EQ(files.Close(file), 0U);
}

TEST(WindowsFileCalls, AnEmptyFileEndsAtOnce) {
    const TemporaryFolder folder;
    PutFile(folder.File(L"a.prx"), "");
    EXPECT_EQ(BytesOf(folder.File(L"a.prx")), "");
}

TEST(WindowsFileCalls, ARequestThatDoesNotFit32BitMovesWhatOneCallMay) {
    // Cut to 32 bits the request would be one for 3 bytes.
    constexpr std::size_t kRequest = 0x1'0000'0003;
    const TemporaryFolder folder;
    toolkit::WindowsFileCalls files(8);
    toolkit::FileCalls::Handle file = nullptr;
    ASSERT_EQ(files.Create(folder.File(L"a.prx"), file), 0U);
    std::size_t moved = 0;
    EXPECT_EQ(files.Write(file, "12345678", kRequest, moved), 0U);
    EXPECT_EQ(moved, 8U);
    EXPECT_EQ(files.Close(file), 0U);

    ASSERT_EQ(files.Open(folder.File(L"a.prx"), file), 0U);
    std::string bytes(8, '\0');
    EXPECT_EQ(files.Read(file, bytes.data(), kRequest, moved), 0U);
    EXPECT_EQ(moved, 8U);
    EXPECT_EQ(bytes, "12345678");
    EXPECT_EQ(files.Read(file, bytes.data(), kRequest, moved), 0U);
    EXPECT_EQ(moved, 0U);
    EXPECT_EQ(files.Close(file), 0U);
}

TEST(WindowsFileCalls, CallsTheWrongWayRoundFailWithTheSystemsCode) {
    const TemporaryFolder folder;
    toolkit::WindowsFileCalls files;
    toolkit::FileCalls::Handle file = nullptr;
    ASSERT_EQ(files.Create(folder.File(L"a.prx"), file), 0U);
    char byte = 0;
    std::size_t moved = kUntouchedCount;
    EXPECT_EQ(files.Read(file, &byte, 1, moved), static_cast<std::uint32_t>(ERROR_ACCESS_DENIED));
    EXPECT_EQ(moved, kUntouchedCount);
    EXPECT_EQ(files.Close(file), 0U);

    ASSERT_EQ(files.Open(folder.File(L"a.prx"), file), 0U);
    EXPECT_EQ(files.Write(file, &byte, 1, moved), static_cast<std::uint32_t>(ERROR_ACCESS_DENIED));
    EXPECT_EQ(moved, kUntouchedCount);
    EXPECT_EQ(files.Close(file), 0U);
}

TEST(WindowsFileCalls, AHandleThatIsNoFileFailsWithTheSystemsCode) {
    toolkit::WindowsFileCalls files;
    std::uint64_t sizeBytes = kUntouchedCount;
    EXPECT_EQ(files.Size(nullptr, sizeBytes), static_cast<std::uint32_t>(ERROR_INVALID_HANDLE));
    EXPECT_EQ(sizeBytes, kUntouchedCount);
    EXPECT_EQ(files.Close(nullptr), static_cast<std::uint32_t>(ERROR_INVALID_HANDLE));
}

TEST(WindowsFileCalls, FilesAndFoldersExist) {
    const TemporaryFolder folder;
    PutFile(folder.File(L"a.prx"), "");
    toolkit::WindowsFileCalls files;
    EXPECT_EQ(files.CheckExists(folder.File(L"a.prx")), 0U);
    EXPECT_EQ(files.CheckExists(folder.Path().wstring()), 0U);
}

TEST(WindowsFileCalls, AFolderOfMoreCharactersThanTheSystemTakesByItselfIsAsGoodAsAnother) {
    const TemporaryFolder folder;
    std::wstring path = folder.Path().wstring();
    while (path.size() <= MAX_PATH) {
        path += L"\\" + std::wstring(50, L'x');
        ASSERT_NE(CreateDirectoryW((L"\\\\?\\" + path).c_str(), nullptr), FALSE) << GetLastError();
    }
    toolkit::WindowsFileCalls files;
    EXPECT_EQ(files.CheckExists(path), 0U);
    EXPECT_EQ(files.CheckExists(path + L"\\"), 0U);
    EXPECT_EQ(files.CheckExists(path + L"y"), static_cast<std::uint32_t>(ERROR_FILE_NOT_FOUND));
    PutFile(path + L"/a.prx", "bytes");
    EXPECT_EQ(BytesOf(path + L"\\\\a.prx"), "bytes");
}

TEST(WindowsFileCalls, WhatDoesNotExistIsToldWithTheSystemsCode) {
    const TemporaryFolder folder;
    toolkit::WindowsFileCalls files;
    EXPECT_EQ(files.CheckExists(folder.File(L"a.prx")), static_cast<std::uint32_t>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(files.CheckExists(folder.File(L"no folder\\a.prx")),
              static_cast<std::uint32_t>(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(files.CheckExists(L""), static_cast<std::uint32_t>(ERROR_PATH_NOT_FOUND));
}

TEST(WindowsFileCalls, TheThreadsErrorModeStaysAsItWas) {
    const TemporaryFolder folder;
    DWORD former = 0;
    SetThreadErrorMode(SEM_NOGPFAULTERRORBOX, &former);
    toolkit::WindowsFileCalls files;
    toolkit::FileCalls::Handle file = nullptr;
    EXPECT_NE(files.Open(folder.File(L"a"), file), 0U);
    EXPECT_NE(files.CheckExists(folder.File(L"a")), 0U);
    EXPECT_EQ(GetThreadErrorMode(), static_cast<DWORD>(SEM_NOGPFAULTERRORBOX));
    SetThreadErrorMode(former, nullptr);
}

}  // namespace
}  // namespace corvane::test
