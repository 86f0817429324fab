#include "editors/profile/cs_profile_list.h"

#include <algorithm>
#include <string>

namespace corvane::editors {

namespace {

struct TextOfEntry {
    store::FieldOf<store::Profile, store::TextList> list;
    store::FieldOf<store::CsProfile, std::wstring> field;
};

struct NumberOfEntry {
    store::FieldOf<store::Profile, store::NumberList> list;
    store::FieldOf<store::CsProfile, std::int32_t> field;
};

constexpr TextOfEntry kTexts[] = {
    {&store::Profile::csProfiles, &store::CsProfile::name},
    {&store::Profile::timeStampServers, &store::CsProfile::timeStampServer},
};

constexpr NumberOfEntry kNumbers[] = {
    {&store::Profile::notUseDirectory, &store::CsProfile::notUseDirectory},
    {&store::Profile::notAddCertificate, &store::CsProfile::notAddCertificate},
    {&store::Profile::notCopyToLocal, &store::CsProfile::notCopyToLocal},
    {&store::Profile::autoVerifyTimeStamp, &store::CsProfile::autoVerifyTimeStamp},
    {&store::Profile::noTimeStampIsError, &store::CsProfile::noTimeStampIsError},
    {&store::Profile::useAuthorityAccess, &store::CsProfile::useAuthorityAccess},
    {&store::Profile::autoUseTimeStamp, &store::CsProfile::autoUseTimeStamp},
    {&store::Profile::notLoadCrl, &store::CsProfile::notLoadCrl},
    {&store::Profile::crlUpdatePeriods, &store::CsProfile::crlUpdatePeriod},
};

/// Runs `change` on each of the eleven lists together with its field of `entry`.
template <typename Change>
void ChangeLists(store::Profile& profile, const store::CsProfile& entry, const Change& change) {
    for (const TextOfEntry& row : kTexts) {
        change(profile.*row.list, entry.*row.field);
    }
    for (const NumberOfEntry& row : kNumbers) {
        change(profile.*row.list, entry.*row.field);
    }
}

}  // namespace

void AlignCsProfiles(store::Profile& profile) {
    ChangeLists(
        profile, store::CsProfile(),
        [count = profile.csProfiles.size()](auto& list, const auto& field) { list.resize(count, field); });
}

void StoreCsProfile(store::Profile& profile, std::size_t index, const store::CsProfile& entry) {
    AlignCsProfiles(profile);
    if (index < profile.csProfiles.size()) {
        ChangeLists(profile, entry, [index](auto& list, const auto& field) { list[index] = field; });
    }
}

void AppendCsProfile(store::Profile& profile, const store::CsProfile& entry) {
    AlignCsProfiles(profile);
    ChangeLists(profile, entry, [](auto& list, const auto& field) { list.push_back(field); });
}

void EraseCsProfile(store::Profile& profile, std::size_t index) {
    AlignCsProfiles(profile);
    if (index < profile.csProfiles.size()) {
        ChangeLists(profile, store::CsProfile(), [index](auto& list, const auto& /*field*/) {
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
