#include "tests/toolkit/seams/own_folder.h"

#include <windows.h>

#include <string>

namespace corvane::test {

std::filesystem::path OwnFolder() {
    constexpr DWORD kLongestPathChars = 0x8000;
    std::wstring path(kLongestPathChars, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), kLongestPathChars));
    return std::filesystem::path(path).parent_path();
}

}  // namespace corvane::test
