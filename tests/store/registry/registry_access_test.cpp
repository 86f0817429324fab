#include "store/registry/registry_access.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/kit/fakes/memory_registry.h"
#include "tests/kit/fixtures/store_fixture.h"
#include "tests/store/registry/memory_limit.h"

namespace corvane::test {
namespace {

constexpr std::uint32_t kFlagsShown = 1;
const std::wstring kKey = L"Software\\Test";

class RegistryAccessTest : public ::testing::Test {
  protected:
    RegistryAccessTest() {
        registry.PutKey(kKey);
        EXPECT_EQ(access.OpenKey(kKey), 0U);
        registry.ForgetCalls();
    }

    [[nodiscard]] std::vector<RegistryOperation> Operations() const {
        std::vector<RegistryOperation> operations;
        for (const RegistryCall& call : registry.Calls()) {
            operations.push_back(call.operation);
        }
        return operations;
    }

    [[nodiscard]] std::wstring OnlyReport() const { return store.reports.presenter.OnlyText(); }
    [[nodiscard]] std::size_t Reports() const { return store.reports.presenter.Boxes().size(); }

    StoreFixture store;
    MemoryRegistry& registry = store.registry;
    store::RegistryAccess& access = store.access;
    toolkit::WindowHandle owner = store.owner;
};

using OpenKey = RegistryAccessTest;
using CreateKey = RegistryAccessTest;
using RecurseDeleteKey = RegistryAccessTest;
using EnumerateSubkeys = RegistryAccessTest;
using ReadInt = RegistryAccessTest;
using ReadString = RegistryAccessTest;
using ReadStringList = RegistryAccessTest;
using ReadIntList = RegistryAccessTest;
using ReadStringArray = RegistryAccessTest;
using WriteInt = RegistryAccessTest;
using WriteString = RegistryAccessTest;
using WriteIntList = RegistryAccessTest;
using WriteStringList = RegistryAccessTest;
using WriteStringArray = RegistryAccessTest;
using CloseKey = RegistryAccessTest;

TEST_F(OpenKey, ReplacesTheCurrentKeyAndClosesItAfterwards) {
    registry.PutText(L"Software\\Other", L"Name", L"other");
    ASSERT_EQ(access.OpenKey(L"Software\\Other"), 0U);
    EXPECT_EQ(Operations(), (std::vector{RegistryOperation::kOpen, RegistryOperation::kClose}));
    EXPECT_EQ(registry.Calls()[0].access, 0x2001FU);
    EXPECT_EQ(registry.Calls()[0].transaction, nullptr);
    EXPECT_EQ(registry.Calls()[1].keyPath, kKey);
    EXPECT_EQ(registry.OpenKeys(), 1U);
    std::wstring text;
    EXPECT_TRUE(access.ReadString(L"Name", text, owner, kFlagsShown, L""));
    EXPECT_EQ(text, L"other");
}

TEST_F(OpenKey, ThatFailsKeepsTheCurrentKeyAndReportsNothing) {
    registry.PutText(kKey, L"Name", L"kept");
    EXPECT_EQ(access.OpenKey(L"Software\\None"), store::kCodeNotFound);
    registry.FailCall(2, 5);
    EXPECT_EQ(access.OpenKey(kKey), 5U);
    EXPECT_EQ(registry.OpenKeys(), 1U);
    EXPECT_EQ(Reports(), 0U);
    std::wstring text;
    EXPECT_TRUE(access.ReadString(L"Name", text, owner, kFlagsShown, L""));
    EXPECT_EQ(text, L"kept");
}

TEST_F(OpenKey, SucceedsThoughTheOldKeyDoesNotCloseWell) {
    registry.PutKey(L"Software\\Other");
    registry.FailCalls([](const RegistryCall& call) { return call.operation == RegistryOperation::kClose; },
                       6);
    EXPECT_EQ(access.OpenKey(L"Software\\Other"), 0U);
    EXPECT_EQ(Reports(), 0U);
}

TEST_F(CreateKey, MakesWhatIsMissingAndReplacesTheCurrentKey) {
    ASSERT_EQ(access.CreateKey(L"Software\\New\\Deep"), 0U);
    EXPECT_TRUE(registry.HasKey(L"Software\\New\\Deep"));
    EXPECT_EQ(Operations(), (std::vector{RegistryOperation::kCreate, RegistryOperation::kClose}));
    EXPECT_EQ(registry.Calls()[0].access, 0x2001FU);
    EXPECT_EQ(registry.OpenKeys(), 1U);
}

TEST_F(CreateKey, ThatFailsKeepsTheCurrentKey) {
    registry.FailCall(1, 1018);
    EXPECT_EQ(access.CreateKey(L"Software\\New"), 1018U);
    EXPECT_EQ(Operations(), std::vector{RegistryOperation::kCreate});
    EXPECT_EQ(registry.OpenKeys(), 1U);
    EXPECT_EQ(Reports(), 0U);
}

TEST_F(CloseKey, ClosesOnceAndHasNothingToCloseAfterwards) {
    EXPECT_EQ(access.Close(), 0U);
    EXPECT_EQ(access.Close(), 0U);
    EXPECT_EQ(registry.OpenKeys(), 0U);
    EXPECT_EQ(Operations(), std::vector{RegistryOperation::kClose});
}

TEST_F(CloseKey, HandsTheCodeOnAndCountsAsClosedAllTheSame) {
    registry.FailCall(1, 6);
    EXPECT_EQ(access.Close(), 6U);
    EXPECT_EQ(access.Close(), 0U);
}

TEST(RegistryAccess, ClosesItsKeyWhenItGoes) {
    ReporterFixture reports;
    MemoryRegistry registry;
    registry.PutKey(kKey);
    {
        store::RegistryAccess access(registry, reports.reporter);
        ASSERT_EQ(access.OpenKey(kKey), 0U);
        ASSERT_EQ(registry.OpenKeys(), 1U);
    }
    EXPECT_EQ(registry.OpenKeys(), 0U);
    EXPECT_EQ(registry.Misuses(), 0U);
}

TEST_F(RecurseDeleteKey, DeletesEverythingUnderTheKeyAndNothingBesides) {
    registry.PutText(kKey + L"\\a\\b\\c", L"Name", L"text");
    registry.PutKey(kKey + L"\\a\\d");
    registry.PutText(kKey + L"\\kept\\a", L"Name", L"text");
    EXPECT_EQ(access.RecurseDeleteKey(L"a"), 0U);
    EXPECT_FALSE(registry.HasKey(kKey + L"\\a"));
    EXPECT_TRUE(registry.Find(kKey + L"\\kept\\a", L"Name").has_value());
    EXPECT_EQ(registry.OpenKeys(), 1U);
    EXPECT_EQ(Reports(), 0U);
}

TEST_F(RecurseDeleteKey, ClosesEachKeyBeforeItDeletesIt) {
    registry.PutKey(kKey + L"\\a\\b");
    ASSERT_EQ(access.RecurseDeleteKey(L"a"), 0U);
    std::vector<std::string> calls;
    for (const RegistryCall& call : registry.Calls()) {
        calls.push_back(Describe(call));
    }
    EXPECT_EQ(calls, (std::vector<std::string>{
                         "open Software\\Test\\a = 0",
                         "enumerate Software\\Test\\a [b] = 0",
                         "open Software\\Test\\a\\b = 0",
                         "enumerate Software\\Test\\a\\b = 259",
                         "close Software\\Test\\a\\b = 0",
                         "delete Software\\Test\\a\\b = 0",
                         "enumerate Software\\Test\\a = 259",
                         "close Software\\Test\\a = 0",
                         "delete Software\\Test\\a = 0",
                     }));
    for (const RegistryCall& call : registry.Calls()) {
        if (call.operation == RegistryOperation::kOpen) {
            EXPECT_EQ(call.access, 0x2001FU);
        }
    }
}

TEST_F(RecurseDeleteKey, GivesNotFoundAsItStands) {
    EXPECT_EQ(access.RecurseDeleteKey(L"none"), store::kCodeNotFound);
    EXPECT_EQ(Reports(), 0U);
}

TEST_F(RecurseDeleteKey, StopsAtTheFirstFailureAndLeavesNoKeyOpen) {
    registry.PutKey(kKey + L"\\a\\b\\c");
    registry.PutKey(kKey + L"\\a\\d");
    registry.FailCalls(
        [](const RegistryCall& call) {
            return call.operation == RegistryOperation::kDelete && call.keyPath == L"Software\\Test\\a\\b";
        },
        5);
    EXPECT_EQ(access.RecurseDeleteKey(L"a"), 5U);
    EXPECT_FALSE(registry.HasKey(kKey + L"\\a\\b\\c"));
    EXPECT_TRUE(registry.HasKey(kKey + L"\\a\\b"));
    EXPECT_TRUE(registry.HasKey(kKey + L"\\a\\d"));
    EXPECT_EQ(registry.OpenKeys(), 1U);
}

TEST_F(RecurseDeleteKey, StaysInTheViewOfTheCurrentKey) {
    constexpr std::uint32_t kView32 = 0x200;
    registry.PutKey(kKey + L"\\a\\b");
    ASSERT_EQ(access.OpenKey(kKey, store::kReadWriteAccess | kView32), 0U);
    registry.ForgetCalls();
    ASSERT_EQ(access.RecurseDeleteKey(L"a"), 0U);
    for (const RegistryCall& call : registry.Calls()) {
        if (call.operation == RegistryOperation::kOpen) {
            EXPECT_EQ(call.access, store::kReadWriteAccess | kView32) << Describe(call);
        } else if (call.operation == RegistryOperation::kDelete) {
            EXPECT_EQ(call.access, kView32) << Describe(call);
        }
    }
}

TEST_F(RecurseDeleteKey, ForgetsTheViewWithTheNextKey) {
    ASSERT_EQ(access.OpenKey(kKey, store::kReadWriteAccess | 0x100U), 0U);
    ASSERT_EQ(access.CreateKey(kKey + L"\\a\\b"), 0U);
    ASSERT_EQ(access.OpenKey(kKey), 0U);
    registry.ForgetCalls();
    ASSERT_EQ(access.RecurseDeleteKey(L"a"), 0U);
    EXPECT_EQ(registry.Calls().front().access, store::kReadWriteAccess);
    EXPECT_EQ(registry.Calls().back().access, 0U);
}

TEST_F(RecurseDeleteKey, ReadsNamesOfUpTo255Characters) {
    const std::wstring longest(255, L'n');
    registry.PutKey(kKey + L"\\a\\" + longest);
    EXPECT_EQ(access.RecurseDeleteKey(L"a"), 0U);
    EXPECT_FALSE(registry.HasKey(kKey + L"\\a"));
}

TEST(RegistryAccess, OpensCreatesAndDeletesInsideItsTransaction) {
    ReporterFixture reports;
    MemoryRegistry registry;
    store::RegistryAccess access(registry, reports.reporter);
    int anything = 0;
    access.SetTransaction(&anything);
    ASSERT_EQ(access.CreateKey(kKey + L"\\a\\b"), 0U);
    ASSERT_EQ(access.OpenKey(kKey), 0U);
    ASSERT_EQ(access.RecurseDeleteKey(L"a"), 0U);
    int calls = 0;
    for (const RegistryCall& call : registry.Calls()) {
        if (call.operation == RegistryOperation::kOpen || call.operation == RegistryOperation::kCreate ||
            call.operation == RegistryOperation::kDelete) {
            EXPECT_EQ(call.transaction, &anything) << Describe(call);
            ++calls;
        }
    }
    EXPECT_EQ(calls, 6);
    access.SetTransaction(nullptr);
    registry.ForgetCalls();
    ASSERT_EQ(access.OpenKey(kKey), 0U);
    EXPECT_EQ(registry.Calls()[0].transaction, nullptr);
}

TEST_F(EnumerateSubkeys, AppendsTheNamesInTheSystemsOrder) {
    registry.PutKey(kKey + L"\\zeta");
    registry.PutKey(kKey + L"\\Alpha");
    store::TextList names = {L"before"};
    EXPECT_EQ(access.EnumerateSubkeys(names), 0U);
    EXPECT_EQ(names, (store::TextList{L"before", L"zeta", L"Alpha"}));
    EXPECT_EQ(registry.Calls().size(), 3U) << "one call for each name and one for the end";
}

TEST_F(EnumerateSubkeys, HasRoomFor259Characters) {
    registry.PutKey(kKey + L"\\" + std::wstring(259, L'n'));
    store::TextList names;
    EXPECT_EQ(access.EnumerateSubkeys(names), 0U);
    registry.PutKey(kKey + L"\\" + std::wstring(260, L'n'));
    EXPECT_EQ(access.EnumerateSubkeys(names), store::kCodeMoreData);
    EXPECT_EQ(Reports(), 0U);
}

// What ReadInt and ReadString owe for one stored value: stored, default, or untouched and reported.
struct ReadOutcome {
    bool result;
    std::wstring value;
    std::wstring report;
};

TEST_F(ReadInt, StoresTheDefaultOrLeavesTheFieldAndReports) {
    struct Case {
        const char* what = nullptr;
        std::optional<StoredData> stored;
        std::int32_t value = 0;
        std::uint32_t reportedCode = 0;
    };
    const Case cases[] = {
        {"a number", Number(7), 7, 0},
        {"a negative number", Number(0xFFFFFFFF), -1, 0},
        {"nothing", std::nullopt, 99, 0},
        {"four bytes of the binary type", Bytes(store::kTypeBinary, {7, 0, 0, 0}), 99, 0},
        {"a text of four bytes", Text(L"7"), 99, 0},
        {"the empty text", Text(L""), 99, 0},
        {"a DWORD of two bytes", Bytes(store::kTypeNumber, {7, 0}), 99, 0},
        {"a DWORD of no bytes", Bytes(store::kTypeNumber, {}), 99, 0},
        {"a QWORD", Bytes(kTypeQuadNumber, {7, 0, 0, 0, 0, 0, 0, 0}), 55, store::kCodeMoreData},
        {"a DWORD of five bytes", Bytes(store::kTypeNumber, {7, 0, 0, 0, 0}), 55, store::kCodeMoreData},
        {"a longer text", Text(L"77"), 55, store::kCodeMoreData},
    };
    for (const Case& item : cases) {
        registry.RemoveValue(kKey, L"Window_top");
        if (item.stored) {
            registry.Put(kKey, L"Window_top", *item.stored);
        }
        store.reports.presenter.Clear();
        std::int32_t value = 55;
        EXPECT_EQ(access.ReadInt(L"Window_top", value, owner, kFlagsShown, 99), item.reportedCode == 0)
            << item.what;
        EXPECT_EQ(value, item.value) << item.what;
        if (item.reportedCode == 0) {
            EXPECT_EQ(Reports(), 0U) << item.what;
        } else {
            EXPECT_EQ(OnlyReport(),
                      ReportText(L"Reading integer value 'Window_top' from register", item.reportedCode))
                << item.what;
            EXPECT_EQ(store.reports.presenter.Boxes()[0].owner, owner) << item.what;
        }
    }
}

TEST_F(ReadInt, ReportsEveryOtherCodeAndTreatsInvalidDataAsMissing) {
    std::int32_t value = 55;
    registry.PutNumber(kKey, L"Number", 1);
    registry.FailCall(1, store::kCodeInvalidData);
    EXPECT_TRUE(access.ReadInt(L"Number", value, owner, kFlagsShown, 99));
    EXPECT_EQ(value, 99);
    registry.FailCall(2, 1018);
    EXPECT_FALSE(access.ReadInt(L"Number", value, owner, kFlagsShown, 98));
    EXPECT_EQ(value, 99);
    EXPECT_EQ(OnlyReport(), ReportText(L"Reading integer value 'Number' from register", 1018));
}

TEST_F(ReadInt, WithFlagsZeroFailsWithoutAWord) {
    std::int32_t value = 55;
    registry.FailCall(1, 5);
    EXPECT_FALSE(access.ReadInt(L"Number", value, owner, 0, 99));
    EXPECT_EQ(Reports(), 0U);
}

TEST_F(ReadInt, AsksOnceWithRoomForFourBytes) {
    registry.PutNumber(kKey, L"Number", 1);
    std::int32_t value = 0;
    ASSERT_TRUE(access.ReadInt(L"Number", value, owner, kFlagsShown, 0));
    EXPECT_EQ(Operations(), std::vector{RegistryOperation::kQuery});
}

TEST_F(ReadInt, NamesTheValueInTheSystemsCodePage) {
    registry.FailCall(1, 5);
    std::int32_t value = 0;
    EXPECT_FALSE(access.ReadInt(L"\x041F\x0443\x0442\x044C", value, owner, kFlagsShown, 0));
    EXPECT_EQ(OnlyReport(), ReportText(L"Reading integer value '\x041F\x0443\x0442\x044C' from register", 5));
}

TEST_F(ReadString, StoresTheDefaultOrLeavesTheFieldAndReports) {
    struct Case {
        const char* what;
        std::optional<StoredData> stored;
        std::wstring value;
        std::uint32_t reportedCode;
    };
    const Case cases[] = {
        {"a text", Text(L"text"), L"text", 0},
        {"the empty text", Text(L""), L"", 0},
        {"no bytes", Bytes(store::kTypeText, {}), L"", 0},
        {"nothing", std::nullopt, L"default", 0},
        {"an expandable text", Bytes(store::kTypeExpandableText, {'%', 0, 'a', 0, '%', 0, 0, 0}), L"%a%", 0},
        {"a number", Number(7), L"default", 0},
        {"a list", MultiText({L"a"}), L"default", 0},
        {"an odd size", Bytes(store::kTypeText, {'a', 0, 0}), L"default", 0},
        {"no terminator", Bytes(store::kTypeText, {'a', 0}), L"default", 0},
        {"two terminators", Bytes(store::kTypeText, {'a', 0, 0, 0, 0, 0}), L"a", 0},
        {"a NUL inside", Bytes(store::kTypeText, {'a', 0, 0, 0, 'b', 0, 0, 0}), L"a", 0},
        {"519 characters", Text(std::wstring(519, L'x')), std::wstring(519, L'x'), 0},
        {"520 characters", Text(std::wstring(520, L'x')), L"before", store::kCodeMoreData},
        {"a list of 1042 bytes", MultiText({std::wstring(519, L'x')}), L"before", store::kCodeMoreData},
    };
    for (const Case& item : cases) {
        registry.RemoveValue(kKey, L"LogPath");
        if (item.stored) {
            registry.Put(kKey, L"LogPath", *item.stored);
        }
        store.reports.presenter.Clear();
        std::wstring value = L"before";
        EXPECT_EQ(access.ReadString(L"LogPath", value, owner, 3, L"default"), item.reportedCode == 0)
            << item.what;
        EXPECT_EQ(value, item.value) << item.what;
        if (item.reportedCode == 0) {
            EXPECT_EQ(Reports(), 0U) << item.what;
        } else {
            EXPECT_EQ(OnlyReport(),
                      ReportText(L"Reading string value 'LogPath' from register", item.reportedCode))
                << item.what;
        }
    }
}

TEST_F(ReadString, ReportsEveryOtherCodeAndTreatsInvalidDataAsMissing) {
    std::wstring value = L"before";
    registry.FailCall(1, store::kCodeInvalidData);
    EXPECT_TRUE(access.ReadString(L"Name", value, owner, kFlagsShown, L"default"));
    EXPECT_EQ(value, L"default");
    registry.FailCall(2, 87);
    EXPECT_FALSE(access.ReadString(L"Name", value, owner, kFlagsShown, L"other"));
    EXPECT_EQ(value, L"default");
    EXPECT_EQ(OnlyReport(), ReportText(L"Reading string value 'Name' from register", 87));
}

TEST_F(ReadStringList, AsksForTheSizeAndThenForTheData) {
    registry.PutTextList(kKey, L"List", {L"a", L"b"});
    store::TextList list = {L"before"};
    ASSERT_TRUE(access.ReadStringList(L"List", list, owner));
    EXPECT_EQ(list, (store::TextList{L"a", L"b"}));
    EXPECT_EQ(Operations(), (std::vector{RegistryOperation::kQuerySize, RegistryOperation::kQuery}));
}

TEST_F(ReadStringList, IsEmptyWhereTheValueIsMissing) {
    store::TextList list = {L"before"};
    EXPECT_TRUE(access.ReadStringList(L"List", list, owner));
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(Reports(), 0U);
    EXPECT_EQ(Operations(), std::vector{RegistryOperation::kQuerySize});
}

TEST_F(ReadStringArray, AppendsToWhatIsThere) {
    registry.PutTextList(kKey, L"List", {L"a", L"b"});
    store::TextList list = {L"before"};
    ASSERT_TRUE(access.ReadStringArray(L"List", list, owner));
    EXPECT_EQ(list, (store::TextList{L"before", L"a", L"b"}));
    ASSERT_TRUE(access.ReadStringArray(L"Missing", list, owner));
    EXPECT_EQ(list.size(), 3U);
}

TEST_F(ReadStringArray, ReadsEveryShapeOrReportsInvalidData) {
    struct Case {
        const char* what;
        StoredData stored;
        store::TextList list;
        bool result;
    };
    const Case cases[] = {
        {"an empty element ends the list", MultiText({L"A", L"", L"B"}), {L"A"}, true},
        {"one NUL", Bytes(store::kTypeTextList, {0, 0}), {}, true},
        {"a text", Text(L"one"), {L"one"}, true},
        {"an expandable text", Bytes(store::kTypeExpandableText, {'%', 0, 0, 0}), {L"%"}, true},
        {"a list of no bytes", Bytes(store::kTypeTextList, {}), {}, false},
        {"a text of no bytes", Bytes(store::kTypeText, {}), {}, false},
        {"a number", Number(1), {}, false},
        {"a list of one terminator", Bytes(store::kTypeTextList, {'a', 0, 0, 0}), {}, false},
        {"a list of odd size", Bytes(store::kTypeTextList, {'a', 0, 0, 0, 0, 0, 0}), {}, false},
        {"binary", Bytes(store::kTypeBinary, {0, 0, 0, 0}), {}, false},
    };
    for (const Case& item : cases) {
        registry.Put(kKey, L"ExtExt", item.stored);
        store.reports.presenter.Clear();
        store::TextList list;
        EXPECT_EQ(access.ReadStringArray(L"ExtExt", list, owner), item.result) << item.what;
        EXPECT_EQ(list, item.list) << item.what;
        if (item.result) {
            EXPECT_EQ(Reports(), 0U) << item.what;
        } else {
            EXPECT_EQ(OnlyReport(), ReportText(L"Reading multistring value 'ExtExt' from register",
                                               store::kCodeInvalidData))
                << item.what;
        }
    }
}

TEST_F(ReadStringArray, HasNoLimitOfLength) {
    const std::wstring text(100000, L'x');
    registry.PutTextList(kKey, L"List", {text, text});
    store::TextList list;
    ASSERT_TRUE(access.ReadStringArray(L"List", list, owner));
    EXPECT_EQ(list, (store::TextList{text, text}));
}

TEST_F(ReadStringArray, InvalidDataIsMissingForTheSizeButAFailureForTheData) {
    registry.PutTextList(kKey, L"List", {L"a"});
    store::TextList list;
    registry.FailCall(1, store::kCodeInvalidData);
    EXPECT_TRUE(access.ReadStringArray(L"List", list, owner));
    EXPECT_EQ(Reports(), 0U);
    registry.FailCall(3, store::kCodeInvalidData);
    EXPECT_FALSE(access.ReadStringArray(L"List", list, owner));
    EXPECT_EQ(OnlyReport(),
              ReportText(L"Reading multistring value 'List' from register", store::kCodeInvalidData));
    EXPECT_TRUE(list.empty());
}

TEST_F(ReadStringArray, ReportsAnyOtherCodeOfEitherCall) {
    registry.PutTextList(kKey, L"List", {L"a"});
    for (const std::size_t failing : {std::size_t{1}, std::size_t{3}}) {
        registry.FailCall(failing, 5);
        store.reports.presenter.Clear();
        store::TextList list;
        EXPECT_FALSE(access.ReadStringArray(L"List", list, owner));
        EXPECT_EQ(OnlyReport(), ReportText(L"Reading multistring value 'List' from register", 5));
    }
}

TEST_F(ReadStringArray, AValueThatVanishesBeforeItIsReadIsAFailure) {
    registry.PutTextList(kKey, L"List", {L"a"});
    registry.ChangeAfterSizeOf(L"List", [this] { registry.RemoveValue(kKey, L"List"); });
    store::TextList list;
    EXPECT_FALSE(access.ReadStringArray(L"List", list, owner));
    EXPECT_EQ(OnlyReport(),
              ReportText(L"Reading multistring value 'List' from register", store::kCodeNotFound));
}

TEST_F(ReadStringArray, AValueThatGrowsALittleBeforeItIsReadIsReadWhole) {
    registry.PutTextList(kKey, L"List", {L"abc"});
    registry.ChangeAfterSizeOf(L"List", [this] { registry.PutTextList(kKey, L"List", {L"abc", L"def"}); });
    store::TextList list;
    ASSERT_TRUE(access.ReadStringArray(L"List", list, owner));
    EXPECT_EQ(list, (store::TextList{L"abc", L"def"}));
}

TEST_F(ReadStringArray, AValueThatOutgrowsItsBufferIsAFailureAndNothingMore) {
    registry.PutTextList(kKey, L"List", {L"a"});
    registry.ChangeAfterSizeOf(L"List",
                               [this] { registry.PutTextList(kKey, L"List", {std::wstring(500, L'x')}); });
    store::TextList list = {L"before"};
    EXPECT_FALSE(access.ReadStringArray(L"List", list, owner));
    EXPECT_EQ(OnlyReport(),
              ReportText(L"Reading multistring value 'List' from register", store::kCodeMoreData));
    EXPECT_EQ(list, store::TextList{L"before"});
}

TEST_F(ReadStringArray, AValueThatShrinksBeforeItIsReadIsReadAsItThenIs) {
    registry.PutTextList(kKey, L"List", {std::wstring(500, L'x')});
    registry.ChangeAfterSizeOf(L"List", [this] { registry.PutTextList(kKey, L"List", {L"a"}); });
    store::TextList list;
    ASSERT_TRUE(access.ReadStringArray(L"List", list, owner));
    EXPECT_EQ(list, store::TextList{L"a"});
}

TEST_F(ReadStringArray, WithoutMemoryReportsTheAllocation) {
    registry.PutTextList(kKey, L"List", {L"a"});
    registry.PretendSize(L"List", 0xFFFFFFFF);
    const MemoryLimit limit(1000000);
    store::TextList list;
    EXPECT_FALSE(access.ReadStringArray(L"List", list, owner));
    EXPECT_EQ(OnlyReport(), ReportText(L"Memory allocation", 8));
    EXPECT_EQ(Operations(), std::vector{RegistryOperation::kQuerySize});
}

TEST_F(ReadIntList, ConvertsEachElementAsDecimalText) {
    registry.PutTextList(kKey, L"List",
                         {L"1", L" -2", L"+3x", L"x", L"99999999999", L"\t4", L"0x10", L"-2147483648"});
    store::NumberList list = {77};
    ASSERT_TRUE(access.ReadIntList(L"List", list, owner));
    EXPECT_EQ(list, (store::NumberList{77, 1, -2, 3, 0, 2147483647, 4, 0, -2147483647 - 1}));
}

TEST_F(ReadIntList, AppendsNothingWhereTheValueIsMissingOrWrong) {
    store::NumberList list = {77};
    EXPECT_TRUE(access.ReadIntList(L"List", list, owner));
    registry.PutNumber(kKey, L"List", 1);
    EXPECT_FALSE(access.ReadIntList(L"List", list, owner));
    EXPECT_EQ(list, store::NumberList{77});
    EXPECT_EQ(OnlyReport(),
              ReportText(L"Reading multistring value 'List' from register", store::kCodeInvalidData));
}

TEST_F(ReadIntList, ATextIsOneNumber) {
    registry.PutText(kKey, L"List", L"12");
    store::NumberList list;
    ASSERT_TRUE(access.ReadIntList(L"List", list, owner));
    EXPECT_EQ(list, store::NumberList{12});
}

TEST_F(WriteInt, StoresADwordOfFourBytes) {
    ASSERT_TRUE(access.WriteInt(L"Number", -2, owner, kFlagsShown));
    EXPECT_EQ(registry.Find(kKey, L"Number"), Bytes(store::kTypeNumber, {0xFE, 0xFF, 0xFF, 0xFF}));
    ASSERT_TRUE(access.WriteInt(L"Number", 0x12345678, owner, kFlagsShown));
    EXPECT_EQ(registry.Find(kKey, L"Number"), Bytes(store::kTypeNumber, {0x78, 0x56, 0x34, 0x12}));
}

TEST_F(WriteString, StoresTheTextWithItsNul) {
    ASSERT_TRUE(access.WriteString(L"Text", L"a\x0442", owner, kFlagsShown));
    EXPECT_EQ(registry.Find(kKey, L"Text"), Bytes(store::kTypeText, {'a', 0, 0x42, 0x04, 0, 0}));
    ASSERT_TRUE(access.WriteString(L"Text", L"", owner, kFlagsShown));
    EXPECT_EQ(registry.Find(kKey, L"Text"), Bytes(store::kTypeText, {0, 0}));
}

TEST_F(WriteString, StoresMoreThanCanBeReadBack) {
    const std::wstring text(3000, L'x');
    ASSERT_TRUE(access.WriteString(L"Text", text, owner, kFlagsShown));
    EXPECT_EQ(registry.Find(kKey, L"Text"), Text(text));
}

TEST_F(WriteIntList, StoresEachNumberInDecimal) {
    const store::NumberList list = {0, -5, 2147483647, -2147483647 - 1};
    ASSERT_TRUE(access.WriteIntList(L"List", list, owner));
    EXPECT_EQ(registry.Find(kKey, L"List"), MultiText({L"0", L"-5", L"2147483647", L"-2147483648"}));
}

TEST_F(WriteIntList, AnEmptyListIsOneNulAndReadsBackEmpty) {
    ASSERT_TRUE(access.WriteIntList(L"List", {}, owner));
    EXPECT_EQ(registry.Find(kKey, L"List"), Bytes(store::kTypeTextList, {0, 0}));
    store::NumberList list;
    EXPECT_TRUE(access.ReadIntList(L"List", list, owner));
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(Reports(), 0U);
}

TEST_F(WriteStringList, StoresAnEmptyElementAsZeroAndLeavesTheCallersList) {
    const store::TextList list = {L"", L"x"};
    ASSERT_TRUE(access.WriteStringList(L"List", list, owner));
    EXPECT_EQ(registry.Find(kKey, L"List"), Bytes(store::kTypeTextList, {'0', 0, 0, 0, 'x', 0, 0, 0, 0, 0}));
    EXPECT_EQ(list, (store::TextList{L"", L"x"}));
    ASSERT_TRUE(access.WriteStringList(L"List", {}, owner));
    EXPECT_EQ(registry.Find(kKey, L"List"), Bytes(store::kTypeTextList, {0, 0}));
}

TEST_F(WriteStringArray, StoresTheElementsAsTheyAre) {
    ASSERT_TRUE(access.WriteStringArray(L"List", {L"", L"x"}, owner));
    EXPECT_EQ(registry.Find(kKey, L"List"), Bytes(store::kTypeTextList, {0, 0, 'x', 0, 0, 0, 0, 0}));
}

TEST_F(WriteInt, EveryWriterReportsItsFailureByValueName) {
    registry.FailCalls([](const RegistryCall& call) { return call.operation == RegistryOperation::kSet; }, 5);
    EXPECT_FALSE(access.WriteInt(L"N", 1, owner, kFlagsShown));
    EXPECT_FALSE(access.WriteString(L"T", L"", owner, 3));
    EXPECT_FALSE(access.WriteIntList(L"I", {}, owner));
    EXPECT_FALSE(access.WriteStringList(L"L", {}, owner));
    EXPECT_FALSE(access.WriteStringArray(L"A", {}, owner));
    EXPECT_FALSE(access.WriteInt(L"Silent", 1, owner, 0));
    EXPECT_EQ(store.ReportTexts(), (std::vector<std::wstring>{
                                       ReportText(L"Writing integer value 'N' into register", 5),
                                       ReportText(L"Writing string value 'T' into register", 5),
                                       ReportText(L"Writing multistring value 'I' into register", 5),
                                       ReportText(L"Writing multistring value 'L' into register", 5),
                                       ReportText(L"Writing multistring value 'A' into register", 5),
                                   }));
    EXPECT_EQ(Operations().size(), 6U);
}

TEST_F(WriteStringList, WithoutMemoryReportsTheAllocationAndWritesNothing) {
    const store::TextList list = {std::wstring(1000, L'x')};
    const MemoryLimit limit(1000);
    EXPECT_FALSE(access.WriteStringList(L"List", list, owner));
    EXPECT_FALSE(access.WriteString(L"Text", list[0], owner, kFlagsShown));
    EXPECT_EQ(store.ReportTexts(), (std::vector<std::wstring>{ReportText(L"Memory allocation", 8),
                                                              ReportText(L"Memory allocation", 8)}));
    EXPECT_TRUE(registry.Calls().empty());
}

}  // namespace
}  // namespace corvane::test
