#pragma once

#include <filesystem>
#include <string>

namespace corvane::test {

/// A new, empty folder that goes with everything in it at the end of its owner.
class TemporaryFolder {
  public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    TemporaryFolder(TemporaryFolder&&) = delete;
    TemporaryFolder& operator=(TemporaryFolder&&) = delete;
    ~TemporaryFolder();

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
    /// The path of a file in it, which need not exist.
    [[nodiscard]] std::wstring File(const wchar_t* name) const { return (path_ / name).wstring(); }

  private:
    std::filesystem::path path_;
};

}  // namespace corvane::test
