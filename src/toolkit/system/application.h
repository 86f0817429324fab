#pragma once

#include <windows.h>

#include <exception>
#include <string>
#include <utility>

namespace corvane::toolkit {

/// Base class of a program: start, end, and the last resort for what nobody else could handle.
class Application {
  public:
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    Application(Application&&) = delete;
    Application& operator=(Application&&) = delete;
    virtual ~Application() = default;

    /// Runs the program from InitInstance to ExitInstance and returns its exit code. A program whose main
    /// window is a modal dialog has done everything by the time InitInstance returns. An exception that gets
    /// here ends the program, but never without a word: the user is told in one message box.
    int Run();

    /// The key under which the toolkit would keep settings of its own.
    void SetRegistryKey(std::wstring key) { registryKey_ = std::move(key); }
    [[nodiscard]] const std::wstring& RegistryKey() const { return registryKey_; }

  protected:
    Application() = default;

    /// Does the program's work, or its beginning. False when it could not start.
    virtual bool InitInstance();
    /// Called last; returns the exit code.
    virtual int ExitInstance();
    /// Title of the message box of the last resort.
    [[nodiscard]] virtual std::wstring Title() const = 0;

  private:
    void TellLastWord(const std::string& reason) const;

    std::wstring registryKey_;
    int exitCode_ = 0;
};

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

}  // namespace corvane::toolkit
