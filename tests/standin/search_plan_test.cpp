#include "standin/search_plan.h"

#include <gtest/gtest.h>

namespace corvane::standin {
namespace {

constexpr std::uint32_t kOpenedWithNetwork = 0x80000040;

bool IncludesNetwork(std::uint32_t searchFlags, std::uint32_t openFlags = kOpenedWithNetwork) {
    provider::CertQuery query;
    query.searchFlags = searchFlags;
    return PlanSearch(query, openFlags).includesNetwork;
}

PatternUse UseOf(const char* pattern, std::uint32_t matchMode) {
    provider::CertQuery query;
    query.ownerPattern = pattern;
    query.matchMode = matchMode;
    return PlanSearch(query, kOpenedWithNetwork).patternUse;
}

TEST(PlanSearch, ASearchWithoutTheNetworkBitStaysLocal) {
    EXPECT_FALSE(IncludesNetwork(0));
    EXPECT_FALSE(IncludesNetwork(0x100));
}

TEST(PlanSearch, ASearchWithTheNetworkBitSearchesTheNetworkStoreToo) {
    EXPECT_TRUE(IncludesNetwork(0x4));
    EXPECT_TRUE(IncludesNetwork(0x104));
    EXPECT_TRUE(IncludesNetwork(0xE04));
    EXPECT_TRUE(IncludesNetwork(0xF04));
}

TEST(PlanSearch, AContextOpenedWithoutTheNetworkStoreNeverSearchesIt) {
    EXPECT_FALSE(IncludesNetwork(0xE04, kOpenedWithNetwork | 0x4));
}

TEST(PlanSearch, OnlyMatchModeFourMakesThePatternAWildcardPattern) {
    EXPECT_EQ(UseOf("CN=Iva*", 4), PatternUse::kWildcard);
    EXPECT_EQ(UseOf("CN=QQQ,C=RU", 0), PatternUse::kVerbatim);
    EXPECT_EQ(UseOf(nullptr, 4), PatternUse::kNone);
    EXPECT_EQ(UseOf("", 4), PatternUse::kNone);
}

TEST(PlanSearch, TheWantedFieldsAreTheirBits) {
    provider::CertQuery query;
    query.fieldsWanted = 0x84;
    const SearchPlan list = PlanSearch(query, kOpenedWithNetwork);
    EXPECT_TRUE(list.wantsOwner && list.wantsUsage && !list.wantsIssuer && !list.wantsSerial);
    query.fieldsWanted = 0x28084;
    const SearchPlan full = PlanSearch(query, kOpenedWithNetwork);
    EXPECT_TRUE(full.wantsOwner && full.wantsUsage && full.wantsIssuer && full.wantsSerial);
    query.fieldsWanted = 4;
    const SearchPlan probe = PlanSearch(query, kOpenedWithNetwork);
    EXPECT_TRUE(probe.wantsOwner && !probe.wantsUsage && !probe.wantsIssuer && !probe.wantsSerial);
}

}  // namespace
}  // namespace corvane::standin
