#include "store/records.h"

#include <gtest/gtest.h>

#include <set>

#include "store/cs_profile_settings.h"

namespace corvane::test {
namespace {

TEST(Records, FreshSettingsHoldTheDefaults) {
    const store::AppSettings settings;
    EXPECT_EQ(settings.window, (store::WindowRectangle{0, 0, 0, 0}));
    EXPECT_EQ(settings.signedExtension, L"p7s");
    EXPECT_EQ(settings.detachedSignatureExtension, L"p7d");
    EXPECT_EQ(settings.encryptedExtension, L"p7e");
    EXPECT_EQ(settings.base64Extension, L"b64");
    EXPECT_EQ(settings.hashExtension, L"hsh");
    EXPECT_EQ(settings.verificationExtension, L"vrf");
    EXPECT_EQ(settings.zipExtension, L"zip");
    EXPECT_EQ(settings.gzipExtension, L"gz");
    EXPECT_TRUE(settings.additionalExtensions.empty());
    EXPECT_EQ(settings.logPath, L"");
    EXPECT_EQ(settings.logFileSize, 4000);
}

TEST(Records, AFreshProfileWaitsFifteenForItsHandler) {
    const store::Profile profile;
    EXPECT_EQ(profile.handlerTimeout, 15);
    EXPECT_EQ(profile.verifyFile, 0);
    EXPECT_EQ(profile.verifyXFile, 0);
    EXPECT_EQ(profile.verifyDetachedFile, 0);
    EXPECT_EQ(profile.verifyResignFile, 0);
    EXPECT_EQ(profile.renameConfFiles, 0);
    EXPECT_TRUE(profile.rules.empty());
}

TEST(Records, ACsProfileEntryIsTakenFromAllElevenLists) {
    store::Profile profile;
    profile.csProfiles = {L"first", L"second"};
    profile.timeStampServers = {L"a", L"b"};
    profile.autoUseTimeStamp = {0, 11};
    profile.autoVerifyTimeStamp = {0, 12};
    profile.noTimeStampIsError = {0, 13};
    profile.notAddCertificate = {0, 14};
    profile.notCopyToLocal = {0, 15};
    profile.notLoadCrl = {0, 16};
    profile.crlUpdatePeriods = {0, 17};
    profile.notUseDirectory = {0, 18};
    profile.useAuthorityAccess = {0, 19};
    EXPECT_EQ(store::CsProfileAt(profile, 1),
              (store::CsProfile{L"second", L"b", 11, 12, 13, 14, 15, 16, 17, 18, 19}));
}

// Names every field, so that a new one that no row of the table knows does not compile here.
TEST(Records, EachFieldOfACsProfileAndEachListHasOneSetting) {
    store::Profile profile;
    store::CsProfile entry;
    auto& [name, server, use, verify, isError, notAdd, notCopy, notLoad, period, notDirectory, access] =
        entry;
    std::multiset<const void*> fields;
    std::set<const void*> lists;
    store::ForEachCsProfileSetting(profile, entry, [&fields, &lists](const auto& list, const auto& field) {
        fields.insert(&field);
        lists.insert(&list);
    });
    EXPECT_EQ(fields, (std::multiset<const void*>{&name, &server, &use, &verify, &isError, &notAdd, &notCopy,
                                                  &notLoad, &period, &notDirectory, &access}));
    EXPECT_EQ(lists.size(), fields.size());
}

TEST(Records, AListThatIsTooShortGivesTheDefaultOfItsField) {
    store::Profile profile;
    profile.csProfiles = {L"only", L"second"};
    profile.notUseDirectory = {0};
    const store::CsProfile entry = store::CsProfileAt(profile, 1);
    EXPECT_EQ(entry.name, L"second");
    EXPECT_EQ(entry.timeStampServer, L"0");
    EXPECT_EQ(entry.crlUpdatePeriod, 1);
    EXPECT_EQ(entry.notUseDirectory, 1);
    EXPECT_EQ(entry.autoUseTimeStamp, 0);
}

TEST(Records, TheCurrentProfileIsTheFirstOfItsName) {
    store::ConfigurationState state;
    state.profiles.resize(3);
    state.profiles[0].name = L"Out";
    state.profiles[1].name = L"In";
    state.profiles[2].name = L"In";
    state.currentProfileName = L"In";
    EXPECT_EQ(store::FindCurrentProfile(state), &state.profiles[1]);
    state.currentProfileName = L"in";
    EXPECT_EQ(store::FindCurrentProfile(state), nullptr) << "names are compared with their case";
}

}  // namespace
}  // namespace corvane::test
