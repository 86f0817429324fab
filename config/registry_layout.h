#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "config/records.h"

// The stored form of the configuration, told once, for loading, saving and their tests.
//
//   SOFTWARE\HOLVAN\tarn\Profiles\<any>                     ProviderProfileLayout   the provider's, only read
//   SOFTWARE\HOLVAN\tarntray                                WindowLayout, SettingsLayout
//   SOFTWARE\HOLVAN\tarntray\<profile>                      ProfileLayout
//   SOFTWARE\HOLVAN\tarntray\<profile>\rules\Rule <n>       RuleLayout
//   SOFTWARE\HOLVAN\tarntray\<profile>\rules\Rule <n>\<list> SignerGroupLayout

namespace corvane {

/// How a value is stored, and how it is read back.
enum class StoredAs : std::uint8_t {
    kNumber,      ///< DWORD.
    kText,        ///< SZ.
    kTextList,    ///< MULTI_SZ of texts; an empty one is stored as "0".
    kTextArray,   ///< MULTI_SZ of texts as they are.
    kNumberList,  ///< MULTI_SZ of decimal numbers.
    kCount,       ///< DWORD: how many elements the list of the next kElements row with the same field has.
    kElements,    ///< SZ values, named by the row's name with 0, 1, ... behind it; as many as counted.
    kOldElement,  ///< SZ: read only where the count is 0, then the list's one element. Never written.
};

/// The name of a value, written in the program: half as big as a view of it.
class ValueName {
  public:
    // NOLINTNEXTLINE(google-explicit-constructor): names are written as they are.
    constexpr ValueName(const wchar_t* literal) : literal_(literal) {}
    // NOLINTNEXTLINE(google-explicit-constructor): it serves wherever a text is only read.
    constexpr operator std::wstring_view() const { return literal_; }
    /// Ends with a NUL, as the system wants it.
    [[nodiscard]] constexpr const wchar_t* Literal() const { return literal_; }

  private:
    const wchar_t* literal_;
};

/// How a value is named, stored and reported, whatever record it is of.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): of the union, one member is set and enough.
struct ValueForm {
    ValueName name = L"";
    union {
        std::int32_t defaultNumber = 0;  ///< Of kNumber: where the number is missing.
        const wchar_t* defaultText;      ///< Of kText and kOldElement: where the text is missing.
    };
    StoredAs storedAs = StoredAs::kNumber;
    std::uint8_t loadFlags = 0;  ///< ReportError's flags when loading; lists have fixed ones.
    std::uint8_t saveFlags = 0;  ///< ReportError's flags when saving; lists have fixed ones.
};

/// One value of a record: a row of the layout. Rows stand in the order in which values are read and
/// written. The field that is set is the one that `storedAs` speaks of; a kOldElement has a text and texts.
template <typename Record>
struct StoredValue : ValueForm {
    union {
        std::int32_t Record::*number = nullptr;
        std::wstring Record::*text;
        NumberList Record::*numbers;
    };
    TextList Record::*texts = nullptr;
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

}  // namespace corvane
