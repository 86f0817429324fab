#pragma once

#include <cstdint>
#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::test {

/// A value as it is stored.
struct StoredData {
    std::uint32_t type = 0;
    std::vector<std::uint8_t> bytes;

    bool operator==(const StoredData&) const = default;
};

/// The values of a tree by key path under HKEY_CURRENT_USER and by name. A key without values has an entry
/// too.
using RegistrySnapshot = std::map<std::wstring, std::map<std::wstring, StoredData>>;

/// The type of a 64-bit number, REG_QWORD, which no value of ours has.
inline constexpr std::uint32_t kTypeQuadNumber = 11;

// Stored data, spelled out by the tests themselves so that a fault of the product's own conversion shows.
[[nodiscard]] StoredData Bytes(std::uint32_t type, std::vector<std::uint8_t> bytes);
[[nodiscard]] StoredData Number(std::uint32_t number);
/// SZ: the characters and their NUL.
[[nodiscard]] StoredData Text(std::wstring_view text);
/// MULTI_SZ: each element with its NUL, and one more NUL.
[[nodiscard]] StoredData MultiText(const std::vector<std::wstring>& list);

/// The two bytes of each character, the low one first.
[[nodiscard]] std::vector<std::uint8_t> CharacterBytes(std::wstring_view text);

void PrintTo(const StoredData& data, std::ostream* out);

/// What differs between two trees, in words, one line each; empty when they are the same.
[[nodiscard]] std::string Differences(const RegistrySnapshot& expected, const RegistrySnapshot& found);

/// For failure messages: characters outside ASCII as \uXXXX.
[[nodiscard]] std::string Printable(std::wstring_view text);

}  // namespace corvane::test
