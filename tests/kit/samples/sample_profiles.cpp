#include "tests/kit/samples/sample_profiles.h"

namespace corvane::test {

store::CsProfile FilledCsProfile(const std::wstring& name, std::int32_t seed) {
    return {.name = name,
            .timeStampServer = L"http://" + std::to_wstring(seed),
            .autoUseTimeStamp = 1,
            .autoVerifyTimeStamp = 1,
            .noTimeStampIsError = 1,
            .notAddCertificate = 1,
            .notCopyToLocal = 1,
            .notLoadCrl = 1,
            .crlUpdatePeriod = 100 + seed,
            .notUseDirectory = 0,
            .useAuthorityAccess = 1};
}

store::Profile ProfileWith(const std::wstring& name, const store::TextList& csProfiles) {
    store::Profile profile;
    profile.name = name;
    std::int32_t seed = 0;
    for (const std::wstring& csProfile : csProfiles) {
        const store::CsProfile entry = FilledCsProfile(csProfile, seed++);
        profile.csProfiles.push_back(entry.name);
        profile.timeStampServers.push_back(entry.timeStampServer);
        profile.autoUseTimeStamp.push_back(entry.autoUseTimeStamp);
        profile.autoVerifyTimeStamp.push_back(entry.autoVerifyTimeStamp);
        profile.noTimeStampIsError.push_back(entry.noTimeStampIsError);
        profile.notAddCertificate.push_back(entry.notAddCertificate);
        profile.notCopyToLocal.push_back(entry.notCopyToLocal);
        profile.notLoadCrl.push_back(entry.notLoadCrl);
        profile.crlUpdatePeriods.push_back(entry.crlUpdatePeriod);
        profile.notUseDirectory.push_back(entry.notUseDirectory);
        profile.useAuthorityAccess.push_back(entry.useAuthorityAccess);
    }
    return profile;
}

std::vector<std::size_t> ListLengths(const store::Profile& profile) {
    return {profile.csProfiles.size(),         profile.timeStampServers.size(),
            profile.notUseDirectory.size(),    profile.notAddCertificate.size(),
            profile.notCopyToLocal.size(),     profile.autoVerifyTimeStamp.size(),
            profile.noTimeStampIsError.size(), profile.useAuthorityAccess.size(),
            profile.autoUseTimeStamp.size(),   profile.notLoadCrl.size(),
            profile.crlUpdatePeriods.size()};
}

}  // namespace corvane::test
