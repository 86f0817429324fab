#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

namespace corvane::test {

/// A block of memory in the process that a window belongs to, for the control messages that take pointers:
/// the system carries only the oldest messages from one process to the other.
class RemoteBlock {
  public:
    /// Opens the window's process and reserves the block there, zeroed. Throws Failure.
    RemoteBlock(HWND window, std::size_t sizeBytes);
    ~RemoteBlock();
    RemoteBlock(const RemoteBlock&) = delete;
    RemoteBlock& operator=(const RemoteBlock&) = delete;

    /// The address in the other process, `offset` bytes into the block.
    [[nodiscard]] void* Address(std::size_t offset = 0) const;
    [[nodiscard]] LPARAM Parameter(std::size_t offset = 0) const;

    void Write(const void* data, std::size_t sizeBytes, std::size_t offset = 0);
    void Read(void* data, std::size_t sizeBytes, std::size_t offset = 0) const;

    template <typename Record>
    void Put(const Record& record, std::size_t offset = 0) {
        Write(&record, sizeof record, offset);
    }
    template <typename Record>
    [[nodiscard]] Record Get(std::size_t offset = 0) const {
        Record record{};
        Read(&record, sizeof record, offset);
        return record;
    }
    /// The text at `offset` up to its NUL, `roomChars` characters at most.
    [[nodiscard]] std::wstring Text(std::size_t offset, std::size_t roomChars) const;

  private:
    HANDLE process_ = nullptr;
    void* address_ = nullptr;
};

}  // namespace corvane::test
