#include "editors/cs_profile_list.h"

#include <algorithm>
#include <string>

namespace corvane {

namespace {

struct TextOfEntry {
    TextList Profile::*list;
    std::wstring CsProfile::*field;
};

struct NumberOfEntry {
    NumberList Profile::*list;
    std::int32_t CsProfile::*field;
};

constexpr TextOfEntry kTexts[] = {
    {&Profile::csProfiles, &CsProfile::name},
    {&Profile::timeStampServers, &CsProfile::timeStampServer},
};

constexpr NumberOfEntry kNumbers[] = {
    {&Profile::notUseDirectory, &CsProfile::notUseDirectory},
    {&Profile::notAddCertificate, &CsProfile::notAddCertificate},
    {&Profile::notCopyToLocal, &CsProfile::notCopyToLocal},
    {&Profile::autoVerifyTimeStamp, &CsProfile::autoVerifyTimeStamp},
    {&Profile::noTimeStampIsError, &CsProfile::noTimeStampIsError},
    {&Profile::useAuthorityAccess, &CsProfile::useAuthorityAccess},
    {&Profile::autoUseTimeStamp, &CsProfile::autoUseTimeStamp},
    {&Profile::notLoadCrl, &CsProfile::notLoadCrl},
    {&Profile::crlUpdatePeriods, &CsProfile::crlUpdatePeriod},
};

/// Runs `change` on each of the eleven lists together with its field of `entry`.
template <typename Change>
void ChangeLists(Profile& profile, const CsProfile& entry, const Change& change) {
    for (const TextOfEntry& row : kTexts) {
        change(profile.*row.list, entry.*row.field);
    }
    for (const NumberOfEntry& row : kNumbers) {
        change(profile.*row.list, entry.*row.field);
    }
}

}  // namespace

void AlignCsProfiles(Profile& profile) {
    ChangeLists(profile, CsProfile(), [count = profile.csProfiles.size()](auto& list, const auto& field) {
        list.resize(count, field);
    });
}

void StoreCsProfile(Profile& profile, std::size_t index, const CsProfile& entry) {
    AlignCsProfiles(profile);
    if (index < profile.csProfiles.size()) {
        ChangeLists(profile, entry, [index](auto& list, const auto& field) { list[index] = field; });
    }
}

void AppendCsProfile(Profile& profile, const CsProfile& entry) {
    AlignCsProfiles(profile);
    ChangeLists(profile, entry, [](auto& list, const auto& field) { list.push_back(field); });
}

void EraseCsProfile(Profile& profile, std::size_t index) {
    AlignCsProfiles(profile);
    if (index < profile.csProfiles.size()) {
        ChangeLists(profile, CsProfile(), [index](auto& list, const auto& /*field*/) {
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(index));
        });
    }
}

bool HasCsProfile(const Profile& profile, std::wstring_view name, const toolkit::SystemText& systemText) {
    const std::wstring key = systemText.UpperCase(name);
    return std::any_of(
        profile.csProfiles.begin(), profile.csProfiles.end(),
        [&key, &systemText](const std::wstring& held) { return systemText.UpperCase(held) == key; });
}

}  // namespace corvane
