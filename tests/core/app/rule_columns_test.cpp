#include "app/rule_columns.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "app/rule_row.h"

namespace corvane::testing {
namespace {

using ::testing::ElementsAre;

TEST(RuleColumns, AreInsertedFromTheLastToTheFirst) {
    EXPECT_THAT(RuleColumnInsertionOrder(),
                ElementsAre(L"Extra", L"CS profile", L"Masks", L"Error folder", L"Output folder",
                            L"Input folder", L"Rules", L"Description", L""));
}

TEST(RuleColumns, StandInTheReverseOrderOfTheirInsertion) {
    TextList titles;
    const TextList inserted = RuleColumnInsertionOrder();
    for (std::size_t column = 0; column < kRuleColumnCount; ++column) {
        titles.push_back(ColumnTitle(inserted, column));
    }
    EXPECT_THAT(titles, ElementsAre(L"", L"Description", L"Rules", L"Input folder", L"Output folder",
                                    L"Error folder", L"Masks", L"CS profile", L"Extra"));
}

TEST(RuleColumns, TheNumberColumnHasNoTitle) {
    EXPECT_EQ(ColumnTitle(RuleColumnInsertionOrder(), kNumberColumn), L"");
}

TEST(RuleColumns, TheTitleOfNoColumnIsAFault) {
    EXPECT_THROW((void)ColumnTitle(RuleColumnInsertionOrder(), kRuleColumnCount), std::invalid_argument);
    EXPECT_THROW((void)ColumnTitle({L"Extra"}, 8), std::invalid_argument);
    EXPECT_THROW((void)ColumnTitle({}, 0), std::invalid_argument);
}

TEST(LayOutRuleColumns, SharesTheWidthAfterTheNumberColumnAmongEight) {
    EXPECT_EQ(LayOutRuleColumns(851, 17, false), (RuleColumnWidths{.number = 51, .other = 100}));
}

TEST(LayOutRuleColumns, TheFirstTimeLeavesRoomForTheScrollBar) {
    EXPECT_EQ(LayOutRuleColumns(868, 17, true), (RuleColumnWidths{.number = 51, .other = 100}));
    EXPECT_EQ(LayOutRuleColumns(867, 17, true), (RuleColumnWidths{.number = 51, .other = 99}));
}

TEST(LayOutRuleColumns, DividesWholePixels) {
    EXPECT_EQ(LayOutRuleColumns(858, 17, false).other, 100);
    EXPECT_EQ(LayOutRuleColumns(859, 17, false).other, 101);
}

TEST(LayOutRuleColumns, AListTooNarrowForTheNumberColumnHasColumnsWithoutWidth) {
    EXPECT_EQ(LayOutRuleColumns(20, 17, false), (RuleColumnWidths{.number = 51, .other = 0}));
    EXPECT_EQ(LayOutRuleColumns(0, 17, true), (RuleColumnWidths{.number = 51, .other = 0}));
}

TEST(LayOutProfileColumn, TakesTheWholeWidthButTheFirstTimeForTheScrollBar) {
    EXPECT_EQ(LayOutProfileColumn(190, 17, true), 173);
    EXPECT_EQ(LayOutProfileColumn(190, 17, false), 190);
    EXPECT_EQ(LayOutProfileColumn(10, 17, true), 0);
}

}  // namespace
}  // namespace corvane::testing
