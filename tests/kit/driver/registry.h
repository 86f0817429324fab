#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace corvane::test {

using Texts = std::vector<std::wstring>;
/// The data of a value: a DWORD, an SZ, or a MULTI_SZ.
using RegistryData = std::variant<std::uint32_t, std::wstring, Texts>;
/// The values of a key, by name.
using RegistryValues = std::map<std::wstring, RegistryData>;

/// The maker's part of the current user's registry, empty at the start of a test and empty again after it. A
/// configuration that a developer keeps there is set aside meanwhile and comes back.
class RegistryOfTest {
  public:
    RegistryOfTest();
    ~RegistryOfTest();
    RegistryOfTest(const RegistryOfTest&) = delete;
    RegistryOfTest& operator=(const RegistryOfTest&) = delete;
};

/// The maker's key under HKEY_CURRENT_USER; all paths below are relative to it.
inline constexpr wchar_t kMakerKey[] = L"SOFTWARE\\HOLVAN";

void CreateRegistryKey(const std::wstring& path);
void DeleteRegistryKey(const std::wstring& path);
/// Creates the key where it is missing.
void WriteRegistryValue(const std::wstring& path, const std::wstring& name, const RegistryData& data);
[[nodiscard]] bool RegistryKeyExists(const std::wstring& path);
/// The value's data; throws Failure where it is missing or of another type than the three.
[[nodiscard]] RegistryData ReadRegistryValue(const std::wstring& path, const std::wstring& name);
[[nodiscard]] RegistryValues ReadRegistryValues(const std::wstring& path);
/// The names of the subkeys, in enumeration order.
[[nodiscard]] Texts RegistrySubkeys(const std::wstring& path);
/// Everything below a key: the values of every key by its path below `path` (the key itself: "").
[[nodiscard]] std::map<std::wstring, RegistryValues> ReadRegistryTree(const std::wstring& path);

}  // namespace corvane::test
