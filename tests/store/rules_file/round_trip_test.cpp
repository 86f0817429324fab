#include <gtest/gtest.h>

#include "store/rules_file/rules_file.h"
#include "tests/store/rules_file/record_text.h"

#include "tests/kit/fakes/test_system_text.h"

namespace corvane::test {
namespace {

std::vector<store::Rule> ThereAndBack(const std::vector<store::Rule>& rules,
                                      const toolkit::SystemText& systemText) {
    return store::ParseRulesFile(systemText.Narrow(store::FormatRulesFile(rules)), systemText);
}

store::Rule DescribedRule(const std::wstring& description) {
    store::Rule rule;
    rule.operation = L"SIGN";
    rule.inputFolder = L"C:\\in";
    rule.description = description;
    return rule;
}

// "Письма в банк: Ёжик", the description of a rule.
constexpr wchar_t kCyrillic[] =
    L"\x041F\x0438\x0441\x044C\x043C\x0430 \x0432 \x0431\x0430\x043D\x043A: \x0401\x0436\x0438\x043A";

TEST(RulesFileRoundTrip, ExportThenImportYieldsTheSameRulesInTheSameOrder) {
    store::Rule first = DescribedRule(L"first");
    first.masks = {L"*.doc", L"*.xls"};
    first.recipients = {L"CN=A,O=B", L"CN=C"};
    first.signerGroups = {{L"chiefs", {L"CN=D", L""}}, {L"nobody", {}}};
    first.archiveFormat = 2;
    first.isOn = 1;
    store::Rule second = DescribedRule(L"second");
    second.executable = L"C:\\a b\\c.exe";
    second.executionTimeout = 3;
    const store::Rule third;
    const std::vector<store::Rule> rules = {first, second, third};
    EXPECT_EQ(ThereAndBack(rules, TestSystemText(CodePage::kLatin)), rules);
}

TEST(RulesFileRoundTrip, EmptyMasksAndRecipientsStayEmptyLists) {
    const std::vector<store::Rule> rules = ThereAndBack({store::Rule()}, TestSystemText(CodePage::kLatin));
    ASSERT_EQ(rules.size(), 1U);
    EXPECT_EQ(rules[0].masks, store::TextList());
    EXPECT_EQ(rules[0].recipients, store::TextList());
}

TEST(RulesFileRoundTrip, AnEmptyMaskOrRecipientElementIsLost) {
    store::Rule rule;
    rule.masks = {L"", L"*.doc"};
    rule.recipients = {L""};
    const std::vector<store::Rule> rules = ThereAndBack({rule}, TestSystemText(CodePage::kLatin));
    ASSERT_EQ(rules.size(), 1U);
    EXPECT_EQ(rules[0].masks, store::TextList{L"*.doc"});
    EXPECT_EQ(rules[0].recipients, store::TextList());
}

TEST(RulesFileRoundTrip, TheLegacyMaskIsLost) {
    store::Rule rule;
    rule.legacyMask = L"*.old";
    EXPECT_EQ(ThereAndBack({rule}, TestSystemText(CodePage::kLatin)),
              std::vector<store::Rule>{store::Rule()});
}

TEST(RulesFileRoundTrip, AMaskWithTheElementSeparatorComesBackAsTwo) {
    store::Rule rule;
    rule.masks = {L"a;;b"};
    const std::vector<store::Rule> rules = ThereAndBack({rule}, TestSystemText(CodePage::kLatin));
    ASSERT_EQ(rules.size(), 1U);
    EXPECT_EQ(rules[0].masks, (store::TextList{L"a", L"b"}));
}

TEST(RulesFileRoundTrip, ASignerWithTheGroupSeparatorComesBackAsTwoLists) {
    store::Rule rule;
    rule.signerGroups = {{L"list", {L"CN=A;\\;CN=B"}}};
    const std::vector<store::Rule> rules = ThereAndBack({rule}, TestSystemText(CodePage::kLatin));
    ASSERT_EQ(rules.size(), 1U);
    EXPECT_EQ(rules[0].signerGroups, (std::vector<store::SignerGroup>{{L"list", {L"CN=A"}}, {L"CN=B", {}}}));
}

TEST(RulesFileRoundTrip, AValueWithALineFeedShiftsTheFieldsAfterIt) {
    store::Rule rule;
    rule.resignProfile = L"one\ntwo";
    rule.secondOutput = L"three";
    const std::vector<store::Rule> rules = ThereAndBack({rule}, TestSystemText(CodePage::kLatin));
    ASSERT_EQ(rules.size(), 1U);
    EXPECT_EQ(rules[0].resignProfile, L"one");
    EXPECT_EQ(rules[0].secondOutput, L"two");
    EXPECT_EQ(rules[0].description, L"three");
}

TEST(RulesFileRoundTrip, AValueWithARecordEndEndsTheRecord) {
    store::Rule rule = DescribedRule(L"one\n\rtwo");
    rule.executable = L"lost";
    const std::vector<store::Rule> rules = ThereAndBack({rule}, TestSystemText(CodePage::kLatin));
    // The rest of the record begins in the description, so it counts 13 fields, and is taken for a rule.
    ASSERT_EQ(rules.size(), 2U);
    EXPECT_EQ(rules[0].operation, L"SIGN");
    EXPECT_EQ(rules[0].description, L"one");
    EXPECT_EQ(rules[0].executable, L"");
    EXPECT_EQ(rules[1].operation, L"two");
}

TEST(RulesFileRoundTrip, AValueThatBeginsWithCarriageReturnEndsTheRecordToo) {
    const std::vector<store::Rule> rules =
        ThereAndBack({DescribedRule(L"\rtwo")}, TestSystemText(CodePage::kLatin));
    ASSERT_EQ(rules.size(), 2U);
    EXPECT_EQ(rules[0].operation, L"SIGN");
    EXPECT_EQ(rules[0].description, L"");
    EXPECT_EQ(rules[1].operation, L"two");
}

TEST(RulesFileRoundTrip, AnArchRuleWithoutAFormatComesBackAsZip) {
    store::Rule rule;
    rule.operation = L"ARCH";
    const std::vector<store::Rule> rules = ThereAndBack({rule}, TestSystemText(CodePage::kLatin));
    ASSERT_EQ(rules.size(), 1U);
    EXPECT_EQ(rules[0].archiveFormat, 1);
}

TEST(RulesFileRoundTrip, CyrillicDescriptionsAreUnharmedUnder1251) {
    const std::vector<store::Rule> rules = {DescribedRule(kCyrillic), DescribedRule(L"plain")};
    EXPECT_EQ(ThereAndBack(rules, TestSystemText(CodePage::kCyrillic)), rules);
}

TEST(RulesFileRoundTrip, ACyrillicDescriptionTakesOneByteACharacterUnder1251) {
    const std::string bytes =
        TestSystemText(CodePage::kCyrillic).Narrow(store::FormatRulesFile({DescribedRule(kCyrillic)}));
    EXPECT_EQ(bytes,
              "SIGN\nC:\\in\n\n\n0\n0\n0\n\n0\n0\n\n\n"
              "\xCF\xE8\xF1\xFC\xEC\xE0 \xE2 \xE1\xE0\xED\xEA: \xA8\xE6\xE8\xEA"
              "\n0\n0\n\n\n\n\n0\n0\n0\n\n\n0\n\r");
}

TEST(RulesFileRoundTrip, WesternDescriptionsAreUnharmedUnder1252) {
    const std::vector<store::Rule> rules = {
        DescribedRule(L"\x00DC\x0062\x0065rgr\x00F6\x00DF\x0065 \x20AC 5 \x2013 caf\x00E9")};
    EXPECT_EQ(ThereAndBack(rules, TestSystemText(CodePage::kLatin)), rules);
}

TEST(RulesFileRoundTrip, CharactersOutsideTheCodePageAreReplacedAndNothingElseIsHarmed) {
    store::Rule rule = DescribedRule(
        L"a\x0416"
        L"b");
    rule.executable = L"C:\\x.exe";
    const std::vector<store::Rule> rules = ThereAndBack({rule}, TestSystemText(CodePage::kLatin));
    ASSERT_EQ(rules.size(), 1U);
    EXPECT_EQ(rules[0].description, L"a?b");
    EXPECT_EQ(rules[0].executable, L"C:\\x.exe");
}

TEST(RulesFileRoundTrip, NothingIsCutWhereOneCharacterTakesSeveralBytes) {
    const std::vector<store::Rule> rules = {
        DescribedRule(kCyrillic), DescribedRule(L"\x65E5\x672C \xD83D\xDE00"), DescribedRule(L"last")};
    EXPECT_EQ(ThereAndBack(rules, TestSystemText(CodePage::kUtf8)), rules);
}

TEST(RulesFileRoundTrip, SecondBytesOfACharacterAreNoSeparators) {
    // The second byte of each of these is 0x5C under 932, the backslash of the separator of signer lists.
    store::Rule rule = DescribedRule(L"\x8868;\x80FD");
    rule.signerGroups = {{L"\x30BD", {L"a;\x8868;b"}}, {L"\x80FD", {}}};
    const TestSystemText shiftJis(CodePage::kShiftJis);
    ASSERT_NE(shiftJis.Narrow(L"\x8868").find('\\'), std::string::npos);
    EXPECT_EQ(ThereAndBack({rule}, shiftJis), std::vector<store::Rule>{rule});
}

TEST(RulesFileRoundTrip, ThousandsOfRulesComeBack) {
    store::Rule rule = DescribedRule(L"many");
    rule.masks = {L"*.a", L"*.b"};
    const std::vector<store::Rule> rules(3000, rule);
    EXPECT_EQ(ThereAndBack(rules, TestSystemText(CodePage::kLatin)), rules);
}

}  // namespace
}  // namespace corvane::test
