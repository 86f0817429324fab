#include "standin/name_pattern.h"

#include <gtest/gtest.h>

namespace corvane::standin {
namespace {

const ComparableName kIvanova = {L"CN=IVANOVA MARIA,OU=SALES,OU=HEAD OFFICE,O=VALE, SON AND PARTNERS,C=RU",
                                 {{L"CN", L"IVANOVA MARIA"},
                                  {L"OU", L"SALES"},
                                  {L"OU", L"HEAD OFFICE"},
                                  {L"O", L"VALE, SON AND PARTNERS"},
                                  {L"C", L"RU"}}};

bool Matches(std::wstring pattern) {
    return NamePattern(std::move(pattern)).Matches(kIvanova);
}

TEST(WildcardMatches, AStarStandsForAnyCharactersNoneIncluded) {
    EXPECT_TRUE(WildcardMatches(L"ABC", L"ABC*"));
    EXPECT_TRUE(WildcardMatches(L"ABC", L"*ABC"));
    EXPECT_TRUE(WildcardMatches(L"ABC", L"A**C"));
    EXPECT_TRUE(WildcardMatches(L"ABCABD", L"A*B*D"));
    EXPECT_TRUE(WildcardMatches(L"", L"*"));
    EXPECT_FALSE(WildcardMatches(L"ABC", L"A*D"));
    EXPECT_FALSE(WildcardMatches(L"ABC", L"B*"));
    EXPECT_FALSE(WildcardMatches(L"ABC", L""));
    EXPECT_TRUE(WildcardMatches(L"", L""));
}

TEST(WildcardMatches, NoOtherCharacterIsSpecial) {
    EXPECT_FALSE(WildcardMatches(L"ABC", L"A?C"));
    EXPECT_TRUE(WildcardMatches(L"A?C", L"A?C"));
}

TEST(WildcardMatches, ManyStarsTakeNoExponentialTime) {
    std::wstring pattern;
    for (int star = 0; star < 1000; ++star) {
        pattern += L"*A";
    }
    EXPECT_FALSE(WildcardMatches(std::wstring(5000, L'A'), pattern + L"B"));
}

TEST(NamePattern, AnAttributeIsFoundWhereverItStands) {
    EXPECT_TRUE(Matches(L"CN=IVA*"));
    EXPECT_TRUE(Matches(L"C=RU"));
    EXPECT_TRUE(Matches(L"OU=HEAD*"));
    EXPECT_TRUE(Matches(L"OU=SALES"));
    EXPECT_TRUE(Matches(L"O=VALE*"));
}

TEST(NamePattern, ASampleWithoutStarIsTheWholeValue) {
    EXPECT_FALSE(Matches(L"CN=IVA"));
    EXPECT_FALSE(Matches(L"OU=HEAD"));
}

TEST(NamePattern, ASampleDoesNotReachBeyondItsAttribute) {
    EXPECT_FALSE(Matches(L"OU=*RU"));
    EXPECT_FALSE(Matches(L"N=IVA*"));
}

TEST(NamePattern, EveryPartOfAListMustBeMet) {
    EXPECT_TRUE(Matches(L"C=RU,CN=IVA*"));
    EXPECT_TRUE(Matches(L"OU=HEAD*,OU=SALES"));
    EXPECT_FALSE(Matches(L"C=GB,CN=IVA*"));
    EXPECT_FALSE(Matches(L"CN=QQQ,C=RU"));
}

TEST(NamePattern, AValueMayHoldCommas) {
    EXPECT_TRUE(Matches(L"O=VALE, SON AND PARTNERS,C=RU"));
    EXPECT_TRUE(Matches(L"O=VALE, SON*"));
}

TEST(NamePattern, TheWholeOwnerTextFindsItsOwner) {
    EXPECT_TRUE(Matches(kIvanova.text));
    EXPECT_FALSE(Matches(kIvanova.text + L",C=GB"));
}

TEST(NamePattern, ASampleForTheEntireNameIsComparedWithTheWholeText) {
    EXPECT_TRUE(Matches(L"*MARIA*"));
    EXPECT_FALSE(Matches(L"MARIA"));
    EXPECT_TRUE(Matches(L"*=*"));
}

TEST(NamePattern, AnEmptyNameIsFoundByNothingButAStar) {
    EXPECT_FALSE(NamePattern(L"*=*").Matches({}));
    EXPECT_FALSE(NamePattern(L"CN=*").Matches({}));
    EXPECT_TRUE(NamePattern(L"*").Matches({}));
}

}  // namespace
}  // namespace corvane::standin
