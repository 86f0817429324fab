#pragma once

#include "toolkit/file_calls.h"

namespace toolkit {

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

}  // namespace toolkit
