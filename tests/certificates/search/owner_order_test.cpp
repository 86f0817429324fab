#include "certificates/search/owner_texts.h"

#include <gmock/gmock.h>

#include <numeric>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

std::vector<std::size_t> Sorted(const std::vector<std::wstring_view>& owners, std::wstring_view field,
                                certificates::SortDirection direction) {
    std::vector<std::size_t> rows(owners.size());
    std::iota(rows.begin(), rows.end(), 0U);
    certificates::SortOwnerRows(rows, owners, field, direction);
    return rows;
}

TEST(OwnerSortKey, IsWhatFollowsTheAttributeToTheEndOfTheText) {
    EXPECT_EQ(certificates::OwnerSortKey(L"CN=Ann,O=North,C=RU", L"CN"), L"Ann,O=North,C=RU");
    EXPECT_EQ(certificates::OwnerSortKey(L"CN=Ann,O=North,C=RU", L"O"), L"North,C=RU");
    EXPECT_EQ(certificates::OwnerSortKey(L"CN=Ann,O=North,C=RU", L"C"), L"RU");
}

TEST(OwnerSortKey, TheStartOfTheTextComesBeforeALaterPlace) {
    EXPECT_EQ(certificates::OwnerSortKey(L"O=A,O=B", L"O"), L"A,O=B");
    EXPECT_EQ(certificates::OwnerSortKey(L"CN=A,O=B,O=C", L"O"), L"B,O=C");
}

TEST(OwnerSortKey, BlanksAndLetterCaseMatter) {
    EXPECT_EQ(certificates::OwnerSortKey(L"CN=A, O=B", L"O"), std::nullopt);
    EXPECT_EQ(certificates::OwnerSortKey(L"cn=A", L"CN"), std::nullopt);
}

TEST(OwnerSortKey, TextsWithoutTheAttributeHaveNone) {
    EXPECT_EQ(certificates::OwnerSortKey(L"", L"CN"), std::nullopt);
    EXPECT_EQ(certificates::OwnerSortKey(L"DCN=A", L"CN"), std::nullopt);
    EXPECT_EQ(certificates::OwnerSortKey(L"CN=", L"CN"), L"");
}

TEST(OwnerOrder, IsByKeyAndLetterCase) {
    EXPECT_THAT(Sorted({L"CN=b", L"CN=a", L"CN=B", L"CN=A"}, L"CN", certificates::SortDirection::kAscending),
                ElementsAre(3, 2, 1, 0));
    EXPECT_THAT(Sorted({L"CN=b", L"CN=a", L"CN=B", L"CN=A"}, L"CN", certificates::SortDirection::kDescending),
                ElementsAre(0, 1, 2, 3));
}

TEST(OwnerOrder, EqualKeysKeepTheirOrderInBothDirections) {
    const std::vector<std::wstring_view> owners = {L"CN=z,C=RU", L"CN=a,C=RU", L"CN=m,C=DE"};
    EXPECT_THAT(Sorted(owners, L"C", certificates::SortDirection::kAscending), ElementsAre(2, 0, 1));
    EXPECT_THAT(Sorted(owners, L"C", certificates::SortDirection::kDescending), ElementsAre(0, 1, 2));
}

TEST(OwnerOrder, OwnersWithoutTheAttributeComeLastByTheirWholeText) {
    const std::vector<std::wstring_view> owners = {L"CN=z", L"CN=q,O=B", L"CN=a", L"O=A"};
    EXPECT_THAT(Sorted(owners, L"O", certificates::SortDirection::kAscending), ElementsAre(3, 1, 2, 0));
    EXPECT_THAT(Sorted(owners, L"O", certificates::SortDirection::kDescending), ElementsAre(1, 3, 0, 2));
}

TEST(OwnerOrder, OnlyTheGivenRowsAreSorted) {
    std::vector<std::size_t> rows = {2, 0};
    certificates::SortOwnerRows(rows, {L"CN=c", L"CN=b", L"CN=a"}, L"CN",
                                certificates::SortDirection::kAscending);
    EXPECT_THAT(rows, ElementsAre(2, 0));
    certificates::SortOwnerRows(rows, {L"CN=c", L"CN=b", L"CN=a"}, L"CN",
                                certificates::SortDirection::kDescending);
    EXPECT_THAT(rows, ElementsAre(0, 2));
}

}  // namespace
}  // namespace corvane::test
