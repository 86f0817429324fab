#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "toolkit/files/file_calls.h"

namespace corvane::test {

/// The kinds of file calls.
enum class FileOperation { kCreate, kOpen, kSize, kRead, kWrite, kClose, kCheckExists };

/// One call that was made, and what it answered.
struct FileCall {
    FileOperation operation;
    std::wstring path;
    std::uint32_t code;

    bool operator==(const FileCall&) const = default;
};

/// Files in memory, for tests of everything that reads or writes files. Any call can be told to fail, reads
/// and writes can be told to come in pieces; each call is kept in a log, each open handle is counted.
class MemoryFiles : public toolkit::FileCalls {
  public:
    MemoryFiles() = default;

    std::uint32_t Create(const std::wstring& path, Handle& file) override;
    std::uint32_t Open(const std::wstring& path, Handle& file) override;
    std::uint32_t Size(Handle file, std::uint64_t& sizeBytes) override;
    std::uint32_t Read(Handle file, char* data, std::size_t sizeBytes, std::size_t& readBytes) override;
    std::uint32_t Write(Handle file, const char* data, std::size_t sizeBytes,
                        std::size_t& writtenBytes) override;
    std::uint32_t Close(Handle file) override;
    std::uint32_t CheckExists(const std::wstring& path) override;

    /// The files by path; a test puts in what is to be read and looks at what was written.
    std::map<std::wstring, std::string> contents;

    /// Makes the call of this index (from 0, all kinds counted together) answer `code` and do nothing else;
    /// a failed close closes nonetheless. May be said of several calls.
    void FailCall(std::size_t index, std::uint32_t code) { failures_[index] = code; }

    /// No single read gives more than this many bytes, no single write takes more. A write limit of 0 makes
    /// writes succeed without taking anything.
    void LimitReads(std::size_t sizeBytes) { readLimitBytes_ = sizeBytes; }
    void LimitWrites(std::size_t sizeBytes) { writeLimitBytes_ = sizeBytes; }

    /// Makes Size answer this number whatever the file holds: a file that shrinks or grows before it is read,
    /// or one that is larger than any memory.
    void PretendSize(std::uint64_t sizeBytes) {
        pretendedSizeBytes_ = sizeBytes;
        pretendsSize_ = true;
    }

    [[nodiscard]] const std::vector<FileCall>& Calls() const { return calls_; }
    [[nodiscard]] std::size_t OpenHandles() const { return openFiles_.size(); }
    /// How many calls were made with a handle that was not open (any more), or was opened for the other
    /// direction.
    [[nodiscard]] std::size_t Misuses() const { return misuses_; }

  private:
    struct OpenedFile {
        std::wstring path;
        bool isForWriting = false;
        std::size_t position = 0;
    };

    // Logs the call; its code is 0 unless it was told to fail.
    std::uint32_t Enter(FileOperation operation, const std::wstring& path);
    std::uint32_t Fail(std::uint32_t code);
    Handle Remember(const std::wstring& path, bool isForWriting);
    OpenedFile* Find(Handle file);
    // The open file behind the handle if the call may go on, else null and the call's code.
    OpenedFile* EnterWith(Handle file, FileOperation operation, std::uint32_t& code);

    std::map<Handle, OpenedFile> openFiles_;
    std::map<std::size_t, std::uint32_t> failures_;
    std::vector<FileCall> calls_;
    std::size_t readLimitBytes_ = SIZE_MAX;
    std::size_t writeLimitBytes_ = SIZE_MAX;
    std::uint64_t pretendedSizeBytes_ = 0;
    bool pretendsSize_ = false;
    std::uintptr_t lastHandle_ = 0;
    std::size_t misuses_ = 0;
};

}  // namespace corvane::test
