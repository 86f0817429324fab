#include "store/registry/load_configuration.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

#include "tests/kit/fakes/registry_snapshot.h"
#include "toolkit/text/format_text.h"

namespace corvane::test {
namespace {

store::TextList Ordered(store::TextList names) {
    store::OrderRuleKeys(names);
    return names;
}

std::int32_t LiteralNumber(const std::wstring& name) {
    std::wstring digits = name;
    for (std::size_t position = 0; position < name.size(); ++position) {
        if (name[position] == L' ') {
            digits = name.substr(position + 1);
        }
    }
    return toolkit::ParseDecimal(digits);
}

// The order, spelled out: n - 2 passes of adjacent exchanges, each from the first pair to the last.
void LiteralPasses(store::TextList& names) {
    for (std::size_t pass = 0; pass + 2 < names.size(); ++pass) {
        for (std::size_t left = 0; left + 1 < names.size(); ++left) {
            if (LiteralNumber(names[left]) > LiteralNumber(names[left + 1])) {
                std::swap(names[left], names[left + 1]);
            }
        }
    }
}

TEST(OrderRuleKeys, IsByNumberNotByText) {
    EXPECT_EQ(Ordered({L"Rule 0", L"Rule 1", L"Rule 10", L"Rule 11", L"Rule 2"}),
              (store::TextList{L"Rule 0", L"Rule 1", L"Rule 2", L"Rule 10", L"Rule 11"}));
}

TEST(OrderRuleKeys, FewerThanThreeNamesStayAsTheyAre) {
    EXPECT_EQ(Ordered({}), store::TextList{});
    EXPECT_EQ(Ordered({L"Rule 1"}), store::TextList{L"Rule 1"});
    EXPECT_EQ(Ordered({L"Rule 1", L"Rule 0"}), (store::TextList{L"Rule 1", L"Rule 0"}));
}

TEST(OrderRuleKeys, ALastNameSmallerThanAllOthersDeliberatelyComesSecond) {
    EXPECT_EQ(Ordered({L"Rule 3", L"Rule 1", L"Rule 2", L"Rule 0"}),
              (store::TextList{L"Rule 1", L"Rule 0", L"Rule 2", L"Rule 3"}));
    EXPECT_EQ(Ordered({L"Rule 5", L"Rule 5", L"Rule 4"}), (store::TextList{L"Rule 5", L"Rule 4", L"Rule 5"}));
}

TEST(OrderRuleKeys, ALastNameThatSharesTheSmallestNumberComesBehindTheOther) {
    EXPECT_EQ(Ordered({L"b 7", L"first 0", L"last 0"}), (store::TextList{L"first 0", L"last 0", L"b 7"}));
}

TEST(OrderRuleKeys, NamesOfEqualNumbersKeepTheirOrder) {
    EXPECT_EQ(Ordered({L"x 2", L"b 1", L"a 1", L"c 1", L"y 2"}),
              (store::TextList{L"b 1", L"a 1", L"c 1", L"x 2", L"y 2"}));
}

TEST(OrderRuleKeys, TheNumberStandsBehindTheLastBlank) {
    EXPECT_EQ(Ordered({L"Rule 9 1", L"Rule 1 9", L"Rule 5"}),
              (store::TextList{L"Rule 9 1", L"Rule 5", L"Rule 1 9"}));
}

TEST(OrderRuleKeys, WithoutABlankTheWholeTextIsTheNumber) {
    EXPECT_EQ(Ordered({L"30", L"Rule 20", L"10"}), (store::TextList{L"Rule 20", L"10", L"30"}));
    EXPECT_EQ(Ordered({L"30", L"10", L"Rule 20"}), (store::TextList{L"10", L"Rule 20", L"30"}));
}

TEST(OrderRuleKeys, WithoutANumberItIsZero) {
    EXPECT_EQ(Ordered({L"Rule 1", L"Rule ", L"Rule x", L"Rule 2", L"copy"}),
              (store::TextList{L"Rule ", L"Rule x", L"copy", L"Rule 1", L"Rule 2"}));
}

TEST(OrderRuleKeys, ConversionStopsAtTheFirstNonDigitAndKeepsTheSign) {
    EXPECT_EQ(Ordered({L"Rule 3x", L"Rule -4", L"Rule +1", L"Rule 2"}),
              (store::TextList{L"Rule -4", L"Rule +1", L"Rule 2", L"Rule 3x"}));
}

TEST(OrderRuleKeys, NumbersAtBothEndsOfTheRangeDoNotOverflow) {
    EXPECT_EQ(Ordered({L"a 2147483647", L"b -2147483648", L"c 0", L"d 99999999999"}),
              (store::TextList{L"b -2147483648", L"c 0", L"a 2147483647", L"d 99999999999"}));
}

TEST(OrderRuleKeys, IsThatOfTheLiteralPassesForRandomNames) {
    std::mt19937 random(20260117);
    for (int round = 0; round < 4000; ++round) {
        const std::size_t count = random() % 12;
        const std::uint32_t range = 1 + random() % 14;
        // Numbers that lie close together, and numbers that lie far apart.
        const int distance = round % 2 == 0 ? 1 : 1000003;
        store::TextList names;
        for (std::size_t index = 0; index < count; ++index) {
            // The text in front tells names of equal numbers apart.
            names.push_back(std::to_wstring(index) + L" " +
                            std::to_wstring(distance * (static_cast<int>(random() % range) - 2)));
        }
        store::TextList expected = names;
        LiteralPasses(expected);
        ASSERT_EQ(Ordered(names), expected) << "round " << round;
    }
}

}  // namespace
}  // namespace corvane::test
