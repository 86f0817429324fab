#include "certificates/search/certificate_search.h"

#include <gmock/gmock.h>

#include "reporting/message_styles.h"
#include "tests/certificates/provider_fixture.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CertificateSearch : public CertsFixture {
  protected:
    CertificateSearch() {
        settings_.signerMode = 0;
        Reports().provider.PushError(ScriptedSessions::kFirstContext, {"Detail", "f.c", 7, "d"});
        Reports().provider.SetErrorText(kFailure, "Store broken.");
        Reports().provider.SetErrorText(provider::kStatusNothingFound, "Nothing found.");
    }

    static constexpr std::uint32_t kFailure = 0xE0700001;

    [[nodiscard]] ShownBox Report(const std::wstring& text) const {
        return {owner_, text, reporting::AppTitle, reporting::kErrorStyle};
    }

    certificates::CertSearchSettings settings_;
    corvane::store::TextList owners_{L"left over"};
    corvane::store::TextList issuers_{L"left over"};
    corvane::store::TextList serials_{L"left over"};
};

class FindAllLocalTest : public CertificateSearch {
  protected:
    bool Find() { return certificates::FindAllLocal(owner_, settings_, context_, Reporter(), owners_); }
    certificates::Cryptocontext context_ = OpenContext();
};

class FindByPatternTest : public CertificateSearch {
  protected:
    bool Find(const std::wstring& pattern = L"CN=Iva*") {
        return certificates::FindByPattern(owner_, settings_, context_, pattern, Reporter(), owners_);
    }
    certificates::Cryptocontext context_ = OpenContext();
};

class FindByOwnerTest : public CertificateSearch {
  protected:
    bool Find(const std::wstring& owner = L"CN=Ann") {
        return certificates::FindByOwner(owner_, settings_, context_, owner, Reporter(), issuers_, serials_);
    }
    certificates::Cryptocontext context_ = OpenContext();
};

TEST_F(FindAllLocalTest, AsksForAllRecipients) {
    EXPECT_TRUE(Find());
    EXPECT_THAT(sessions_.Searches(),
                ElementsAre(FindCall{ScriptedSessions::kFirstContext, 0, 0, std::nullopt, 0x84, true}));
    EXPECT_THAT(owners_, IsEmpty());
}

TEST_F(FindAllLocalTest, AsksForAllSigners) {
    settings_.signerMode = 1;
    EXPECT_TRUE(Find());
    EXPECT_THAT(sessions_.Searches(),
                ElementsAre(FindCall{ScriptedSessions::kFirstContext, 0x100, 0, std::nullopt, 0x84, true}));
}

TEST_F(FindAllLocalTest, ForRecipientsPassesOverCertificatesWithoutEncryption) {
    sessions_.certificates = {Certificate("CN=A", 0),    Certificate("CN=B", 0xE3),
                              Certificate("CN=C", 4),    Certificate("CN=D", 0x08),
                              Certificate("CN=E", 0x10), Certificate("CN=F", 0xFF)};
    EXPECT_TRUE(Find());
    EXPECT_THAT(owners_, ElementsAre(L"CN=C", L"CN=D", L"CN=E", L"CN=F"));
}

TEST_F(FindAllLocalTest, ForSignersTakesEveryCertificate) {
    settings_.signerMode = 1;
    sessions_.certificates = {Certificate("CN=A", 0), Certificate("CN=B", 0x1C)};
    EXPECT_TRUE(Find());
    EXPECT_THAT(owners_, ElementsAre(L"CN=A", L"CN=B"));
}

TEST_F(FindAllLocalTest, TwoCertificatesOfOneOwnerAreOneLineButLetterCaseTellsOwnersApart) {
    sessions_.certificates = {Certificate("CN=A"), Certificate("CN=B"), Certificate("CN=A"),
                              Certificate("cn=a")};
    EXPECT_TRUE(Find());
    EXPECT_THAT(owners_, ElementsAre(L"CN=A", L"CN=B", L"cn=a"));
}

TEST_F(FindAllLocalTest, AnUnusableCertificateDoesNotHideAUsableOneOfTheSameOwner) {
    sessions_.certificates = {Certificate("CN=A", 0), Certificate("CN=A", 4)};
    EXPECT_TRUE(Find());
    EXPECT_THAT(owners_, ElementsAre(L"CN=A"));
}

TEST_F(FindAllLocalTest, NullAndEmptyOwnersAreOneEmptyText) {
    sessions_.certificates = {ScriptedCertificate{}, Certificate(""), Certificate("CN=A")};
    EXPECT_TRUE(Find());
    EXPECT_THAT(owners_, ElementsAre(L"", L"CN=A"));
}

TEST_F(FindAllLocalTest, BytesAreReadInTheCodePageThoseWithoutMeaningToo) {
    sessions_.certificates = {Certificate("CN=\xC8\xE2\xE0\xED"), Certificate("CN=\x98")};
    EXPECT_TRUE(Find());
    EXPECT_THAT(owners_, ElementsAre(L"CN=\x0418\x0432\x0430\x043D", L"CN=\x0098"));
}

