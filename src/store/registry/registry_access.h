#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "reporting/error_reporter.h"
#include "store/records.h"
#include "store/registry/registry_calls.h"
#include "store/registry/registry_key.h"
#include "store/registry/registry_text.h"
#include "toolkit/system/window_handle.h"

namespace corvane::store {

/// The access mask of every open and create: query, set, create subkey, enumerate, notify, standard read.
inline constexpr std::uint32_t kReadWriteAccess = 0x2001F;

/// What ReadInt reports, also for whoever finds that the number cannot be right.
inline constexpr char kReadIntOperation[] = "Reading integer value '%s' from register";

/// The one way to the stored configuration: one current key under HKEY_CURRENT_USER, and typed reads and
/// writes of the values in it.
///
/// The contract:
/// - At most one key is current. A successful OpenKey or CreateKey closes it and makes the new key current; a
///   failed one leaves it as it was. Close and the destructor close it.
/// - The operations on keys return the system's code, 0 for success, and report nothing: the caller knows the
///   full path (see registry_reports.h).
/// - The operations on values work in the current key and report their own failures through ReportError
///   with the value's name, to `owner`, with `flags` (those on lists always with 3). They return true on
///   success, false after a report.
/// - A reader either stores the value, or stores the default where the value is missing or of a wrong type or
///   shape, or leaves the field untouched and reports. A list has no default: it stays as it was where the
///   value is missing, and data that is no list is reported.
/// - Only the user interface thread comes here, and the references outlive the object.
class RegistryAccess {
  public:
    RegistryAccess(RegistryCalls& calls, reporting::ErrorReporter& reporter);
    ~RegistryAccess() = default;
    RegistryAccess(const RegistryAccess&) = delete;
    RegistryAccess& operator=(const RegistryAccess&) = delete;
    RegistryAccess(RegistryAccess&&) = delete;
    RegistryAccess& operator=(RegistryAccess&&) = delete;

    /// Lets the calls that open, create and delete keys run in `transaction`, which stays the caller's;
    /// null ends that. The configuration is loaded and saved without one.
    void SetTransaction(RegistryCalls::Transaction transaction) { transaction_ = transaction; }

    /// Opens `path` under HKEY_CURRENT_USER (RegOpenKeyExW). `access` may carry view bits (0x100 for the
    /// 64-bit view, 0x200 for the 32-bit one); RecurseDeleteKey then stays in that view.
    [[nodiscard]] std::uint32_t OpenKey(const std::wstring& path, std::uint32_t access = kReadWriteAccess);

    /// Creates `path` under HKEY_CURRENT_USER, or opens it where it exists; not volatile (RegCreateKeyExW).
    [[nodiscard]] std::uint32_t CreateKey(const std::wstring& path);

    /// Deletes the subkey `name` of the current key with everything under it. 2 where there is none. On a
    /// failure it stops at once; what is deleted by then stays deleted (RegEnumKeyExW, RegDeleteKeyExW).
    [[nodiscard]] std::uint32_t RecurseDeleteKey(const std::wstring& name);

    /// Appends the names of the current key's subkeys to `names`, in the order in which the system gives
    /// them (RegEnumKeyExW, names of up to 259 characters).
    [[nodiscard]] std::uint32_t EnumerateSubkeys(TextList& names);

    /// Closes the current key; none is open afterwards, whatever the code (RegCloseKey).
    [[nodiscard]] std::uint32_t Close() { return current_.Close(); }

    /// Reads a DWORD. A value of more than four bytes is a failure, of the code 234.
    [[nodiscard]] bool ReadInt(std::wstring_view name, std::int32_t& value, toolkit::WindowHandle owner,
                               std::uint32_t flags, std::int32_t defaultValue);

    /// Reads SZ or EXPAND_SZ, without expanding it. More than 519 characters are a failure, of the code 234.
    [[nodiscard]] bool ReadString(std::wstring_view name, std::wstring& value, toolkit::WindowHandle owner,
                                  std::uint32_t flags, std::wstring_view defaultValue);

    /// Reads MULTI_SZ into `list`, which is emptied first, also where the value is missing. A value that
    /// outgrows its buffer between the question for its size and the reading is a failure, of the code 234.
    [[nodiscard]] bool ReadStringList(std::wstring_view name, TextList& list, toolkit::WindowHandle owner);

    /// Reads MULTI_SZ and appends each element's decimal number to `list`.
    [[nodiscard]] bool ReadIntList(std::wstring_view name, NumberList& list, toolkit::WindowHandle owner);

    /// Reads MULTI_SZ and appends each element to `list`.
    [[nodiscard]] bool ReadStringArray(std::wstring_view name, TextList& list, toolkit::WindowHandle owner);

    /// Writes a DWORD.
    [[nodiscard]] bool WriteInt(std::wstring_view name, std::int32_t value, toolkit::WindowHandle owner,
                                std::uint32_t flags);

    /// Writes SZ.
    [[nodiscard]] bool WriteString(std::wstring_view name, std::wstring_view value,
                                   toolkit::WindowHandle owner, std::uint32_t flags);

    /// Writes MULTI_SZ, each number in decimal.
    [[nodiscard]] bool WriteIntList(std::wstring_view name, const NumberList& list,
                                    toolkit::WindowHandle owner);

    /// Writes MULTI_SZ, an empty element as "0", because an empty one would end the list.
    [[nodiscard]] bool WriteStringList(std::wstring_view name, const TextList& list,
                                       toolkit::WindowHandle owner);

    /// Writes MULTI_SZ with the elements as they are.
    [[nodiscard]] bool WriteStringArray(std::wstring_view name, const TextList& list,
                                        toolkit::WindowHandle owner);

  private:
    /// Room for 519 characters and their NUL; a longer text cannot be read back.
    static constexpr std::uint32_t kTextBufferBytes = 1040;

    [[nodiscard]] std::uint32_t RecurseDelete(RegistryCalls::Key parent, const std::wstring& name);
    [[nodiscard]] bool WriteList(std::wstring_view name, const TextList& list, toolkit::WindowHandle owner);
    [[nodiscard]] std::uint32_t Write(std::wstring_view name, std::uint32_t type, const void* data,
                                      std::size_t sizeBytes);
    bool Report(toolkit::WindowHandle owner, std::uint32_t flags, std::uint32_t code, const char* operation,
                std::wstring_view name);
    const std::wstring& NameText(std::wstring_view name);

    RegistryCalls& calls_;
    reporting::ErrorReporter& reporter_;
    RegistryKey current_;
    std::uint32_t viewBits_ = 0;
    RegistryCalls::Transaction transaction_ = nullptr;
    std::wstring name_;  ///< The name of the value at hand, kept so that its memory serves the next one.
    std::array<std::byte, kTextBufferBytes> textBuffer_{};
};

/// What was attempted with a key, in the program's words.
inline constexpr char kOpenKeyOperation[] = "Create (open) register key %s";
inline constexpr char kSearchKeyOperation[] = "Search register key %s subkeys";
inline constexpr char kDeleteKeyOperation[] = "Delete register key %s";

/// Reports that `operation`, one of the above, failed with `code` on the key `path` under
/// HKEY_CURRENT_USER. Does nothing for code 0. Returns whether the operation succeeded.
bool ReportKeyResult(reporting::ErrorReporter& reporter, toolkit::WindowHandle owner, std::uint32_t code,
                     const char* operation, std::wstring_view path);

}  // namespace corvane::store
