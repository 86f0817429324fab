#include "editors/profile/cs_profile_list.h"

#include <algorithm>
#include <string>

#include "store/cs_profile_settings.h"

namespace corvane::editors {

void AlignCsProfiles(store::Profile& profile) {
    const store::CsProfile fresh;
    store::ForEachCsProfileSetting(
        profile, fresh,
        [count = profile.csProfiles.size()](auto& list, const auto& field) { list.resize(count, field); });
}

void StoreCsProfile(store::Profile& profile, std::size_t index, const store::CsProfile& entry) {
    AlignCsProfiles(profile);
    if (index < profile.csProfiles.size()) {
        store::ForEachCsProfileSetting(profile, entry,
                                       [index](auto& list, const auto& field) { list[index] = field; });
    }
}

void AppendCsProfile(store::Profile& profile, const store::CsProfile& entry) {
    AlignCsProfiles(profile);
    store::ForEachCsProfileSetting(profile, entry,
                                   [](auto& list, const auto& field) { list.push_back(field); });
}

void EraseCsProfile(store::Profile& profile, std::size_t index) {
    AlignCsProfiles(profile);
    if (index < profile.csProfiles.size()) {
        const store::CsProfile fresh;
        store::ForEachCsProfileSetting(profile, fresh, [index](auto& list, const auto& /*field*/) {
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(index));
        });
    }
}

bool HasCsProfile(const store::Profile& profile, std::wstring_view name,
                  const toolkit::SystemText& systemText) {
    const std::wstring key = systemText.UpperCase(name);
    return std::any_of(
        profile.csProfiles.begin(), profile.csProfiles.end(),
        [&key, &systemText](const std::wstring& held) { return systemText.UpperCase(held) == key; });
}

}  // namespace corvane::editors
