#include "toolkit/row_search.h"

#include <gtest/gtest.h>

#include <string_view>

namespace toolkit {
namespace {

// The first row found of those that are marked with an x.
int Find(std::string_view rows, int start, bool wraps) {
    return FirstRowFound(rows.size(), start, wraps, [rows](std::size_t row) { return rows.at(row) == 'x'; });
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
    EXPECT_EQ(FirstRowFound(4, 2, true,
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

}  // namespace
}  // namespace toolkit
