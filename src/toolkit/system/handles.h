#pragma once

#include <windows.h>

#include <utility>

namespace corvane::toolkit {

/// Owns one handle of the system and gives it back when it goes. `Closer` says what the handle type is, how
/// it is given back, and which values mean that there is none:
///
///     struct Closer {
///         using Handle = HMODULE;
///         static bool IsOwned(Handle handle);
///         static void Close(Handle handle);
///     };
template <typename Closer>
class UniqueHandle {
  public:
    using Handle = typename Closer::Handle;

    UniqueHandle() = default;
    /// Takes over `handle`, which may be the value that means none.
    explicit UniqueHandle(Handle handle) : handle_(handle) {}
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;
    UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.Release()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        Reset(other.Release());
        return *this;
    }
    ~UniqueHandle() { Reset(); }

    [[nodiscard]] Handle Get() const { return handle_; }
    explicit operator bool() const { return Closer::IsOwned(handle_); }

    /// Gives the handle back to the system and takes over another one, or none. The same handle again is
    /// kept.
    void Reset(Handle handle = {}) {
        const Handle old = std::exchange(handle_, handle);
        if (old != handle && Closer::IsOwned(old)) {
            Closer::Close(old);
        }
    }

    /// Hands the handle out; whoever takes it closes it.
    [[nodiscard]] Handle Release() { return std::exchange(handle_, Handle{}); }

    /// Gives back what is owned, and the place where a call of the system writes a new handle.
    [[nodiscard]] Handle* Receive() {
        Reset();
        return &handle_;
    }

  private:
    Handle handle_{};
};

struct KernelHandleCloser {
    using Handle = HANDLE;
    static bool IsOwned(Handle handle) { return handle != nullptr && handle != INVALID_HANDLE_VALUE; }
    static void Close(Handle handle) { CloseHandle(handle); }
};
/// A mutex, a file, a process and so on (CloseHandle).
using UniqueKernelHandle = UniqueHandle<KernelHandleCloser>;

struct ModuleCloser {
    using Handle = HMODULE;
    static bool IsOwned(Handle handle) { return handle != nullptr; }
    static void Close(Handle handle) { FreeLibrary(handle); }
};
/// A library that was loaded, not one that was only looked up (FreeLibrary).
using UniqueModule = UniqueHandle<ModuleCloser>;

template <typename Element>
struct LocalMemoryCloser {
    using Handle = Element*;
    static bool IsOwned(Handle handle) { return handle != nullptr; }
    static void Close(Handle handle) { LocalFree(handle); }
};
/// Memory that a call of the system allocated (LocalFree).
template <typename Element>
using UniqueLocalMemory = UniqueHandle<LocalMemoryCloser<Element>>;

}  // namespace corvane::toolkit
