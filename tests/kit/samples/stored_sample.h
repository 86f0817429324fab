#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "tests/kit/driver/registry.h"

namespace corvane::test {

/// The keys, below the maker's.
inline constexpr wchar_t kProgramKey[] = L"tarntray";
inline constexpr wchar_t kCatalogueKey[] = L"tarn\\Profiles";

/// The rules of the profile "alpha", by position; they differ in operation, format and switch.
enum SampleRule : int { kEncrypt, kMove, kResign, kPack, kExecute, kDelete, kSampleRuleCount };

/// Their descriptions, in order.
[[nodiscard]] Texts SampleDescriptions();
/// Their four-letter codes, in order.
[[nodiscard]] Texts SampleOperations();

/// Writes the configuration that the tests work on: the provider's catalogue "CS one", "CS two"; the
/// profiles "alpha" (two CS profiles, the six rules), "beta" (one CS profile, two rules) and "gamma" (one CS
/// profile, two rules). Each has rules that are switched off; all of "gamma" are.
void WriteSampleConfiguration();

/// Writes the provider's catalogue alone, one key for each name.
void WriteCatalogue(const Texts& names);

/// Writes a profile with these CS profiles and an empty list of rules.
void WriteProfile(const std::wstring& name, const Texts& csProfiles);

/// Writes one rule: plain values, its masks and its recipients.
struct StoredRule {
    RegistryValues values;
    Texts masks;
    Texts recipients;
    std::vector<std::pair<std::wstring, Texts>> signerLists;
};
void WriteRule(const std::wstring& profile, int number, const StoredRule& rule);

/// A rule with an operation and a description, on or off, and folders of its own.
[[nodiscard]] StoredRule PlainRule(const std::wstring& operation, const std::wstring& description,
                                   std::uint32_t isOn = 0);

/// The key of a profile's rule.
[[nodiscard]] std::wstring RuleKey(const std::wstring& profile, int number);

/// The named value of each of a profile's stored rules "Rule 0", "Rule 1" and so on.
[[nodiscard]] Texts StoredRuleTexts(const std::wstring& profile, const std::wstring& value);
[[nodiscard]] std::vector<std::uint32_t> StoredSwitches(const std::wstring& profile);

}  // namespace corvane::test