TEST_F(FindAllLocalTest, AFailureIsReportedWithoutTheErrorStack) {
    sessions_.findStatus = kFailure;
    EXPECT_FALSE(Find());
    EXPECT_THAT(owners_, IsEmpty());
    EXPECT_THAT(Boxes(), ElementsAre(Report(L"Searching of all certificate in local store.\r\n"
                                            L"XSIG error 0xE0700001 - Store broken.")));
}

TEST_F(FindAllLocalTest, AFailureIsReportedWithTheErrorStackWhereTheSettingsSaySo) {
    settings_.reportWithContext = 1;
    sessions_.findStatus = kFailure;
    EXPECT_FALSE(Find());
    EXPECT_THAT(Boxes(), ElementsAre(Report(L"Searching of all certificate in local store.\r\n"
                                            L"XSIG error 0xE0700001 - Store broken\r\n"
                                            L"Detail,\r\nfile: f.c, line 7, data: d.")));
}

TEST_F(FindAllLocalTest, ThatNothingWasFoundIsAFailureToo) {
    sessions_.findStatus = provider::kStatusNothingFound;
    EXPECT_FALSE(Find());
    EXPECT_THAT(Boxes(), ElementsAre(Report(L"Searching of all certificate in local store.\r\n"
                                            L"XSIG error 0xE0700046 - Nothing found.")));
}

TEST_F(FindAllLocalTest, StatusesOfEveryFamilyAreFailures) {
    for (const std::uint32_t status : {1U, 0x80070005U, 0xE0000005U, 0xFFFFFFF7U, 0xFFFFFFFFU}) {
        sessions_.findStatus = status;
        EXPECT_FALSE(Find());
    }
    EXPECT_EQ(Boxes().size(), 5U);
    EXPECT_EQ(Boxes()[4].text,
              L"Searching of all certificate in local store.\r\nError 0xFFFFFFFF - Bad parameter.");
}

TEST_F(FindAllLocalTest, TheResultGoesBackAfterASuccessAndAFailureAndIsNotReadThen) {
    sessions_.certificates = {Certificate("CN=A")};
    EXPECT_TRUE(Find());
    sessions_.findStatus = kFailure;
    sessions_.failedSearchesHandOut = true;
    EXPECT_FALSE(Find());
    EXPECT_THAT(owners_, IsEmpty());
    EXPECT_EQ(sessions_.ResultsHandedOut(), 2U);
    EXPECT_EQ(sessions_.ResultsOut(), 0U);
    EXPECT_THAT(sessions_.log, ElementsAre("initialize", "find", "free result", "find", "free result"));
}

