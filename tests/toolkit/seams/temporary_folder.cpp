#include "tests/toolkit/seams/temporary_folder.h"

#include <windows.h>

#include <stdexcept>
#include <system_error>

namespace corvane::test {

TemporaryFolder::TemporaryFolder() {
    wchar_t parent[MAX_PATH + 1] = {};
    wchar_t name[MAX_PATH + 1] = {};
    // The function makes an empty file, whose name is then free for nobody else.
    if (GetTempPathW(MAX_PATH, parent) == 0 || GetTempFileNameW(parent, L"crv", 0, name) == 0) {
        throw std::runtime_error("No temporary folder");
    }
    path_ = name;
    std::filesystem::remove(path_);
    std::filesystem::create_directory(path_);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace corvane::test
