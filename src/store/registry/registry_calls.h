#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvane::store {

/// The system's registry calls as this program makes them, on keys under HKEY_CURRENT_USER. Every call
/// returns the system's error code, 0 for success. One implementation calls Windows, the tests have one in
/// memory that can be told to fail; nothing else of the program knows a key handle of the system.
class RegistryCalls {
  public:
    /// An open key. Whoever opened it closes it with Close, exactly once. Null stands for the root,
    /// HKEY_CURRENT_USER, which is never closed.
    using Key = void*;
    /// A transaction of the system that calls may run in; null for none.
    using Transaction = void*;

    virtual ~RegistryCalls() = default;

    /// Opens `path` under `parent` with the access mask `access`. `key` is set on success only
    /// (RegOpenKeyExW, with a transaction RegOpenKeyTransactedW; 1 where the system lacks that one).
    [[nodiscard]] virtual std::uint32_t Open(Key parent, const std::wstring& path, std::uint32_t access,
                                             Transaction transaction, Key& key) = 0;

    /// Creates or opens `path`, not volatile (RegCreateKeyExW or RegCreateKeyTransactedW).
    [[nodiscard]] virtual std::uint32_t Create(Key parent, const std::wstring& path, std::uint32_t access,
                                               Transaction transaction, Key& key) = 0;

    /// Deletes a key without subkeys; `viewBits` are the 64/32-bit view bits of the access mask
    /// (RegDeleteKeyExW or RegDeleteKeyTransactedW).
    [[nodiscard]] virtual std::uint32_t Delete(Key parent, const std::wstring& name, std::uint32_t viewBits,
                                               Transaction transaction) = 0;

    /// Closes a key. It counts as closed whatever the result.
    [[nodiscard]] virtual std::uint32_t Close(Key key) = 0;

    /// Gives the name of subkey `index`; 259 at the end. A name that is not shorter than `capacityChars`
    /// characters gives 234 (RegEnumKeyExW).
    [[nodiscard]] virtual std::uint32_t EnumerateSubkey(Key key, std::uint32_t index,
                                                        std::uint32_t capacityChars, std::wstring& name) = 0;

    /// Reads a value of at most `capacityBytes` bytes into `data`. On success `type` and `sizeBytes` are
    /// the value's. With `data` null only type and size are asked for. A longer value gives 234, a missing
    /// one 2 (RegQueryValueExW).
    [[nodiscard]] virtual std::uint32_t Query(Key key, const std::wstring& name, void* data,
                                              std::uint32_t capacityBytes, std::uint32_t& type,
                                              std::uint32_t& sizeBytes) = 0;

    /// Writes a value (RegSetValueExW).
    [[nodiscard]] virtual std::uint32_t Set(Key key, const std::wstring& name, std::uint32_t type,
                                            const void* data, std::uint32_t sizeBytes) = 0;

  protected:
    RegistryCalls() = default;
    RegistryCalls(const RegistryCalls&) = default;
    RegistryCalls& operator=(const RegistryCalls&) = default;
    RegistryCalls(RegistryCalls&&) = default;
    RegistryCalls& operator=(RegistryCalls&&) = default;
};

/// The registry's value types that the program meets.
inline constexpr std::uint32_t kTypeText = 1;            ///< SZ
inline constexpr std::uint32_t kTypeExpandableText = 2;  ///< EXPAND_SZ
inline constexpr std::uint32_t kTypeBinary = 3;
inline constexpr std::uint32_t kTypeNumber = 4;    ///< DWORD
inline constexpr std::uint32_t kTypeTextList = 7;  ///< MULTI_SZ

/// The system codes that are told apart.
inline constexpr std::uint32_t kCodeNotFound = 2;
inline constexpr std::uint32_t kCodeInvalidData = 13;
inline constexpr std::uint32_t kCodeMoreData = 234;
inline constexpr std::uint32_t kCodeNoMoreItems = 259;

/// The registry of the system.
class WindowsRegistryCalls final : public RegistryCalls {
  public:
    /// The calls that not every system has (the transacted ones, and the delete that knows views) are looked
    /// up at run time in the loaded module `moduleName`.
    explicit WindowsRegistryCalls(std::wstring moduleName = L"Advapi32.dll");

    [[nodiscard]] std::uint32_t Open(Key parent, const std::wstring& path, std::uint32_t access,
                                     Transaction transaction, Key& key) override;
    [[nodiscard]] std::uint32_t Create(Key parent, const std::wstring& path, std::uint32_t access,
                                       Transaction transaction, Key& key) override;
    [[nodiscard]] std::uint32_t Delete(Key parent, const std::wstring& name, std::uint32_t viewBits,
                                       Transaction transaction) override;
    [[nodiscard]] std::uint32_t Close(Key key) override;
    [[nodiscard]] std::uint32_t EnumerateSubkey(Key key, std::uint32_t index, std::uint32_t capacityChars,
                                                std::wstring& name) override;
    [[nodiscard]] std::uint32_t Query(Key key, const std::wstring& name, void* data,
                                      std::uint32_t capacityBytes, std::uint32_t& type,
                                      std::uint32_t& sizeBytes) override;
    [[nodiscard]] std::uint32_t Set(Key key, const std::wstring& name, std::uint32_t type, const void* data,
                                    std::uint32_t sizeBytes) override;

  private:
    std::wstring moduleName_;
};

}  // namespace corvane::store
