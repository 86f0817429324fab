#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>

#include "store/records.h"

// What is known about each setting of a CS profile, in one row of one table: whoever takes, keeps or stores
// the settings of a CS profile walks it, so that none is forgotten.

namespace corvane::store {

/// Texts of a profile's CS profiles, and the one of an entry.
struct CsProfileTexts {
    FieldOf<Profile, TextList> list;
    FieldOf<CsProfile, std::wstring> field;
};

/// Numbers of a profile's CS profiles, and the one of an entry.
struct CsProfileNumbers {
    FieldOf<Profile, NumberList> list;
    FieldOf<CsProfile, std::int32_t> field;
};

/// One setting. What a new CS profile has in it, the default of the entry's field, is also its value in the
/// first profile of all.
struct CsProfileSetting {
    const wchar_t* name = L"";   ///< Of the stored list.
    std::size_t firstPlace = 0;  ///< When the first profile stores it: its place among the settings.
    std::variant<CsProfileTexts, CsProfileNumbers> values;
};

/// The settings in the order in which a profile stores them.
inline constexpr std::array<CsProfileSetting, 11> kCsProfileSettings{{
    {L"ServerTSP", 8, CsProfileTexts{&Profile::timeStampServers, &CsProfile::timeStampServer}},
    {L"ZCSProfile", 10, CsProfileTexts{&Profile::csProfiles, &CsProfile::name}},
    {L"NotUseLDAP", 7, CsProfileNumbers{&Profile::notUseDirectory, &CsProfile::notUseDirectory}},
    {L"NotCopyToLocal", 3, CsProfileNumbers{&Profile::notCopyToLocal, &CsProfile::notCopyToLocal}},
    {L"AutoUseTSP", 0, CsProfileNumbers{&Profile::autoUseTimeStamp, &CsProfile::autoUseTimeStamp}},
    {L"AutoVerifyTSP", 1, CsProfileNumbers{&Profile::autoVerifyTimeStamp, &CsProfile::autoVerifyTimeStamp}},
    {L"NoTSPisError", 6, CsProfileNumbers{&Profile::noTimeStampIsError, &CsProfile::noTimeStampIsError}},
    {L"UseAIA", 9, CsProfileNumbers{&Profile::useAuthorityAccess, &CsProfile::useAuthorityAccess}},
    {L"NotAddCert", 2, CsProfileNumbers{&Profile::notAddCertificate, &CsProfile::notAddCertificate}},
    {L"NotLoadCrl", 4, CsProfileNumbers{&Profile::notLoadCrl, &CsProfile::notLoadCrl}},
    {L"CrlUpdatePeriod", 5, CsProfileNumbers{&Profile::crlUpdatePeriods, &CsProfile::crlUpdatePeriod}},
}};

/// Calls `visit` for each setting with its list in the profile and its field in the entry.
template <typename SomeProfile, typename Entry, typename Visit>
void ForEachCsProfileSetting(SomeProfile& profile, Entry& entry, const Visit& visit) {
    for (const CsProfileSetting& setting : kCsProfileSettings) {
        std::visit([&](const auto& values) { visit(profile.*values.list, entry.*values.field); },
                   setting.values);
    }
}

}  // namespace corvane::store
