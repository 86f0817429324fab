#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "store/records.h"

namespace corvane::test {

/// A rule that a list shows, told from others by its description.
inline store::Rule RuleDescribed(std::wstring description) {
    store::Rule rule;
    rule.operation = L"ENCR";
    rule.description = std::move(description);
    return rule;
}

/// A profile with one rule for each description.
inline store::Profile ProfileWithRules(std::wstring name, const store::TextList& descriptions) {
    store::Profile profile;
    profile.name = std::move(name);
    for (const std::wstring& description : descriptions) {
        profile.rules.push_back(RuleDescribed(description));
    }
    return profile;
}

/// A configuration without changes, of the given profiles, of which `currentProfileName` is the current one.
inline store::ConfigurationState StateWith(std::vector<store::Profile> profiles,
                                           std::wstring currentProfileName) {
    store::ConfigurationState state;
    for (const store::Profile& profile : profiles) {
        state.profileNames.push_back(profile.name);
    }
    state.profiles = std::move(profiles);
    state.currentProfileName = std::move(currentProfileName);
    return state;
}

/// A configuration whose only profile is the current one and has the rules a, b, c and so on.
inline store::ConfigurationState StateWithRules(const store::TextList& descriptions) {
    return StateWith({ProfileWithRules(L"main", descriptions)}, L"main");
}

/// The descriptions of the rules of a profile, in order.
inline store::TextList RuleDescriptions(const store::ConfigurationState& state,
                                        std::size_t profilePosition = 0) {
    store::TextList descriptions;
    for (const store::Rule& rule : state.profiles.at(profilePosition).rules) {
        descriptions.push_back(rule.description);
    }
    return descriptions;
}

/// A configuration of the usual kind and any size: profiles with one CS profile, rules of every operation
/// with one mask and two recipients, every twentieth with a signer list.
[[nodiscard]] store::ConfigurationState SampleConfiguration(std::size_t profileCount,
                                                            std::size_t rulesPerProfile);

}  // namespace corvane::test
