#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace corvane::toolkit {

/// The system's file calls as this program makes them. Every call returns a system error code, 0 for
/// success. One implementation calls Windows, the tests have one that can be told to fail.
class FileCalls {
  public:
    /// An open file. Whoever opened it closes it, with Close, exactly once.
    using Handle = void*;

    virtual ~FileCalls() = default;

    /// Creates the file for writing, replacing an existing one; others may read it meanwhile.
    /// `file` is set on success only.
    [[nodiscard]] virtual std::uint32_t Create(const std::wstring& path, Handle& file) = 0;

    /// Opens an existing file for reading; others may read it meanwhile. `file` is set on success only.
    [[nodiscard]] virtual std::uint32_t Open(const std::wstring& path, Handle& file) = 0;

    /// Gives the file's size in bytes.
    [[nodiscard]] virtual std::uint32_t Size(Handle file, std::uint64_t& sizeBytes) = 0;

    /// Reads up to `sizeBytes` bytes; `readBytes` tells how many came (0 at the end of the file).
    [[nodiscard]] virtual std::uint32_t Read(Handle file, char* data, std::size_t sizeBytes,
                                             std::size_t& readBytes) = 0;

    /// Writes up to `sizeBytes` bytes; `writtenBytes` tells how many went.
    [[nodiscard]] virtual std::uint32_t Write(Handle file, const char* data, std::size_t sizeBytes,
                                              std::size_t& writtenBytes) = 0;

    /// Closes the file. It counts as closed whatever the result.
    [[nodiscard]] virtual std::uint32_t Close(Handle file) = 0;

    /// Returns 0 when the path names an existing file or folder, else the system's code why not
    /// (GetFileAttributesW).
    [[nodiscard]] virtual std::uint32_t CheckExists(const std::wstring& path) = 0;

  protected:
    FileCalls() = default;
    FileCalls(const FileCalls&) = default;
    FileCalls& operator=(const FileCalls&) = default;
    FileCalls(FileCalls&&) = default;
    FileCalls& operator=(FileCalls&&) = default;
};

/// The file calls of Windows (CreateFileW, GetFileSizeEx, ReadFile, WriteFile, CloseHandle,
/// GetFileAttributesW). No call shows a box about a drive without a disk, and a path may be as
/// long as the file system takes it.
class WindowsFileCalls : public FileCalls {
  public:
    /// The most bytes that one call of the system moves. ReadFile and WriteFile count in 32 bits and need
    /// memory of their own for large blocks, so a longer request moves this much.
    static constexpr std::uint32_t kMostBytesAtOnce = 0x4000'0000;

    explicit WindowsFileCalls(std::uint32_t mostBytesAtOnce = kMostBytesAtOnce)
        : mostBytesAtOnce_(mostBytesAtOnce) {}

    [[nodiscard]] std::uint32_t Create(const std::wstring& path, Handle& file) override;
    [[nodiscard]] std::uint32_t Open(const std::wstring& path, Handle& file) override;
    [[nodiscard]] std::uint32_t Size(Handle file, std::uint64_t& sizeBytes) override;
    [[nodiscard]] std::uint32_t Read(Handle file, char* data, std::size_t sizeBytes,
                                     std::size_t& readBytes) override;
    [[nodiscard]] std::uint32_t Write(Handle file, const char* data, std::size_t sizeBytes,
                                      std::size_t& writtenBytes) override;
    [[nodiscard]] std::uint32_t Close(Handle file) override;
    [[nodiscard]] std::uint32_t CheckExists(const std::wstring& path) override;

  private:
    [[nodiscard]] std::uint32_t AtOnce(std::size_t sizeBytes) const;

    std::uint32_t mostBytesAtOnce_;
};

}  // namespace corvane::toolkit
