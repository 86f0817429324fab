#pragma once

#include <windows.h>

#include <string>

namespace toolkit {

/// A named mutex of the system that is owned by the calling thread for as long as this object lives.
class NamedMutex {
  public:
    /// Tells whether a mutex of that name exists already (OpenMutexW with full access), be
    /// it one that may not be opened.
    [[nodiscard]] static bool Exists(const std::wstring& name);

    /// Creates the mutex, owned from the start (CreateMutexW). Where that fails, IsHeld is false and
    /// FailureCode the system's code.
    explicit NamedMutex(const std::wstring& name);
    NamedMutex(const NamedMutex&) = delete;
    NamedMutex& operator=(const NamedMutex&) = delete;
    NamedMutex(NamedMutex&&) = delete;
    NamedMutex& operator=(NamedMutex&&) = delete;
    ~NamedMutex();

    [[nodiscard]] bool IsHeld() const { return handle_ != nullptr; }
    [[nodiscard]] DWORD FailureCode() const { return failureCode_; }

  private:
    HANDLE handle_;
    DWORD failureCode_ = 0;
};

}  // namespace toolkit
