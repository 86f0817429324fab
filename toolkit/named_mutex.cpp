#include "toolkit/named_mutex.h"

namespace toolkit {

bool NamedMutex::Exists(const std::wstring& name) {
    const HANDLE existing = OpenMutexW(MUTEX_ALL_ACCESS, FALSE, name.c_str());
    if (existing == nullptr) {
        // One that this program may not touch is there all the same, such as that of a copy with more rights.
        return GetLastError() == ERROR_ACCESS_DENIED;
    }
    CloseHandle(existing);
    return true;
}

NamedMutex::NamedMutex(const std::wstring& name) : handle_(CreateMutexW(nullptr, TRUE, name.c_str())) {
    if (handle_ == nullptr) {
        failureCode_ = GetLastError();
    }
}

NamedMutex::~NamedMutex() {
    if (handle_ != nullptr) {
        // Fails harmlessly where another copy, started at the same instant, owns it.
        ReleaseMutex(handle_);
        CloseHandle(handle_);
    }
}

}  // namespace toolkit
