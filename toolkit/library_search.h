#pragma once

#include <windows.h>

#include <array>

namespace toolkit {

/// The folder of the system's libraries (GetSystemDirectoryW), ended by a NUL.
[[nodiscard]] inline std::array<wchar_t, MAX_PATH> SystemFolder() {
    std::array<wchar_t, MAX_PATH> folder{};
    GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    return folder;
}

/// Takes the current folder, which may be anyone's, out of the folders in which the process finds a library
/// by its name: for the program itself and for everything that it loads. To be called before anything else.
inline void LeaveCurrentFolderOutOfLibrarySearch() {
    // Any folder that is named takes the place of the current one. The system's is searched anyway; an empty
    // name, which Windows has for this, is none for Wine (SetDllDirectoryW).
    SetDllDirectoryW(SystemFolder().data());
}

}  // namespace toolkit
