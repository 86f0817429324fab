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

TextList SplitEntries(std::wstring_view entries) {
    TextList list;
    while (!entries.empty()) {
        const std::size_t end = entries.find(L'\n');
        list.emplace_back(entries.substr(0, end));
        entries.remove_prefix(end == std::wstring_view::npos ? entries.size() : end + 1);
    }
    return list;
}

std::wstring_view OperationDisplayName(std::wstring_view code) {
    constexpr std::size_t kCodeLength = 4;
    if (code.size() != kCodeLength) {
        return code;
    }
    std::wstring_view codes = OperationCode;
    std::wstring_view names = kOperationNames;
    while (!codes.empty()) {
        const std::size_t nameEnd = names.find(L'\n');
        if (codes.substr(0, kCodeLength) == code) {
            return names.substr(0, nameEnd);
        }
        codes.remove_prefix(kCodeLength + 1);
        names.remove_prefix(nameEnd + 1);
    }
    return code;
}

bool IsArchiveOperation(std::wstring_view code) {
    return code == L"ARCH" || code == L"UNAR";
}

}  // namespace corvane::store
