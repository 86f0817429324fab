#include "app/rule_list/rule_row.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

TEST(RuleColumns, AreInsertedFromTheLastToTheFirst) {
    EXPECT_THAT(app::RuleColumnInsertionOrder(),
                ElementsAre(L"Extra", L"CS profile", L"Masks", L"Error folder", L"Output folder",
                            L"Input folder", L"Rules", L"Description", L""));
}

TEST(RuleColumns, StandInTheReverseOrderOfTheirInsertion) {
    store::TextList titles;
    const store::TextList inserted = app::RuleColumnInsertionOrder();
    for (std::size_t column = 0; column < app::kRuleColumnCount; ++column) {
        titles.push_back(app::ColumnTitle(inserted, column));
    }
    EXPECT_THAT(titles, ElementsAre(L"", L"Description", L"Rules", L"Input folder", L"Output folder",
                                    L"Error folder", L"Masks", L"CS profile", L"Extra"));
}

TEST(RuleColumns, TheNumberColumnHasNoTitle) {
    EXPECT_EQ(app::ColumnTitle(app::RuleColumnInsertionOrder(), app::kNumberColumn), L"");
}

TEST(RuleColumns, TheTitleOfNoColumnIsAFault) {
    EXPECT_THROW((void)app::ColumnTitle(app::RuleColumnInsertionOrder(), app::kRuleColumnCount),
                 std::invalid_argument);
    EXPECT_THROW((void)app::ColumnTitle({L"Extra"}, 8), std::invalid_argument);
    EXPECT_THROW((void)app::ColumnTitle({}, 0), std::invalid_argument);
}

TEST(LayOutRuleColumns, SharesTheWidthAfterTheNumberColumnAmongEight) {
    EXPECT_EQ(app::LayOutRuleColumns(851, 17, false), (app::RuleColumnWidths{.number = 51, .other = 100}));
}

TEST(LayOutRuleColumns, TheFirstTimeLeavesRoomForTheScrollBar) {
    EXPECT_EQ(app::LayOutRuleColumns(868, 17, true), (app::RuleColumnWidths{.number = 51, .other = 100}));
    EXPECT_EQ(app::LayOutRuleColumns(867, 17, true), (app::RuleColumnWidths{.number = 51, .other = 99}));
}

TEST(LayOutRuleColumns, DividesWholePixels) {
    EXPECT_EQ(app::LayOutRuleColumns(858, 17, false).other, 100);
    EXPECT_EQ(app::LayOutRuleColumns(859, 17, false).other, 101);
}

TEST(LayOutRuleColumns, AListTooNarrowForTheNumberColumnHasColumnsWithoutWidth) {
    EXPECT_EQ(app::LayOutRuleColumns(20, 17, false), (app::RuleColumnWidths{.number = 51, .other = 0}));
    EXPECT_EQ(app::LayOutRuleColumns(0, 17, true), (app::RuleColumnWidths{.number = 51, .other = 0}));
}

TEST(LayOutProfileColumn, TakesTheWholeWidthButTheFirstTimeForTheScrollBar) {
    EXPECT_EQ(app::LayOutProfileColumn(190, 17, true), 173);
    EXPECT_EQ(app::LayOutProfileColumn(190, 17, false), 190);
    EXPECT_EQ(app::LayOutProfileColumn(10, 17, true), 0);
}

}  // namespace
}  // namespace corvane::test
