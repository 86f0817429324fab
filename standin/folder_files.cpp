#include "standin/folder_files.h"

#include <windows.h>

#include <algorithm>
#include <memory>
#include <type_traits>

namespace corvane::standin {
namespace {

struct FindCloser {
    void operator()(HANDLE handle) const { FindClose(handle); }
};
struct FileCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using FindHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, FindCloser>;
using FileHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, FileCloser>;

bool EndsIn(std::wstring_view name, std::wstring_view extension) {
    if (name.size() < extension.size()) {
        return false;
    }
    const std::wstring_view end = name.substr(name.size() - extension.size());
    return CompareStringOrdinal(end.data(), static_cast<int>(end.size()), extension.data(),
                                static_cast<int>(extension.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace

std::optional<std::vector<std::wstring>> FilesOfFolder(const std::wstring& folder,
                                                       const std::vector<std::wstring_view>& extensions) {
    WIN32_FIND_DATAW data = {};
    const HANDLE first = FindFirstFileW((folder + L"*").c_str(), &data);
    if (first == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    const FindHandle search(first);
    std::vector<std::wstring> files;
    do {
        const std::wstring_view name = data.cFileName;
        const bool isWanted =
            std::any_of(extensions.begin(), extensions.end(),
                        [&](std::wstring_view extension) { return EndsIn(name, extension); });
        if (isWanted && (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            files.emplace_back(name);
        }
    } while (FindNextFileW(search.get(), &data) != FALSE);
    std::sort(files.begin(), files.end());
    return files;
}

std::optional<std::string> ReadWholeFile(const std::wstring& path) {
    constexpr LONGLONG kLargestSizeBytes = 64LL * 1024 * 1024;
    const HANDLE opened = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    const FileHandle file(opened);
    LARGE_INTEGER size = {};
    if (GetFileSizeEx(file.get(), &size) == FALSE || size.QuadPart > kLargestSizeBytes) {
        return std::nullopt;
    }
    std::string content(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (ReadFile(file.get(), content.data(), static_cast<DWORD>(content.size()), &read, nullptr) == FALSE) {
        return std::nullopt;
    }
    content.resize(read);
    return content;
}

}  // namespace corvane::standin
