#include "certificates/session/cryptocontext.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

TEST(SearchSettings, TakeEveryFieldOfTheCsProfile) {
    store::CsProfile csProfile;
    csProfile.name = L"main";
    csProfile.timeStampServer = L"http://tsp";
    csProfile.autoUseTimeStamp = 1;
    csProfile.autoVerifyTimeStamp = 2;
    csProfile.noTimeStampIsError = 3;
    csProfile.notAddCertificate = 4;
    csProfile.notCopyToLocal = 5;
    csProfile.notLoadCrl = 6;
    csProfile.notUseDirectory = 7;
    csProfile.useAuthorityAccess = 8;
    certificates::CertSearchSettings expected;
    expected.timeStampServer = L"http://tsp";
    expected.autoUseTimeStamp = 1;
    expected.autoVerifyTimeStamp = 2;
    expected.noTimeStampIsError = 3;
    expected.notAddCertificate = 4;
    expected.notCopyToLocal = 5;
    expected.notLoadCrl = 6;
    expected.notUseDirectory = 7;
    expected.useAuthorityAccess = 8;
    expected.signerMode = 0;
    EXPECT_EQ(certificates::SearchSettingsOf(csProfile, certificates::CertificateUse::kRecipients), expected);
    expected.signerMode = 1;
    EXPECT_EQ(certificates::SearchSettingsOf(csProfile, certificates::CertificateUse::kSigners), expected);
}

TEST(SearchSettings, AreForSignersWithoutAGroupFolderUnlessSaid) {
    const certificates::CertSearchSettings settings;
    EXPECT_EQ(settings.signerMode, 1);
    EXPECT_EQ(settings.groupFolder, L"");
    EXPECT_EQ(settings.reportWithContext, 0);
}

struct FlagsCase {
    std::int32_t notCopyToLocal;
    std::int32_t useAuthorityAccess;
    std::int32_t notUseDirectory;
    std::int32_t notLoadCrl;
    std::uint32_t flags;
};

TEST(InitialisationFlags, EachSettingHasItsBit) {
    const FlagsCase cases[] = {
        {0, 0, 0, 0, 0x80000040}, {1, 0, 0, 0, 0x80000060},  {0, 1, 0, 0, 0x80000440},
        {0, 0, 1, 0, 0x80000044}, {0, 0, 0, 1, 0x80000041},  {1, 1, 1, 1, 0x80000465},
        {7, 0, 0, 0, 0x80000060}, {0, -1, 0, 0, 0x80000440},
    };
    for (const FlagsCase& testCase : cases) {
        certificates::CertSearchSettings settings;
        settings.notCopyToLocal = testCase.notCopyToLocal;
        settings.useAuthorityAccess = testCase.useAuthorityAccess;
        settings.notUseDirectory = testCase.notUseDirectory;
        settings.notLoadCrl = testCase.notLoadCrl;
        EXPECT_EQ(certificates::InitialisationFlags(settings), testCase.flags);
    }
}

TEST(InitialisationFlags, WithoutNetworkStoreAndCrlTheyAre80000045) {
    certificates::CertSearchSettings settings;
    settings.notUseDirectory = 1;
    settings.notLoadCrl = 1;
    EXPECT_EQ(certificates::InitialisationFlags(settings), 0x80000045U);
}

}  // namespace
}  // namespace corvane::test
