#include "app/main_window/profile_commands.h"

#include <stdexcept>
#include <utility>

#include "toolkit/text/format_text.h"

namespace corvane::app {

namespace {

/// Removes the element at `position`, which exists.
template <typename Element>
void EraseAt(std::vector<Element>& list, std::size_t position) {
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(position));
}

std::size_t PositionOf(const store::ConfigurationState& state, const store::Profile& profile) {
    return static_cast<std::size_t>(&profile - state.profiles.data());
}

void RequirePosition(std::size_t position, std::size_t count) {
    if (position >= count) {
        throw std::invalid_argument("There is no profile for this row.");
    }
}

void PointRulesElsewhere(store::Profile& profile, const std::wstring& deletedCsProfile) {
    const std::wstring& replacement = profile.csProfiles.front();
    for (store::Rule& rule : profile.rules) {
        if (rule.csProfile == deletedCsProfile) {
            rule.csProfile = replacement;
        }
        if (rule.resignProfile == deletedCsProfile) {
            rule.resignProfile = replacement;
        }
    }
}

}  // namespace

std::optional<OpenedProfile> OpenProfileNamed(store::ConfigurationState& state, const std::wstring& rowText) {
    state.currentProfileName = rowText;
    const store::Profile* const profile = store::FindCurrentProfile(state);
    if (profile == nullptr) {
        return std::nullopt;
    }
    return OpenedProfile{.name = profile->name,
                         .csProfileCount = profile->csProfiles.size(),
                         .position = PositionOf(state, *profile)};
}

std::optional<DeletedProfile> DeleteProfile(store::ConfigurationState& state, const store::TextList& rowTexts,
                                            std::size_t selectedRow) {
    RequirePosition(selectedRow, rowTexts.size());
    RequirePosition(selectedRow, state.profiles.size());
    RequirePosition(selectedRow, state.profileNames.size());
    if (rowTexts.size() < 2) {
        state.currentProfileName = rowTexts[selectedRow];
        return std::nullopt;
    }
    EraseAt(state.profiles, selectedRow);
    EraseAt(state.profileNames, selectedRow);
    state.currentProfileName.clear();
    state.isDirty = true;
    // Deliberate: a walk over the rows goes on behind the deleted one, makes each row's name the current one,
    // and skips the row that has moved up into the gap. So the name of the last row may be the current one
    // although no profile is shown. Programs that drive this one find the state so; a user clicks a row next,
    // which sets the name anew.
    const bool isAnyRowVisitedAfterwards = selectedRow + 2 < rowTexts.size();
    return DeletedProfile{.nextCurrentName = isAnyRowVisitedAfterwards ? rowTexts.back() : std::wstring()};
}

void AppendProfile(store::ConfigurationState& state, store::Profile profile) {
    state.profileNames.push_back(profile.name);
    state.profiles.push_back(std::move(profile));
    state.isDirty = true;
}

bool HasNoProfileToEdit(store::ConfigurationState& state) {
    if (!state.profiles.empty()) {
        return false;
    }
    // Deliberate: an edit that finds nothing to edit counts as a change, so that leaving asks.
    state.isDirty = true;
    return true;
}

std::optional<std::size_t> ReplaceCurrentProfile(store::ConfigurationState& state, store::Profile edited,
                                                 const store::TextList& deletedCsProfiles) {
    store::Profile* const profile = store::FindCurrentProfile(state);
    if (profile == nullptr) {
        return std::nullopt;
    }
    const std::size_t position = PositionOf(state, *profile);
    RequirePosition(position, state.profileNames.size());
    if (!deletedCsProfiles.empty() && edited.csProfiles.empty()) {
        throw std::invalid_argument("The edited profile has no CS profile left.");
    }
    for (const std::wstring& deleted : deletedCsProfiles) {
        PointRulesElsewhere(edited, deleted);
    }
    state.currentProfileName = edited.name;
    state.profileNames[position] = edited.name;
    *profile = std::move(edited);
    state.isDirty = true;
    return position;
}

std::wstring RuleListCaption(std::size_t csProfileCount) {
    return toolkit::FormatText(L"CS profile's num: %d", {static_cast<std::int64_t>(csProfileCount)});
}

std::wstring ProfileCaption(const std::wstring& name) {
    return L"Profile: " + name;
}

std::wstring DeleteProfileQuestion(const std::wstring& currentProfileName) {
    return toolkit::FormatText(L"Delete profile '%s'?", {currentProfileName});
}

std::wstring DeleteRulesQuestion(std::size_t selectedCount) {
    return toolkit::FormatText(L"Delete %d rule(s)?", {static_cast<std::int64_t>(selectedCount)});
}

}  // namespace corvane::app
