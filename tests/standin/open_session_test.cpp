#include <gmock/gmock.h>

#include <array>

#include "tests/standin/session_fixture.h"

namespace corvane::standin {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(Initialize, AContextNeedsMoreThanThirtyTwoBits) {
    const FakeSystem system;
    const Session session(system);
    EXPECT_GT(session.context, 0xFFFFFFFFU);
}

TEST(Initialize, TwoContextsAreTwo) {
    const FakeSystem system;
    Session session(system);
    provider::ProviderContext second = 0;
    ASSERT_EQ(session.provider.Initialize("Clearing", 0, &second), kStatusOk);
    EXPECT_NE(second, session.context);
    EXPECT_EQ(session.provider.Uninitialize(second), kStatusOk);
    EXPECT_EQ(session.Search(0, nullptr), provider::kStatusNothingFound);
}

TEST(Initialize, AnUnknownCsProfileFailsAndSaysSoInTheStackOfContextZero) {
    const FakeSystem system;
    StandInProvider provider(system);
    provider::ProviderContext context = 77;
    EXPECT_EQ(provider.Initialize("Nobody", 0, &context), kStatusUnknownCsProfile);
    EXPECT_EQ(context, 0U);
    EXPECT_THAT(PopErrors(provider, 0),
                ElementsAre("The cryptocontext cannot be opened|Nobody",
                            "The name is not in the catalogue of CS profiles|Nobody"));
    EXPECT_THAT(PopErrors(provider, 0), IsEmpty());
}

TEST(Initialize, ASuccessLeavesTheStackOfContextZeroEmpty) {
    const FakeSystem system;
    StandInProvider provider(system);
    provider::ProviderContext context = 0;
    ASSERT_EQ(provider.Initialize("Nobody", 0, &context), kStatusUnknownCsProfile);
    ASSERT_EQ(provider.Initialize("Clearing", 0, &context), kStatusOk);
    EXPECT_THAT(PopErrors(provider, 0), IsEmpty());
}

TEST(Initialize, ALocalStoreThatCannotBeReadFailsIt) {
    FakeSystem system;
    system.local.reset();
    StandInProvider provider(system);
    provider::ProviderContext context = 77;
    EXPECT_EQ(provider.Initialize("Clearing", 0, &context), kStatusLocalStoreClosed);
    EXPECT_EQ(context, 0U);
    EXPECT_THAT(PopErrors(provider, 0), ElementsAre("The local certificate store cannot be read|Clearing"));
}

TEST(Initialize, NullArgumentsAreRefused) {
    const FakeSystem system;
    StandInProvider provider(system);
    provider::ProviderContext context = 77;
    EXPECT_EQ(provider.Initialize(nullptr, 0, &context), 0xFFFFFFFFU);
    EXPECT_EQ(context, 0U);
    EXPECT_EQ(provider.Initialize("Clearing", 0, nullptr), 0xFFFFFFFDU);
}

TEST(Uninitialize, AContextIsClosedOnce) {
    const FakeSystem system;
    Session session(system);
    EXPECT_EQ(session.provider.Uninitialize(session.context), kStatusOk);
    EXPECT_EQ(session.provider.Uninitialize(session.context), kStatusUnknownContext);
    EXPECT_EQ(session.provider.Uninitialize(0), kStatusUnknownContext);
}

TEST(Uninitialize, AClosedContextServesNothing) {
    const FakeSystem system;
    Session session(system);
    ASSERT_EQ(session.provider.Uninitialize(session.context), kStatusOk);
    provider::CertQuery query;
    provider::CertFindResult result;
    result.count = 5;
    EXPECT_EQ(session.provider.FindCert(session.context, &query, &result), kStatusUnknownContext);
    EXPECT_EQ(result.count, 0U);
    EXPECT_EQ(session.provider.Control(session.context, 4, nullptr), kStatusUnknownContext);
    provider::XsigBlob blob;
    std::uint32_t line = 0;
    EXPECT_EQ(session.provider.GetErrorLine(session.context, &blob, &blob, &line, &blob),
              kStatusUnknownContext);
}

TEST(GetErrorText, EveryStatusOfTheLibraryHasAText) {
    for (const std::uint32_t status :
         {kStatusOk, kStatusOutOfMemory, kStatusUnexpected, kStatusUnknownCsProfile, kStatusUnknownContext,
          kStatusUnknownControlCode, kStatusForeignMemory, kStatusStackEmpty, kStatusLocalStoreClosed,
          kStatusNetworkStoreSilent, provider::kStatusNothingFound, kStatusDistributionPointSilent,
          kStatusRevocationListRefused}) {
        std::array<char, 1024> buffer = {};
        EXPECT_NE(StandInProvider::GetErrorText(status, buffer.data(), buffer.size()), 0U) << status;
        EXPECT_STRNE(buffer.data(), "") << status;
    }
}

TEST(GetErrorText, AStatusOfSomebodyElseHasNone) {
    std::array<char, 16> buffer = {'x'};
    EXPECT_EQ(StandInProvider::GetErrorText(0xE0000005, buffer.data(), buffer.size()), 0U);
    EXPECT_STREQ(buffer.data(), "");
}

TEST(GetErrorText, ATextIsCutAtTheCapacity) {
    std::array<char, 4> buffer = {'x', 'x', 'x', 'x'};
    EXPECT_NE(StandInProvider::GetErrorText(provider::kStatusNothingFound, buffer.data(), 3), 0U);
    EXPECT_STREQ(buffer.data(), "No");
    EXPECT_EQ(buffer[3], 'x');
    EXPECT_EQ(StandInProvider::GetErrorText(provider::kStatusNothingFound, buffer.data(), 0), 0U);
    EXPECT_EQ(StandInProvider::GetErrorText(provider::kStatusNothingFound, nullptr, 9), 0U);
}

}  // namespace
}  // namespace corvane::standin
