#include "app/rule_list/rule_row.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/kit/fakes/test_system_text.h"
#include "tests/kit/samples/sample_configuration.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Counts how often the system is asked for upper case.
class CountingText : public TestSystemText {
  public:
    CountingText() : TestSystemText(CodePage::kCyrillic) {}

    [[nodiscard]] std::wstring UpperCase(std::wstring_view text) const override {
        ++calls_;
        return TestSystemText::UpperCase(text);
    }

    [[nodiscard]] int Calls() const { return calls_; }

  private:
    mutable int calls_ = 0;
};

std::vector<store::Rule> RulesDescribed(const store::TextList& descriptions) {
    return ProfileWithRules(L"p", descriptions).rules;
}

std::vector<std::size_t> Listed(const store::TextList& descriptions, const std::wstring& searchText) {
    return app::ListedRules(RulesDescribed(descriptions), searchText, TestSystemText(CodePage::kCyrillic));
}

TEST(ListedRules, WithoutSearchTextEveryRuleIsListedInOrder) {
    EXPECT_THAT(Listed({L"a", L"", L"c"}, L""), ElementsAre(0, 1, 2));
}

TEST(ListedRules, OfNoRulesIsEmpty) {
    EXPECT_THAT(Listed({}, L""), IsEmpty());
    EXPECT_THAT(Listed({}, L"a"), IsEmpty());
}

TEST(ListedRules, ARuleWithoutOperationIsNotListedAndTheOthersKeepTheirPositions) {
    std::vector<store::Rule> rules = RulesDescribed({L"a", L"b", L"c", L"d"});
    rules[1].operation.clear();
    EXPECT_THAT(app::ListedRules(rules, L"", TestSystemText(CodePage::kCyrillic)), ElementsAre(0, 2, 3));
}

TEST(ListedRules, ARuleWithoutOperationIsNotListedEvenIfItsDescriptionMatches) {
    std::vector<store::Rule> rules = RulesDescribed({L"match", L"match", L"other", L"match"});
    rules[0].operation.clear();
    EXPECT_THAT(app::ListedRules(rules, L"MATCH", TestSystemText(CodePage::kCyrillic)), ElementsAre(1, 3));
}

TEST(ListedRules, AnOperationThatIsNoCodeIsListedAllTheSame) {
    std::vector<store::Rule> rules = RulesDescribed({L"a"});
    rules[0].operation = L"none such";
    EXPECT_THAT(app::ListedRules(rules, L"", TestSystemText(CodePage::kCyrillic)), ElementsAre(0));
}

TEST(ListedRules, TheSearchIsAPlainSubstringTestThatIgnoresCase) {
    EXPECT_THAT(Listed({L"xABCy", L"ab c", L"abc", L"", L"ab"}, L"abc"), ElementsAre(0, 2));
    EXPECT_THAT(Listed({L"xabcy"}, L"ABC"), ElementsAre(0));
}

TEST(ListedRules, WildcardsAndBlanksInTheSearchTextStandForThemselves) {
    EXPECT_THAT(Listed({L"a*c", L"abc", L" a c "}, L"a*c"), ElementsAre(0));
    EXPECT_THAT(Listed({L"ab", L"a b"}, L" "), ElementsAre(1));
}

TEST(ListedRules, CyrillicTextIsFoundWhateverItsCase) {
    EXPECT_THAT(Listed({L"Подпись ДОГОВОРОВ", L"шифрование"}, L"договор"), ElementsAre(0));
    EXPECT_THAT(Listed({L"Подпись", L"шифрование ё"}, L"ШИФРОВАНИЕ Ё"), ElementsAre(1));
}

TEST(ListedRules, OnlyTheDescriptionIsSearched) {
    std::vector<store::Rule> rules = RulesDescribed({L"plain"});
    rules[0].inputFolder = L"C:\\wanted";
    rules[0].masks = {L"wanted"};
    rules[0].csProfile = L"wanted";
    EXPECT_THAT(app::ListedRules(rules, L"wanted", TestSystemText(CodePage::kCyrillic)), IsEmpty());
}

TEST(ListedRules, ADescriptionAsLongAsTheSearchTextMatchesWhole) {
    EXPECT_THAT(Listed({L"abc", L"abcd", L"bcd"}, L"bcd"), ElementsAre(1, 2));
}

TEST(ListedRules, OverTenThousandRulesTheSearchTextIsUpperCasedOnce) {
    const std::vector<store::Rule> rules(10000, RuleDescribed(L"Договор поставки"));
    const CountingText text;
    EXPECT_EQ(app::ListedRules(rules, L"ПОСТАВ", text).size(), 10000U);
    EXPECT_EQ(text.Calls(), 10001);
}

TEST(ListedRules, DescriptionsThatAreTooShortToMatchCostNothing) {
    const std::vector<store::Rule> rules(10000, RuleDescribed(L"short"));
    const CountingText text;
    EXPECT_THAT(app::ListedRules(rules, L"longer", text), IsEmpty());
    EXPECT_EQ(text.Calls(), 1);
}

TEST(ListedRules, WithoutSearchTextNothingIsUpperCased) {
    const CountingText text;
    EXPECT_EQ(app::ListedRules(RulesDescribed({L"a", L"b"}), L"", text).size(), 2U);
    EXPECT_EQ(text.Calls(), 0);
}

}  // namespace
}  // namespace corvane::test
