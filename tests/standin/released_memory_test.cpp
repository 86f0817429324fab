#include <gmock/gmock.h>

#include <array>

#include "tests/standin/session_fixture.h"

namespace corvane::standin {
namespace {

TEST(FreeMem, ATextIsReleasedOnce) {
    const FakeSystem system;
    StandInProvider provider(system);
    provider::ProviderContext context = 0;
    ASSERT_EQ(provider.Initialize("Nobody", 0, &context), kStatusUnknownCsProfile);
    provider::XsigBlob text;
    provider::XsigBlob file;
    provider::XsigBlob data;
    std::uint32_t line = 0;
    ASSERT_EQ(provider.GetErrorLine(0, &text, &file, &line, &data), kStatusOk);
    EXPECT_EQ(text.data[text.length], '\0') << "texts are ended by NUL, although their length is told";
    EXPECT_EQ(provider.HandedOutCount(), 3U);
    EXPECT_EQ(provider.FreeMem(0, text.data), kStatusOk);
    EXPECT_EQ(provider.FreeMem(0, text.data), kStatusForeignMemory);
    EXPECT_EQ(provider.FreeMem(0, file.data), kStatusOk);
    EXPECT_EQ(provider.FreeMem(0, data.data), kStatusOk);
    EXPECT_EQ(provider.HandedOutCount(), 0U);
}

TEST(FreeMem, AForeignPointerIsRefused) {
    const FakeSystem system;
    StandInProvider provider(system);
    std::array<char, 4> foreign = {};
    EXPECT_EQ(provider.FreeMem(0, foreign.data()), kStatusForeignMemory);
    EXPECT_EQ(provider.FreeMem(0, nullptr), kStatusOk);
    EXPECT_EQ(provider.FreeMem(12345, foreign.data()), kStatusUnknownContext);
}

TEST(GetErrorLine, NullArgumentsTakeNothingOffTheStack) {
    const FakeSystem system;
    StandInProvider provider(system);
    provider::ProviderContext context = 0;
    ASSERT_EQ(provider.Initialize("Nobody", 0, &context), kStatusUnknownCsProfile);
    provider::XsigBlob blob;
    std::uint32_t line = 0;
    EXPECT_EQ(provider.GetErrorLine(0, nullptr, &blob, &line, &blob), 0xFFFFFFFEU);
    EXPECT_EQ(PopErrors(provider, 0).size(), 2U);
}

TEST(FreeFindResult, AResultIsReleasedAndEmptied) {
    FakeSystem system;
    system.local = {CertificateOf(L"Helen Marsh", L"Northgate", {1})};
    Session session(system);
    provider::CertQuery query;
    query.fieldsWanted = kCertificateFields;
    provider::CertFindResult result;
    ASSERT_EQ(session.provider.FindCert(session.context, &query, &result), kStatusOk);
    const provider::CertFindResult copy = result;
    EXPECT_EQ(session.provider.HandedOutCount(), 1U);
    EXPECT_EQ(session.provider.FreeFindResult(session.context, &result), kStatusOk);
    EXPECT_EQ(result.count, 0U);
    EXPECT_EQ(result.entries, nullptr);
    EXPECT_EQ(session.provider.HandedOutCount(), 0U);
    EXPECT_EQ(session.provider.FreeFindResult(session.context, &result), kStatusOk) << "an empty result";
    provider::CertFindResult stale = copy;
    EXPECT_EQ(session.provider.FreeFindResult(session.context, &stale), kStatusForeignMemory);
}

TEST(FreeFindResult, AForeignResultIsRefused) {
    const FakeSystem system;
    Session session(system);
    provider::CertEntry foreign;
    provider::CertFindResult result = {1, &foreign};
    EXPECT_EQ(session.provider.FreeFindResult(session.context, &result), kStatusForeignMemory);
    EXPECT_EQ(session.provider.FreeFindResult(session.context, nullptr), 0xFFFFFFFEU);
    EXPECT_EQ(session.provider.FreeFindResult(0, &result), kStatusUnknownContext);
}

TEST(FreeFindResult, ReleasingAResultLeavesTheErrorStackForItsReader) {
    FakeSystem system;
    system.network.reset();
    Session session(system);
    provider::CertQuery query;
    query.searchFlags = 0xE04;
    provider::CertFindResult result;
    ASSERT_EQ(session.provider.FindCert(session.context, &query, &result), kStatusNetworkStoreSilent);
    EXPECT_EQ(session.provider.FreeFindResult(session.context, &result), kStatusOk);
    EXPECT_EQ(PopErrors(session.provider, session.context).size(), 2U);
}

TEST(ErrorStack, ASearchDoesNotShowTheErrorsOfTheOneBefore) {
    FakeSystem system;
    system.network.reset();
    Session session(system);
    EXPECT_EQ(session.Search(0xE04, "*=*"), kStatusNetworkStoreSilent);
    EXPECT_EQ(session.Search(0, nullptr), provider::kStatusNothingFound);
    EXPECT_TRUE(PopErrors(session.provider, session.context).empty());
}

}  // namespace
}  // namespace corvane::standin
