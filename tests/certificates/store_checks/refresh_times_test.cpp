#include "certificates/store_checks/crl_update.h"

#include <gmock/gmock.h>

#include <limits>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

constexpr std::int64_t kNow = 1'600'000'020;  // A whole minute.
constexpr std::int64_t kDay = 86'400;         // Seconds.

bool IsDue(const store::TextList& entries, std::int32_t periodHours = 24, std::int64_t now = kNow) {
    return certificates::FindRefreshState(entries, L"main", periodHours, now).isDue;
}

std::wstring Entry(std::int64_t seconds) {
    return L"main;;" + std::to_wstring(seconds);
}

TEST(RefreshState, WithoutAnEntryItIsDue) {
    const certificates::RefreshState state = certificates::FindRefreshState({}, L"main", 24, kNow);
    EXPECT_TRUE(state.isDue);
    EXPECT_EQ(state.entry, std::nullopt);
}

TEST(RefreshState, AMinuteBeforeThePeriodEndsItIsNotDue) {
    EXPECT_FALSE(IsDue({Entry(kNow - kDay + 60)}));
}

TEST(RefreshState, ExactlyAtThePeriodItIsDue) {
    EXPECT_TRUE(IsDue({Entry(kNow - kDay)}));
}

TEST(RefreshState, WholeMinutesCount) {
    EXPECT_TRUE(IsDue({Entry(kNow - kDay + 59)})) << "the minute is the same";
    EXPECT_FALSE(IsDue({Entry(kNow - kDay)}, 24, kNow - 1)) << "the minute before";
}

TEST(RefreshState, ATimeInTheFutureIsNotDue) {
    EXPECT_FALSE(IsDue({Entry(kNow + 100'000)}));
}

TEST(RefreshState, NamesAreComparedExactly) {
    const store::TextList entries = {L"Main;;1600000000", L"main ;;1600000000", L"mai;;1600000000"};
    const certificates::RefreshState state = certificates::FindRefreshState(entries, L"main", 24, kNow);
    EXPECT_TRUE(state.isDue);
    EXPECT_EQ(state.entry, std::nullopt);
}

TEST(RefreshState, AnEntryWithoutSeparatorNeverMatches) {
    EXPECT_EQ(
        certificates::FindRefreshState({L"main", L"main;1600000000", L"main:;;1600000000"}, L"main", 24, kNow)
            .entry,
        std::nullopt);
}

TEST(RefreshState, TextThatIsNoNumberIsTimeZero) {
    for (const wchar_t* entry : {L"main;;", L"main;;soon", L"main;;;1600000000", L"main;;;;1600000000",
                                 L"main;;0x7FFFFFFF", L"main;;-", L"main;;+ 1600000000"}) {
        const certificates::RefreshState state = certificates::FindRefreshState({entry}, L"main", 24, kNow);
        EXPECT_TRUE(state.isDue);
        EXPECT_EQ(state.entry, 0U);
    }
}

TEST(RefreshState, SpacesASignAndWhatFollowsTheNumberAreRead) {
    for (const wchar_t* entry :
         {L"main;; \t1600000020", L"main;;+1600000020", L"main;;1600000020x", L"main;;1600000020;;7"}) {
        EXPECT_FALSE(IsDue({entry}));
    }
}

TEST(RefreshState, TheLastMatchingEntryIsReplacedAndOneYoungEntryIsEnough) {
    const store::TextList entries = {L"other;;1", Entry(kNow), Entry(5), L"main"};
    const certificates::RefreshState state = certificates::FindRefreshState(entries, L"main", 24, kNow);
    EXPECT_FALSE(state.isDue);
    EXPECT_EQ(state.entry, 2U);
}

TEST(RefreshState, SecondsBeyond32BitsLoseTheirHigherBits) {
    constexpr std::int64_t kTwoTo32 = 4'294'967'296;
    EXPECT_FALSE(IsDue({Entry(kTwoTo32 + kNow)}));
    EXPECT_TRUE(IsDue({Entry(kTwoTo32)})) << "reads as 0";
    EXPECT_TRUE(IsDue({Entry(2'147'483'648)}, 24, 2'147'483'648)) << "reads as a time before 1970";
    EXPECT_TRUE(IsDue({L"main;;99999999999999999999999999999999"}, 24, kTwoTo32));
}

TEST(RefreshState, ALongPeriodDoesNotOverflow) {
    EXPECT_FALSE(IsDue({Entry(0)}, std::numeric_limits<std::int32_t>::max()));
}

TEST(RefreshState, AClockBefore1970Counts) {
    EXPECT_FALSE(IsDue({L"main;;-7200"}, 1, -3660));
    EXPECT_TRUE(IsDue({L"main;;-7200"}, 1, -3600));
    EXPECT_TRUE(IsDue({L"main;;-7200"}, 1, -3599)) << "divisions round toward zero";
}

TEST(RefreshState, AnEmptyNameHasAnEntryOfItsOwn) {
    EXPECT_EQ(certificates::FindRefreshState({L"main;;5", L";;5"}, L"", 24, kNow).entry, 1U);
}

TEST(RecordRefresh, ReplacesInPlace) {
    store::TextList entries = {L"a;;1", L"main;;2", L"b;;3"};
    certificates::RecordRefresh(entries, 1, L"main", kNow);
    EXPECT_THAT(entries, ElementsAre(L"a;;1", L"main;;1600000020", L"b;;3"));
}

TEST(RecordRefresh, AppendsWhereThereWasNone) {
    store::TextList entries = {L"a;;1"};
    certificates::RecordRefresh(entries, std::nullopt, L"%s", 4'294'967'297);
    EXPECT_THAT(entries, ElementsAre(L"a;;1", L"%s;;4294967297"));
}

TEST(RecordRefresh, ATimeBefore1970HasItsSign) {
    store::TextList entries;
    certificates::RecordRefresh(entries, std::nullopt, L"main", -61);
    EXPECT_THAT(entries, ElementsAre(L"main;;-61"));
}

}  // namespace
}  // namespace corvane::test
