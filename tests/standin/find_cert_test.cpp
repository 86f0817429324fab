#include <gmock/gmock.h>

#include "tests/standin/session_fixture.h"

namespace corvane::standin {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kMarsh = "CN=Helen Marsh,O=Northgate,C=GB";
constexpr const char* kNyberg = "CN=Maja Nyberg,O=Lindholm,C=GB";

FakeSystem TwoStores() {
    FakeSystem system;
    system.local = {CertificateOf(L"Helen Marsh", L"Northgate", {1})};
    system.network = {CertificateOf(L"Maja Nyberg", L"Lindholm", {2})};
    return system;
}

TEST(FindCert, ALocalSearchNeverAsksTheNetworkStore) {
    const FakeSystem system = TwoStores();
    Session session(system);
    EXPECT_EQ(session.Search(0, nullptr), kStatusOk);
    EXPECT_THAT(session.owners, ElementsAre(kMarsh));
    EXPECT_EQ(session.Search(0x100, nullptr), kStatusOk);
    EXPECT_EQ(system.networkReads, 0);
}

TEST(FindCert, ANetworkSearchGivesTheLocalOnesFirst) {
    const FakeSystem system = TwoStores();
    Session session(system);
    EXPECT_EQ(session.Search(0xE04, "*=*"), kStatusOk);
    EXPECT_THAT(session.owners, ElementsAre(kMarsh, kNyberg));
}

TEST(FindCert, AStoreIsReadOncePerContext) {
    const FakeSystem system = TwoStores();
    Session session(system);
    EXPECT_EQ(session.Search(0xE04, "*=*"), kStatusOk);
    EXPECT_EQ(session.Search(0xF04, "*=*"), kStatusOk);
    EXPECT_EQ(system.localReads, 1);
    EXPECT_EQ(system.networkReads, 1);
}

TEST(FindCert, ANetworkStoreThatDoesNotAnswerFailsTheSearchAndIsAskedAgain) {
    FakeSystem system = TwoStores();
    system.network.reset();
    Session session(system);
    EXPECT_EQ(session.Search(0xE04, "CN=Maja*"), kStatusNetworkStoreSilent);
    EXPECT_THAT(session.owners, IsEmpty());
    EXPECT_THAT(PopErrors(session.provider, session.context),
                ElementsAre("The network certificate store does not answer|CN=Maja*",
                            "The folder does not exist|C:\\certificates\\network"));
    system.network = TwoStores().network;
    EXPECT_EQ(session.Search(0xE04, "CN=Maja*"), kStatusOk);
    EXPECT_THAT(session.owners, ElementsAre(kNyberg));
}

TEST(FindCert, TheProbeOfAnAnsweringNetworkStoreFindsNothing) {
    const FakeSystem system = TwoStores();
    Session session(system);
    EXPECT_EQ(session.Search(0xE04, "CN=QQQ,C=RU", 0), provider::kStatusNothingFound);
    EXPECT_THAT(PopErrors(session.provider, session.context), IsEmpty());
}

TEST(FindCert, AContextOpenedWithoutTheNetworkStoreSearchesLocallyOnly) {
    FakeSystem system = TwoStores();
    system.network.reset();
    Session session(system, 0x80000044);
    EXPECT_EQ(session.Search(0xE04, "*=*"), kStatusOk);
    EXPECT_THAT(session.owners, ElementsAre(kMarsh));
}

TEST(FindCert, LetterCaseDoesNotMatterCyrillicIncluded) {
    FakeSystem system;
    system.local = {CertificateOf(L"\u0418\u0432\u0430\u043D", L"Northgate", {1})};
    Session session(system);
    EXPECT_EQ(session.Search(0, "cn=\xE8\xC2*"), kStatusOk);
    EXPECT_EQ(session.Search(0, "cn=\xE9\xC2*"), provider::kStatusNothingFound);
}

TEST(FindCert, AnOwnerTextThatTheCodePageSpoiltStillFindsItsOwner) {
    FakeSystem system;
    system.local = {CertificateOf(L"J\u00F6rg", L"Northgate", {1})};
    Session session(system);
    ASSERT_EQ(session.Search(0, nullptr), kStatusOk);
    const std::string owner = session.owners.front();
    EXPECT_EQ(owner, "CN=J?rg,O=Northgate,C=GB");
    EXPECT_EQ(session.Search(0, owner.c_str()), kStatusOk);
    EXPECT_EQ(session.Search(0, owner.c_str(), 0), kStatusOk);
}

TEST(FindCert, TwoCertificatesOfOneOwnerAreTwoEntries) {
    FakeSystem system;
    system.local = {CertificateOf(L"Helen Marsh", L"Northgate", {1}),
                    CertificateOf(L"Helen Marsh", L"Northgate", {2})};
    Session session(system);
    EXPECT_EQ(session.Search(0, kMarsh), kStatusOk);
    EXPECT_THAT(session.owners, ElementsAre(kMarsh, kMarsh));
}

TEST(FindCert, TheSameCertificateInBothStoresIsOneEntry) {
    FakeSystem system;
    system.local = {CertificateOf(L"Helen Marsh", L"Northgate", {1}),
                    CertificateOf(L"Helen Marsh", L"Northgate", {1})};
    system.network = {CertificateOf(L"Helen Marsh", L"Northgate", {1})};
    Session session(system);
    EXPECT_EQ(session.Search(0xE04, "*=*"), kStatusOk);
    EXPECT_THAT(session.owners, ElementsAre(kMarsh));
}

TEST(FindCert, ACertificateOutsideItsPeriodIsNotServed) {
    FakeSystem system;
    system.local = {CertificateOf(L"Helen Marsh", L"Northgate", {1})};
    system.local->front().isValidNow = false;
    Session session(system);
    EXPECT_EQ(session.Search(0, nullptr), provider::kStatusNothingFound);
}

TEST(FindCert, SigningCertificatesAreServedInEverySearchWithTheirUsageByte) {
    FakeSystem system;
    system.local = {CertificateOf(L"Erik Sandberg", L"Lindholm", {1}, kKeyUsageSigning)};
    Session session(system);
    for (const std::uint32_t flags : {0U, 0x100U}) {
        provider::CertQuery query;
        query.searchFlags = flags;
        query.fieldsWanted = kListFields;
        provider::CertFindResult result;
        ASSERT_EQ(session.provider.FindCert(session.context, &query, &result), kStatusOk);
        EXPECT_EQ(result.entries[0].usage, 0x03);
        EXPECT_EQ(session.provider.FreeFindResult(session.context, &result), kStatusOk);
    }
}

TEST(FindCert, OnlyTheWantedFieldsAreFilledIn) {
    FakeSystem system;
    system.local = {CertificateOf(L"Helen Marsh", L"Northgate", {0xFF, 0x1B, 0x0A})};
    Session session(system);
    provider::CertQuery query;
    query.fieldsWanted = kListFields;
    provider::CertFindResult result;
    ASSERT_EQ(session.provider.FindCert(session.context, &query, &result), kStatusOk);
    EXPECT_STREQ(result.entries[0].owner, kMarsh);
    EXPECT_EQ(result.entries[0].issuer, nullptr);
    EXPECT_EQ(result.entries[0].serial, nullptr);
    EXPECT_EQ(result.entries[0].serialLength, 0U);
    ASSERT_EQ(session.provider.FreeFindResult(session.context, &result), kStatusOk);
    query.fieldsWanted = kCertificateFields;
    ASSERT_EQ(session.provider.FindCert(session.context, &query, &result), kStatusOk);
    EXPECT_STREQ(result.entries[0].issuer, "CN=Test CA");
    const provider::CertEntry& entry = result.entries[0];
    EXPECT_THAT(Bytes(entry.serial, entry.serial + entry.serialLength), ElementsAre(0x0A, 0x1B, 0xFF));
    EXPECT_EQ(session.provider.FreeFindResult(session.context, &result), kStatusOk);
}

TEST(FindCert, AResultOutlivesItsContext) {
    const FakeSystem system = TwoStores();
    Session session(system);
    provider::CertQuery query;
    query.fieldsWanted = kListFields;
    provider::CertFindResult result;
    ASSERT_EQ(session.provider.FindCert(session.context, &query, &result), kStatusOk);
    ASSERT_EQ(session.provider.Uninitialize(session.context), kStatusOk);
    EXPECT_STREQ(result.entries[0].owner, kMarsh);
}

TEST(FindCert, NullArgumentsAreRefused) {
    const FakeSystem system;
    Session session(system);
    provider::CertQuery query;
    provider::CertFindResult result;
    EXPECT_EQ(session.provider.FindCert(session.context, nullptr, &result), 0xFFFFFFFEU);
    EXPECT_EQ(session.provider.FindCert(session.context, &query, nullptr), 0xFFFFFFFDU);
}

TEST(FindCert, NamesOfTwentyThousandCertificatesAreConvertedOnceHoweverOftenTheyAreSearched) {
    constexpr std::uint32_t kCount = 20000;
    FakeSystem system;
    for (std::uint32_t number = 0; number < kCount; ++number) {
        system.local->push_back(
            CertificateOf(L"Somebody " + std::to_wstring(number), L"Northgate",
                          {static_cast<std::uint8_t>(number), static_cast<std::uint8_t>(number >> 8)}));
    }
    Session session(system);
    const int afterOpening = system.conversions;
    EXPECT_EQ(session.Search(0, "*=*"), kStatusOk);
    EXPECT_EQ(session.owners.size(), kCount);
    EXPECT_EQ(session.Search(0, "CN=Somebody 19999"), kStatusOk);
    EXPECT_EQ(session.owners.size(), 1U);
    EXPECT_EQ(system.conversions - afterOpening, 2) << "one per search, for its pattern";
}

}  // namespace
}  // namespace corvane::standin