TEST_F(FindAllLocalTest, TwentyThousandCertificatesOfTenThousandOwnersAreListedInOrder) {
    for (int i = 0; i < 20'000; ++i) {
        sessions_.certificates.push_back(Certificate("CN=Owner " + std::to_string(i % 10'000)));
    }
    EXPECT_TRUE(Find());
    ASSERT_EQ(owners_.size(), 10'000U);
    EXPECT_EQ(owners_.front(), L"CN=Owner 0");
    EXPECT_EQ(owners_.back(), L"CN=Owner 9999");
}

TEST_F(FindByPatternTest, AsksTheNetworkStoreForRecipients) {
    EXPECT_TRUE(Find());
    EXPECT_THAT(sessions_.Searches(),
                ElementsAre(FindCall{ScriptedSessions::kFirstContext, 0xE04, 4, "CN=Iva*", 0x84, true}));
}

TEST_F(FindByPatternTest, AsksTheNetworkStoreForSigners) {
    settings_.signerMode = 1;
    EXPECT_TRUE(Find(L"CN=\x0418*"));
    EXPECT_THAT(sessions_.Searches(),
                ElementsAre(FindCall{ScriptedSessions::kFirstContext, 0xF04, 4, "CN=\xC8*", 0x84, true}));
}

TEST_F(FindByPatternTest, OnlyTheExactStarBecomesAnAttributePattern) {
    EXPECT_TRUE(Find(L"*"));
    EXPECT_TRUE(Find(L"**"));
    EXPECT_EQ(sessions_.Searches()[0].ownerPattern, "*=*");
    EXPECT_EQ(sessions_.Searches()[1].ownerPattern, "**");
}

TEST_F(FindByPatternTest, ThatNothingWasFoundIsNoFailure) {
    sessions_.findStatus = provider::kStatusNothingFound;
    EXPECT_TRUE(Find());
    EXPECT_THAT(owners_, IsEmpty());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(FindByPatternTest, HasTheUsageAndDuplicateTestsOfTheLocalSearch) {
    sessions_.certificates = {Certificate("CN=A", 0), Certificate("CN=B"), Certificate("CN=B")};
    EXPECT_TRUE(Find());
    EXPECT_THAT(owners_, ElementsAre(L"CN=B"));
    settings_.signerMode = 1;
    EXPECT_TRUE(Find());
    EXPECT_THAT(owners_, ElementsAre(L"CN=A", L"CN=B"));
}

TEST_F(FindByPatternTest, AFailureIsReportedWithThePatternAndAlwaysWithTheErrorStack) {
    sessions_.findStatus = kFailure;
    EXPECT_FALSE(Find(L"*"));
    EXPECT_THAT(owners_, IsEmpty());
    EXPECT_THAT(Boxes(), ElementsAre(Report(L"Searching for certificate *.\r\n"
                                            L"XSIG error 0xE0700001 - Store broken\r\n"
                                            L"Detail,\r\nfile: f.c, line 7, data: d.")));
}

TEST_F(FindByOwnerTest, AsksTheNetworkStoreUnlessTheSettingsForbid) {
    const std::pair<std::pair<int, int>, std::uint32_t> cases[] = {
        {{0, 0}, 4}, {{1, 0}, 0}, {{0, 1}, 0x104}, {{1, 1}, 0x100}};
    for (const auto& [flags, searchFlags] : cases) {
        settings_.notUseDirectory = flags.first;
        settings_.signerMode = flags.second;
        EXPECT_TRUE(Find(L"CN=Ann"));
        EXPECT_EQ(sessions_.Searches().back(),
                  (FindCall{ScriptedSessions::kFirstContext, searchFlags, 4, "CN=Ann", 0x28084, true}));
    }
}

TEST_F(FindByOwnerTest, GivesIssuerAndSerialOfEachCertificate) {
    sessions_.certificates = {
        {"CN=Ann", 4, "CN=First", std::vector<std::uint8_t>{0x0A, 0x1B, 0xFF}},
        {"CN=Ann", 4, "CN=Second", std::vector<std::uint8_t>{0x00}},
    };
    EXPECT_TRUE(Find());
    EXPECT_THAT(issuers_, ElementsAre(L"CN=First", L"CN=Second"));
    EXPECT_THAT(serials_, ElementsAre(L"0A:1B:FF", L"00"));
}

TEST_F(FindByOwnerTest, IgnoresLetterCaseCyrillicIncluded) {
    sessions_.certificates = {Certificate("cn=\xE8\xE2\xE0\xED"), Certificate("CN=\xC8\xC2\xC0\xCD"),
                              Certificate("CN=\xC8\xE2\xE0\xED,C=RU")};
    EXPECT_TRUE(Find(L"CN=\x0418\x0432\x0430\x043D"));
    EXPECT_EQ(issuers_.size(), 2U);
    EXPECT_EQ(serials_.size(), 2U);
    EXPECT_EQ(sessions_.Searches()[0].ownerPattern, "CN=\xC8\xE2\xE0\xED") << "the pattern stays as it is";
}

TEST_F(FindByOwnerTest, ForRecipientsPassesOverCertificatesWithoutEncryption) {
    sessions_.certificates = {Certificate("CN=Ann", 0xE3), Certificate("CN=Ann", 0x10)};
    EXPECT_TRUE(Find());
    EXPECT_EQ(issuers_.size(), 1U);
    settings_.signerMode = 1;
    EXPECT_TRUE(Find());
    EXPECT_EQ(issuers_.size(), 2U);
}

TEST_F(FindByOwnerTest, CertificatesWithoutSerialOrIssuerStayParallel) {
    sessions_.certificates = {{"CN=Ann", 4, std::nullopt, std::nullopt},
                              {"CN=Ann", 4, "CN=Z", std::vector<std::uint8_t>{}}};
    EXPECT_TRUE(Find());
    EXPECT_THAT(issuers_, ElementsAre(L"", L"CN=Z"));
    EXPECT_THAT(serials_, ElementsAre(L"", L""));
}

TEST_F(FindByOwnerTest, IsTrueWhenNothingMatched) {
    sessions_.certificates = {Certificate("CN=Bob"), ScriptedCertificate{}};
    EXPECT_TRUE(Find());
    EXPECT_THAT(issuers_, IsEmpty());
    EXPECT_THAT(serials_, IsEmpty());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(FindByOwnerTest, AFailureIsReportedWithTheOwner) {
    sessions_.findStatus = kFailure;
    EXPECT_FALSE(Find());
    EXPECT_THAT(issuers_, IsEmpty());
    EXPECT_THAT(serials_, IsEmpty());
    settings_.reportWithContext = 1;
    EXPECT_FALSE(Find());
    EXPECT_THAT(Boxes(), ElementsAre(Report(L"Searching for certificate CN=Ann.\r\n"
                                            L"XSIG error 0xE0700001 - Store broken."),
                                     Report(L"Searching for certificate CN=Ann.\r\n"
                                            L"XSIG error 0xE0700001 - Store broken\r\n"
                                            L"Detail,\r\nfile: f.c, line 7, data: d.")));
}

TEST_F(FindByOwnerTest, ThatNothingWasFoundIsAFailureToo) {
    sessions_.findStatus = provider::kStatusNothingFound;
    EXPECT_FALSE(Find());
    EXPECT_EQ(Boxes().size(), 1U);
}

}  // namespace
}  // namespace corvane::test
