#include <gtest/gtest.h>

#include "tests/kit/fixtures/store_fixture.h"
#include "tests/store/registry/real/real_store_fixture.h"

// What loads from keys that another hand has made: every type, size and terminator that the system lets
// stand, beside what comes out.

namespace corvane::test {
namespace {

constexpr std::uint32_t kTypeQuadNumber = 11;
const std::wstring kProfile = L"SOFTWARE\\HOLVAN\\tarntray\\Office";
const std::wstring kRule = L"SOFTWARE\\HOLVAN\\tarntray\\Office\\rules\\Rule 0";

class HandMadeKeys : public RealStore {
  protected:
    HandMadeKeys() {
        root.PutKey(kCatalogue);
        root.PutKey(kRule);
    }

    [[nodiscard]] store::Rule LoadOnlyRule() {
        EXPECT_TRUE(Load());
        return state.profiles.at(0).rules.at(0);
    }
};

TEST_F(HandMadeKeys, NumbersOfEveryTypeAndSize) {
    struct Case {
        const char* what = nullptr;
        StoredData stored;
        std::int32_t number = 0;
        bool isReported = false;
    };
    const Case cases[] = {
        {"DWORD", Number(7), 7, false},
        {"negative DWORD", Number(0xFFFFFFFE), -2, false},
        {"binary of four bytes", Bytes(store::kTypeBinary, {7, 0, 0, 0}), 15, false},
        {"QWORD", Bytes(kTypeQuadNumber, {7, 0, 0, 0, 0, 0, 0, 0}), 15, true},
        {"DWORD of two bytes", Bytes(store::kTypeNumber, {7, 0}), 15, false},
        {"DWORD of no bytes", Bytes(store::kTypeNumber, {}), 15, false},
        {"DWORD of five bytes", Bytes(store::kTypeNumber, {7, 0, 0, 0, 0}), 15, true},
        {"text of one character", Text(L"7"), 15, false},
        {"longer text", Text(L"77"), 15, true},
    };
    for (const Case& item : cases) {
        root.Put(kProfile, L"Handler timeout", item.stored);
        reports.presenter.Clear();
        ASSERT_TRUE(Load()) << item.what;
        EXPECT_EQ(state.profiles.at(0).handlerTimeout, item.number) << item.what;
        if (item.isReported) {
            EXPECT_EQ(ReportTexts(), std::vector<std::wstring>{ReportText(
                                         L"Reading integer value 'Handler timeout' from register", 234)})
                << item.what;
        } else {
            EXPECT_TRUE(ReportTexts().empty()) << item.what;
        }
    }
}

TEST_F(HandMadeKeys, TextsOfEveryTypeAndShape) {
    struct Case {
        const char* what;
        StoredData stored;
        std::wstring text;
        bool isReported;
    };
    const Case cases[] = {
        {"text", Text(L"ext"), L"ext", false},
        {"empty text", Text(L""), L"", false},
        {"no bytes", Bytes(store::kTypeText, {}), L"", false},
        {"expandable text", Bytes(store::kTypeExpandableText, {'%', 0, 'T', 0, '%', 0, 0, 0}), L"%T%", false},
        {"no terminator", Bytes(store::kTypeText, {'a', 0, 'b', 0}), L"p7s", false},
        {"odd size", Bytes(store::kTypeText, {'a', 0, 0}), L"p7s", false},
        {"two terminators", Bytes(store::kTypeText, {'a', 0, 0, 0, 0, 0}), L"a", false},
        {"NUL inside", Bytes(store::kTypeText, {'a', 0, 0, 0, 'b', 0, 0, 0}), L"a", false},
        {"number", Number(7), L"p7s", false},
        {"list", MultiText({L"a"}), L"p7s", false},
        {"binary", Bytes(store::kTypeBinary, {'a', 0, 0, 0}), L"p7s", false},
        {"519 characters", Text(std::wstring(519, L'x')), std::wstring(519, L'x'), false},
        {"520 characters", Text(std::wstring(520, L'x')), L"p7s", true},
        {"520 characters without terminator",
         Bytes(store::kTypeText, CharacterBytes(std::wstring(520, L'x'))), L"p7s", false},
        {"binary of 2000 bytes", Bytes(store::kTypeBinary, std::vector<std::uint8_t>(2000)), L"p7s", true},
    };
    for (const Case& item : cases) {
        root.Put(kProgram, L"SigExt", item.stored);
        reports.presenter.Clear();
        ASSERT_TRUE(Load()) << item.what;
        EXPECT_EQ(state.settings.signedExtension, item.text) << item.what;
        if (item.isReported) {
            EXPECT_EQ(ReportTexts(), std::vector<std::wstring>{ReportText(
                                         L"Reading string value 'SigExt' from register", 234)})
                << item.what;
        } else {
            EXPECT_TRUE(ReportTexts().empty()) << item.what;
        }
    }
}

TEST_F(HandMadeKeys, ListsOfEveryTypeAndShape) {
    struct Case {
        const char* what;
        StoredData stored;
        corvane::store::TextList list;
        bool isReported;
    };
    const Case cases[] = {
        {"list", MultiText({L"a", L"b"}), {L"a", L"b"}, false},
        {"one NUL", Bytes(store::kTypeTextList, {0, 0}), {}, false},
        {"two NULs", Bytes(store::kTypeTextList, {0, 0, 0, 0}), {}, false},
        {"empty element inside", MultiText({L"A", L"", L"B"}), {L"A"}, false},
        {"text", Text(L"one"), {L"one"}, false},
        {"expandable text", Bytes(store::kTypeExpandableText, {'%', 0, 0, 0}), {L"%"}, false},
        {"no bytes", Bytes(store::kTypeTextList, {}), {}, true},
        {"text of no bytes", Bytes(store::kTypeText, {}), {}, true},
        {"one terminator", Bytes(store::kTypeTextList, {'a', 0, 0, 0}), {}, true},
        {"no terminator", Bytes(store::kTypeTextList, {'a', 0}), {}, true},
        {"odd size", Bytes(store::kTypeTextList, {'a', 0, 0, 0, 0, 0, 0}), {}, true},
        {"number", Number(1), {}, true},
        {"binary", Bytes(store::kTypeBinary, {'a', 0, 0, 0, 0, 0}), {}, true},
        {"long list", MultiText({std::wstring(5000, L'x'), L"b"}), {std::wstring(5000, L'x'), L"b"}, false},
    };
    for (const Case& item : cases) {
        root.Put(kProgram, L"ExtExt", item.stored);
        reports.presenter.Clear();
        ASSERT_TRUE(Load()) << item.what;
        EXPECT_EQ(state.settings.additionalExtensions, item.list) << item.what;
        if (item.isReported) {
            EXPECT_EQ(ReportTexts(), std::vector<std::wstring>{ReportText(
                                         L"Reading multistring value 'ExtExt' from register", 13)})
                << item.what;
        } else {
            EXPECT_TRUE(ReportTexts().empty()) << item.what;
        }
    }
}

TEST_F(HandMadeKeys, NumberListsTakeWhatStandsInFrontOfTheFirstNonDigit) {
    root.Put(kProfile, L"NotLoadCrl", MultiText({L" 1", L"-2x", L"x", L"99999999999", L"+3"}));
    ASSERT_TRUE(Load());
    EXPECT_EQ(state.profiles.at(0).notLoadCrl, (store::NumberList{1, -2, 0, 2147483647, 3}));
    EXPECT_EQ(state.profiles.at(0).crlUpdatePeriods, (store::NumberList{1, 1, 1, 1, 1}));
}

TEST_F(HandMadeKeys, GapsInNumberedValuesKeepThePlaces) {
    root.Put(kRule, L"Mask num", Number(3));
    root.Put(kRule, L"M1", Text(L"*.b"));
    root.Put(kRule, L"Ext num", Number(2));
    root.Put(kRule, L"C1", Number(7));
    root.Put(kRule + L"\\List", L"Signer Num", Number(2));
    root.Put(kRule + L"\\List", L"S0", Text(L"CN=S"));
    const store::Rule rule = LoadOnlyRule();
    EXPECT_EQ(rule.masks, (corvane::store::TextList{L"", L"*.b", L""}));
    EXPECT_EQ(rule.recipients, (corvane::store::TextList{L"", L""}));
    ASSERT_EQ(rule.signerGroups.size(), 1U);
    EXPECT_EQ(rule.signerGroups[0].signers, (corvane::store::TextList{L"CN=S", L""}));
    EXPECT_TRUE(ReportTexts().empty());
}

TEST_F(HandMadeKeys, NegativeCountsGiveNone) {
    root.Put(kRule, L"Mask num", Number(0xFFFFFFFF));
    root.Put(kRule, L"Mask", Text(L"*.old"));
    root.Put(kRule, L"Ext num", Number(0x80000000));
    root.Put(kRule + L"\\List", L"Signer Num", Number(0xFFFFFFFF));
    const store::Rule rule = LoadOnlyRule();
    EXPECT_TRUE(rule.masks.empty());
    EXPECT_TRUE(rule.recipients.empty());
    EXPECT_TRUE(rule.signerGroups.at(0).signers.empty());
    EXPECT_TRUE(ReportTexts().empty());
}

TEST_F(HandMadeKeys, ACountBeyondBeliefIsReportedAndLosesNoText) {
    root.Put(kRule, L"Mask num", Number(0x7FFFFFFF));
    root.Put(kRule, L"M2", Text(L"*.c"));
    EXPECT_EQ(LoadOnlyRule().masks, (corvane::store::TextList{L"", L"", L"*.c"}));
    EXPECT_EQ(ReportTexts(),
              std::vector<std::wstring>{ReportText(L"Reading integer value 'Mask num' from register", 13)});
}

TEST_F(HandMadeKeys, RuleKeysWithGapsOddNamesAndNoNumbersAllLoad) {
    for (const wchar_t* name : {L"Rule 7", L"Rule 10", L"copy", L"Rule 2 old 3"}) {
        root.Put(kProfile + L"\\rules\\" + name, L"Descryption", Text(name));
    }
    ASSERT_TRUE(Load());
    std::vector<std::wstring> descriptions;
    for (const store::Rule& rule : state.profiles.at(0).rules) {
        descriptions.push_back(rule.description);
    }
    // "copy" and "Rule 0" share the number 0 and keep the order in which the system names them.
    EXPECT_EQ(descriptions,
              (std::vector<std::wstring>{L"copy", L"", L"Rule 2 old 3", L"Rule 7", L"Rule 10"}));
}

TEST_F(HandMadeKeys, NamesAreFoundWhateverTheirCase) {
    root.Put(L"software\\holvan\\TARNTRAY", L"SIGEXT", Text(L"ext"));
    ASSERT_TRUE(Load());
    EXPECT_EQ(state.settings.signedExtension, L"ext");
}

TEST_F(HandMadeKeys, AProfileWithoutRulesEndsTheLoad) {
    root.PutKey(kProgram + L"\\Broken");
    EXPECT_FALSE(Load());
    EXPECT_EQ(ReportTexts(),
              std::vector<std::wstring>{ReportText(
                  L"Create (open) register key HKEY_CURRENT_USER\\" + kProgram + L"\\Broken\\rules", 2)});
}

TEST_F(HandMadeKeys, WithoutCatalogueAndProfileNothingHalfMadeStaysBehind) {
    RegDeleteTreeW(HKEY_CURRENT_USER, kProgram.c_str());
    EXPECT_THROW(static_cast<void>(Load()), std::invalid_argument);
    EXPECT_TRUE(root.SubkeyNames(kProgram).empty());
    EXPECT_FALSE(root.Find(kProgram, L"LogPath").has_value());
}

}  // namespace
}  // namespace corvane::test
