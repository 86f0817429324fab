#include "store/records.h"

#include <algorithm>

#include "store/cs_profile_settings.h"

namespace corvane::store {

namespace {

template <typename State>
auto FindProfileNamed(State& state) -> decltype(state.profiles.data()) {
    const auto found =
        std::find_if(state.profiles.begin(), state.profiles.end(),
                     [&state](const Profile& profile) { return profile.name == state.currentProfileName; });
    return found == state.profiles.end() ? nullptr : &*found;
}

}  // namespace

CsProfile CsProfileAt(const Profile& profile, std::size_t index) {
    CsProfile entry;
    ForEachCsProfileSetting(profile, entry, [index](const auto& list, auto& field) {
        if (index < list.size()) {
            field = list[index];
        }
    });
    return entry;
}

Profile* FindCurrentProfile(ConfigurationState& state) {
    return FindProfileNamed(state);
}

const Profile* FindCurrentProfile(const ConfigurationState& state) {
    return FindProfileNamed(state);
}

bool IsArchiveOperation(std::wstring_view code) {
    return code == L"ARCH" || code == L"UNAR";
}

}  // namespace corvane::store
