#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "store/records.h"

// The stored form of the configuration, told once, for loading, saving and their tests.
//
//   SOFTWARE\HOLVAN\tarn\Profiles\<any>                     ProviderProfileLayout   the provider's, only read
//   SOFTWARE\HOLVAN\tarntray                                WindowLayout, SettingsLayout
//   SOFTWARE\HOLVAN\tarntray\<profile>                      ProfileLayout
//   SOFTWARE\HOLVAN\tarntray\<profile>\rules\Rule <n>       RuleLayout
//   SOFTWARE\HOLVAN\tarntray\<profile>\rules\Rule <n>\<list> SignerGroupLayout

namespace corvane::store {

/// A DWORD.
template <typename Record>
struct StoredNumber {
    FieldOf<Record, std::int32_t> field;
};

/// An SZ.
template <typename Record>
struct StoredText {
    FieldOf<Record, std::wstring> field;
};

/// A MULTI_SZ of texts; an empty one is stored as "0".
template <typename Record>
struct StoredTextList {
    FieldOf<Record, TextList> field;
};

/// A MULTI_SZ of texts as they are.
template <typename Record>
struct StoredTextArray {
    FieldOf<Record, TextList> field;
};

/// A MULTI_SZ of decimal numbers.
template <typename Record>
struct StoredNumberList {
    FieldOf<Record, NumberList> field;
};

/// A DWORD: how many elements the list of the next StoredElements row with the same field has.
template <typename Record>
struct StoredCount {
    FieldOf<Record, TextList> field;
};

/// SZ values, named by the row's name with 0, 1, ... after it; as many as counted.
template <typename Record>
struct StoredElements {
    FieldOf<Record, TextList> field;
};

/// An SZ from before lists: read only where the count is 0, then the list's one element. Never written.
template <typename Record>
struct StoredOldElement {
    FieldOf<Record, std::wstring> field;
    FieldOf<Record, TextList> list;
};

/// One value of a record: a row of the layout. Rows stand in the order in which values are read and written.
/// A value that is missing is what a fresh record has in the field.
template <typename Record>
struct StoredValue {
    const wchar_t* name = L"";
    /// How it is stored, and which field it is.
    std::variant<StoredNumber<Record>, StoredText<Record>, StoredTextList<Record>, StoredTextArray<Record>,
                 StoredNumberList<Record>, StoredCount<Record>, StoredElements<Record>,
                 StoredOldElement<Record>>
        kind;
    std::uint32_t loadFlags = 0;  ///< ReportError's flags when loading; lists have fixed ones.
    std::uint32_t saveFlags = 0;  ///< ReportError's flags when saving; lists have fixed ones.
};

/// A CS profile of the crypto provider, as far as this program reads it.
struct ProviderProfile {
    std::wstring displayName;
};

[[nodiscard]] std::span<const StoredValue<ProviderProfile>> ProviderProfileLayout();
[[nodiscard]] std::span<const StoredValue<WindowRectangle>> WindowLayout();
[[nodiscard]] std::span<const StoredValue<AppSettings>> SettingsLayout();
[[nodiscard]] std::span<const StoredValue<Profile>> ProfileLayout();
[[nodiscard]] std::span<const StoredValue<Rule>> RuleLayout();
[[nodiscard]] std::span<const StoredValue<SignerGroup>> SignerGroupLayout();

/// The settings that are stored together with the profile "default".
[[nodiscard]] std::span<const StoredValue<AppSettings>> FirstSettingsLayout();
/// The values of the profile "default", in the order in which they are first stored.
[[nodiscard]] std::span<const StoredValue<Profile>> FirstProfileLayout();

/// Keys under HKEY_CURRENT_USER.
inline constexpr wchar_t kProviderProfilesKey[] = L"SOFTWARE\\HOLVAN\\tarn\\Profiles";
inline constexpr wchar_t kProgramKey[] = L"SOFTWARE\\HOLVAN\\tarntray";
/// The subkey of a profile key that holds its rules.
inline constexpr wchar_t kRulesSubkey[] = L"rules";
/// The profile that is made where there is none.
inline constexpr wchar_t kFirstProfileName[] = L"default";

/// `parent` and `name`, joined to the path of a key.
[[nodiscard]] std::wstring KeyPath(std::wstring_view parent, std::wstring_view name);
/// The path of a profile's key.
[[nodiscard]] std::wstring ProfileKey(std::wstring_view profileName);
/// The path of the key that holds a profile's rules.
[[nodiscard]] std::wstring RulesKey(std::wstring_view profileName);
/// The name of the key of the rule at `position`, counted from 0: "Rule 0".
[[nodiscard]] std::wstring RuleKeyName(std::size_t position);
/// The name of element `index` of a counted list: "M0".
[[nodiscard]] std::wstring ElementName(std::wstring_view prefix, std::size_t index);

}  // namespace corvane::store
