#include "tests/kit/samples/sample_profiles.h"

#include "store/cs_profile_settings.h"

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
        store::ForEachCsProfileSetting(profile, entry,
                                       [](auto& list, const auto& field) { list.push_back(field); });
    }
    return profile;
}

std::vector<std::size_t> ListLengths(const store::Profile& profile) {
    const store::CsProfile unused;
    std::vector<std::size_t> lengths;
    store::ForEachCsProfileSetting(profile, unused, [&lengths](const auto& list, const auto& /*field*/) {
        lengths.push_back(list.size());
    });
    return lengths;
}

}  // namespace corvane::test
