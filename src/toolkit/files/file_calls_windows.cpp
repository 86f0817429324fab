#include "toolkit/files/file_calls.h"

#include <windows.h>

#include <algorithm>

#include "toolkit/files/paths.h"
#include "toolkit/files/quiet_drives.h"

namespace corvane::toolkit {

namespace {

std::uint32_t OpenFile(const std::wstring& path, DWORD access, DWORD disposition, FileCalls::Handle& file) {
    const QuietDrives quiet;
    const HANDLE opened = CreateFileW(LongPathForm(path).c_str(), access, FILE_SHARE_READ, nullptr,
                                      disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
        return GetLastError();
    }
    file = opened;
    return ERROR_SUCCESS;
}

}  // namespace

std::uint32_t WindowsFileCalls::Create(const std::wstring& path, Handle& file) {
    return OpenFile(path, GENERIC_WRITE, CREATE_ALWAYS, file);
}

std::uint32_t WindowsFileCalls::Open(const std::wstring& path, Handle& file) {
    return OpenFile(path, GENERIC_READ, OPEN_EXISTING, file);
}

std::uint32_t WindowsFileCalls::Size(Handle file, std::uint64_t& sizeBytes) {
    LARGE_INTEGER size{};
    if (GetFileSizeEx(file, &size) == FALSE) {
        return GetLastError();
    }
    sizeBytes = static_cast<std::uint64_t>(size.QuadPart);
    return ERROR_SUCCESS;
}

std::uint32_t WindowsFileCalls::Read(Handle file, char* data, std::size_t sizeBytes, std::size_t& readBytes) {
    DWORD moved = 0;
    if (ReadFile(file, data, AtOnce(sizeBytes), &moved, nullptr) == FALSE) {
        return GetLastError();
    }
    readBytes = moved;
    return ERROR_SUCCESS;
}

std::uint32_t WindowsFileCalls::Write(Handle file, const char* data, std::size_t sizeBytes,
                                      std::size_t& writtenBytes) {
    DWORD moved = 0;
    if (WriteFile(file, data, AtOnce(sizeBytes), &moved, nullptr) == FALSE) {
        return GetLastError();
    }
    writtenBytes = moved;
    return ERROR_SUCCESS;
}

std::uint32_t WindowsFileCalls::Close(Handle file) {
    return CloseHandle(file) == FALSE ? GetLastError() : ERROR_SUCCESS;
}

std::uint32_t WindowsFileCalls::CheckExists(const std::wstring& path) {
    const QuietDrives quiet;
    return GetFileAttributesW(LongPathForm(path).c_str()) == INVALID_FILE_ATTRIBUTES ? GetLastError()
                                                                                     : ERROR_SUCCESS;
}

std::uint32_t WindowsFileCalls::AtOnce(std::size_t sizeBytes) const {
    return static_cast<std::uint32_t>(std::min<std::size_t>(sizeBytes, mostBytesAtOnce_));
}

}  // namespace corvane::toolkit
