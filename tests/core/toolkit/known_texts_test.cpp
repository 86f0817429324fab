#include "toolkit/known_texts.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "toolkit/format_text.h"

namespace toolkit::testing {
namespace {

TEST(KnownTexts, ComeInTheOrderOfArrival) {
    KnownTexts known;
    EXPECT_TRUE(known.Add(L"CN=Bell"));
    EXPECT_TRUE(known.Add(L"CN=Adam"));
    EXPECT_EQ(known.NumberOf(L"CN=Bell"), 0U);
    EXPECT_EQ(known.NumberOf(L"CN=Adam"), 1U);
}

TEST(KnownTexts, ATextThatIsMetAgainKeepsItsNumber) {
    KnownTexts known;
    known.Add(L"first");
    known.Add(L"second");
    EXPECT_FALSE(known.Add(std::wstring(L"first")));
    EXPECT_EQ(known.NumberOf(L"first"), 0U);
    EXPECT_TRUE(known.Add(L"third"));
    EXPECT_EQ(known.NumberOf(L"third"), 2U);
}

TEST(KnownTexts, LetterCaseTellsTextsApart) {
    KnownTexts known;
    known.Add(L"a");
    EXPECT_FALSE(known.Contains(L"A"));
    EXPECT_TRUE(known.Add(L"A"));
    EXPECT_EQ(known.NumberOf(L"A"), 1U);
}

TEST(KnownTexts, ATextThatWasNeverAddedHasNone) {
    KnownTexts known;
    EXPECT_EQ(known.NumberOf(L"a"), std::nullopt);
    EXPECT_EQ(known.NumberOf(L""), std::nullopt);
    known.Add(L"ab");
    EXPECT_EQ(known.NumberOf(L"a"), std::nullopt);
    EXPECT_EQ(known.NumberOf(L"abc"), std::nullopt);
}

TEST(KnownTexts, TheEmptyTextIsATextLikeAnyOther) {
    KnownTexts known;
    EXPECT_TRUE(known.Add(L""));
    EXPECT_FALSE(known.Add(std::wstring()));
    EXPECT_EQ(known.NumberOf(L""), 0U);
}

// However many were expected: none of them, some, all.
class ManyKnownTexts : public ::testing::TestWithParam<std::size_t> {};

TEST_P(ManyKnownTexts, AreAllKeptApartAndFoundAgain) {
    constexpr std::int32_t kCount = 20000;
    std::vector<std::wstring> texts;
    for (std::int32_t i = 0; i < kCount; ++i) {
        texts.push_back(FormatText(L"CN=Owner %d,OU=Settlement,O=Northgate,C=GB", {i}));
    }
    KnownTexts known(GetParam());
    for (const std::wstring& text : texts) {
        ASSERT_TRUE(known.Add(text));
    }
    for (std::size_t i = 0; i < texts.size(); ++i) {
        ASSERT_FALSE(known.Add(texts[i]));
        ASSERT_EQ(known.NumberOf(texts[i]), i);
    }
    EXPECT_FALSE(known.Contains(L"CN=Owner 20000,OU=Settlement,O=Northgate,C=GB"));
}

INSTANTIATE_TEST_SUITE_P(Expected, ManyKnownTexts, ::testing::Values(0, 1, 7, 8, 9, 10000, 20000));

}  // namespace
}  // namespace toolkit::testing
