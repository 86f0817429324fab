#pragma once

#include <string>
#include <utility>
#include <vector>

#include "config/records.h"

namespace corvane::testing {

/// A rule that a list shows, told from others by its description.
inline Rule RuleDescribed(std::wstring description) {
    Rule rule;
    rule.operation = L"ENCR";
    rule.description = std::move(description);
    return rule;
}

/// A profile with one rule for each description.
inline Profile ProfileWithRules(std::wstring name, const TextList& descriptions) {
    Profile profile;
    profile.name = std::move(name);
    for (const std::wstring& description : descriptions) {
        profile.rules.push_back(RuleDescribed(description));
    }
    return profile;
}

/// A configuration without changes, of the given profiles, of which `currentProfileName` is the current one.
inline ConfigurationState StateWith(std::vector<Profile> profiles, std::wstring currentProfileName) {
    ConfigurationState state;
    for (const Profile& profile : profiles) {
        state.profileNames.push_back(profile.name);
    }
    state.profiles = std::move(profiles);
    state.currentProfileName = std::move(currentProfileName);
    return state;
}

/// A configuration whose only profile is the current one and has the rules a, b, c and so on.
inline ConfigurationState StateWithRules(const TextList& descriptions) {
    return StateWith({ProfileWithRules(L"main", descriptions)}, L"main");
}

/// The descriptions of the rules of a profile, in order.
inline TextList RuleDescriptions(const ConfigurationState& state, std::size_t profilePosition = 0) {
    TextList descriptions;
    for (const Rule& rule : state.profiles.at(profilePosition).rules) {
        descriptions.push_back(rule.description);
    }
    return descriptions;
}

}  // namespace corvane::testing
