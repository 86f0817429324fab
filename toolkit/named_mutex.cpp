#include "toolkit/named_mutex.h"

namespace toolkit {

bool NamedMutex::Exists(const std::wstring& name) {
    const HANDLE existing = OpenMutexW(MUTEX_ALL_ACCESS, FALSE, name.c_str());
    if (existing == nullptr) {
        return false;
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
