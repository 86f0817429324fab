#include "app/rule_list/rule_row.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

TEST(RuleColumns, StandFromTheNumberToExtra) {
    store::TextList titles;
    for (const app::RuleColumn& column : app::RuleColumns()) {
        titles.emplace_back(column.title);
    }
    EXPECT_THAT(titles, ElementsAre(L"", L"Description", L"Rules", L"Input folder", L"Output folder",
                                    L"Error folder", L"Masks", L"CS profile", L"Extra"));
}

TEST(RuleColumns, TheNumberColumnHasNoTitle) {
    EXPECT_STREQ(app::RuleColumnAt(app::kNumberColumn).title, L"");
}

TEST(RuleColumns, OnlyMasksAndExtraShowMoreThanTheirCell) {
    for (const app::RuleColumn& column : app::RuleColumns()) {
        const std::wstring title = column.title;
        EXPECT_EQ(column.detail, title == L"Masks"   ? app::CellDetail::kMasks
                                 : title == L"Extra" ? app::CellDetail::kDescription
                                                     : app::CellDetail::kCell);
    }
}

TEST(RuleColumns, AColumnThatIsNoneIsAFault) {
    EXPECT_THROW((void)app::RuleColumnAt(9), std::invalid_argument);
    EXPECT_THROW((void)app::RuleColumnAt(static_cast<std::size_t>(-1)), std::invalid_argument);
}

TEST(RuleColumnWidths, TheNumberColumnLeavesTheRestToTheEightOthers) {
    EXPECT_THAT(app::RuleColumnWidths(851, 17, false),
                ElementsAre(51, 100, 100, 100, 100, 100, 100, 100, 100));
}

TEST(RuleColumnWidths, TheFirstTimeLeavesRoomForTheScrollBar) {
    EXPECT_THAT(app::RuleColumnWidths(868, 17, true),
                ElementsAre(51, 100, 100, 100, 100, 100, 100, 100, 100));
    EXPECT_THAT(app::RuleColumnWidths(867, 17, true), ElementsAre(51, 99, 99, 99, 99, 99, 99, 99, 99));
}

TEST(RuleColumnWidths, DividesWholePixels) {
    EXPECT_THAT(app::RuleColumnWidths(858, 17, false),
                ElementsAre(51, 100, 100, 100, 100, 100, 100, 100, 100));
    EXPECT_THAT(app::RuleColumnWidths(859, 17, false),
                ElementsAre(51, 101, 101, 101, 101, 101, 101, 101, 101));
}

TEST(RuleColumnWidths, AListTooNarrowForTheNumberColumnHasColumnsWithoutWidth) {
    EXPECT_THAT(app::RuleColumnWidths(20, 17, false), ElementsAre(51, 0, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(app::RuleColumnWidths(0, 17, true), ElementsAre(51, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST(LayOutProfileColumn, TakesTheWholeWidthButTheFirstTimeForTheScrollBar) {
    EXPECT_EQ(app::LayOutProfileColumn(190, 17, true), 173);
    EXPECT_EQ(app::LayOutProfileColumn(190, 17, false), 190);
    EXPECT_EQ(app::LayOutProfileColumn(10, 17, true), 0);
}

}  // namespace
}  // namespace corvane::test
