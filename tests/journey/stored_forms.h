#pragma once

#include <string>
#include <vector>

#include "tests/journey/typical_rules.h"
#include "tests/kit/fixtures/stored_differences.h"

namespace corvane::test {

/// The description that a typical rule is made with.
[[nodiscard]] std::wstring DescriptionOf(const TypicalRule& rule);

/// What the program stores of settings that nobody has changed, but for the place of its window.
[[nodiscard]] RegistryValues DefaultSettings();
/// The values of a profile with these CS profiles and no other settings; `notUseDirectory` for each of them.
[[nodiscard]] RegistryValues ProfileValues(const Texts& csProfiles, const std::wstring& notUseDirectory);
/// All below the program's key for one profile with these rules, under the default settings.
[[nodiscard]] StoredTree StoredFormOf(const std::wstring& profile, const RegistryValues& profileValues,
                                      const std::vector<TypicalRule>& rules);

/// Takes the refresh times of the revocation lists out of a stored tree, which are those of the run, and
/// gives the CS profiles that they are of.
[[nodiscard]] Texts TakeRefreshTimes(StoredTree& tree);

}  // namespace corvane::test
