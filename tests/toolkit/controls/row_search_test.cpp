#include "toolkit/controls/row_search.h"

#include <gtest/gtest.h>

#include <optional>
#include <string_view>

namespace corvane::test {
namespace {

// The first row found of those that are marked with an x.
int Find(std::string_view rows, int start, bool wraps) {
    return toolkit::FirstRowFound(rows.size(), start, wraps,
                                  [rows](std::size_t row) { return rows.at(row) == 'x'; });
}

TEST(FirstRowFound, IsTheFirstFromTheStartOn) {
    EXPECT_EQ(Find("x-x-x", 0, false), 0);
    EXPECT_EQ(Find("x-x-x", 1, false), 2);
}

TEST(FirstRowFound, TheStartItselfCounts) {
    EXPECT_EQ(Find("x-x-x", 2, false), 2);
}

TEST(FirstRowFound, WithoutAWrapTheRowsBeforeTheStartAreNotLookedAt) {
    EXPECT_EQ(Find("x----", 1, false), -1);
}

TEST(FirstRowFound, AWrapGoesOnFromTheFirstRow) {
    EXPECT_EQ(Find("-x--", 2, true), 1);
    EXPECT_EQ(Find("x--x", 2, true), 3) << "the rows from the start on come first";
}

TEST(FirstRowFound, AWrapPassesEachRowOnce) {
    int asked = 0;
    EXPECT_EQ(toolkit::FirstRowFound(4, 2, true,
                                     [&asked](std::size_t) {
                                         ++asked;
                                         return false;
                                     }),
              -1);
    EXPECT_EQ(asked, 4);
}

TEST(FirstRowFound, AStartBeforeAllRowsIsTheFirstOne) {
    EXPECT_EQ(Find("-x", -1, false), 1);
}

TEST(FirstRowFound, AStartBehindAllRowsFindsNothingButByAWrap) {
    EXPECT_EQ(Find("x-", 7, false), -1);
    EXPECT_EQ(Find("-x", 7, true), 1);
}

TEST(FirstRowFound, AmongNoRowsThereIsNone) {
    EXPECT_EQ(Find("", 0, true), -1);
}

constexpr unsigned kByText = 0x2;
constexpr unsigned kBySubstring = 0x4;
constexpr unsigned kByBeginning = 0x8;
constexpr unsigned kWraps = 0x20;

std::optional<toolkit::RowSearch> Typed(unsigned flags) {
    return toolkit::RowSearchFor({.flags = flags, .start = 3, .after = std::nullopt});
}
std::optional<toolkit::RowSearch> ByMessage(unsigned flags) {
    return toolkit::RowSearchFor({.flags = flags, .start = 3, .after = 2});
}

TEST(RowSearchFor, TypedLettersAreABeginningAndWrapWhateverTheirFlagsSay) {
    for (const unsigned flags : {kByText, kByBeginning, kBySubstring, kByText | kByBeginning,
                                 kByText | kBySubstring, kWraps, kByText | kWraps, kByBeginning | kWraps,
                                 kBySubstring | kWraps, kByText | kByBeginning | kBySubstring | kWraps, 0U}) {
        const std::optional<toolkit::RowSearch> search = Typed(flags);
        ASSERT_TRUE(search) << flags;
        EXPECT_TRUE(search->isBeginningEnough) << flags;
        EXPECT_TRUE(search->wraps) << flags;
        EXPECT_EQ(search->start, 3) << flags;
    }
}

TEST(RowSearchFor, AMessageForATextWantsTheWholeOfIt) {
    for (const unsigned flags : {kByText, kWraps, kByText | kWraps}) {
        const std::optional<toolkit::RowSearch> search = ByMessage(flags);
        ASSERT_TRUE(search) << flags;
        EXPECT_FALSE(search->isBeginningEnough) << flags;
        EXPECT_EQ(search->wraps, (flags & kWraps) != 0) << flags;
    }
}

TEST(RowSearchFor, AMessageForABeginningSaysSoInEitherWay) {
    for (const unsigned flags : {kByBeginning, kBySubstring, kByText | kByBeginning, kByText | kBySubstring,
                                 kBySubstring | kWraps}) {
        const std::optional<toolkit::RowSearch> search = ByMessage(flags);
        ASSERT_TRUE(search) << flags;
        EXPECT_TRUE(search->isBeginningEnough) << flags;
        EXPECT_EQ(search->wraps, (flags & kWraps) != 0) << flags;
    }
}

TEST(RowSearchFor, AMessageWithoutFlagsAsksForNothing) {
    EXPECT_FALSE(ByMessage(0));
}

TEST(RowSearchFor, AParameterOrAPlaceIsNoText) {
    constexpr unsigned kByParameter = 0x1;
    constexpr unsigned kByPosition = 0x40;
    for (const unsigned flags : {kByParameter, kByPosition}) {
        EXPECT_FALSE(Typed(flags)) << flags;
        EXPECT_FALSE(ByMessage(flags | kByText | kWraps)) << flags;
    }
}

TEST(RowSearchFor, AMessageBeginsBehindItsRowWhicheverOfTheTwoIsNamed) {
    EXPECT_EQ(toolkit::RowSearchFor({.flags = kByText, .start = 5, .after = 4})->start, 5);
    EXPECT_EQ(toolkit::RowSearchFor({.flags = kByText, .start = 4, .after = 4})->start, 5);
    EXPECT_EQ(toolkit::RowSearchFor({.flags = kByText, .start = -1, .after = -1})->start, 0);
    EXPECT_EQ(toolkit::RowSearchFor({.flags = kByText, .start = 0, .after = -1})->start, 0);
}

}  // namespace
}  // namespace corvane::test
