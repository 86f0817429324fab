#include "store/records.h"

#include <algorithm>

namespace corvane::store {

namespace {

template <typename Element>
void TakeEntry(const std::vector<Element>& list, std::size_t index, Element& field) {
    if (index < list.size()) {
        field = list[index];
    }
}

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
    TakeEntry(profile.csProfiles, index, entry.name);
    TakeEntry(profile.timeStampServers, index, entry.timeStampServer);
    TakeEntry(profile.autoUseTimeStamp, index, entry.autoUseTimeStamp);
    TakeEntry(profile.autoVerifyTimeStamp, index, entry.autoVerifyTimeStamp);
    TakeEntry(profile.noTimeStampIsError, index, entry.noTimeStampIsError);
    TakeEntry(profile.notAddCertificate, index, entry.notAddCertificate);
    TakeEntry(profile.notCopyToLocal, index, entry.notCopyToLocal);
    TakeEntry(profile.notLoadCrl, index, entry.notLoadCrl);
    TakeEntry(profile.crlUpdatePeriods, index, entry.crlUpdatePeriod);
    TakeEntry(profile.notUseDirectory, index, entry.notUseDirectory);
    TakeEntry(profile.useAuthorityAccess, index, entry.useAuthorityAccess);
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
