#include <gtest/gtest.h>

#include "store/rules_file/rules_file.h"
#include "tests/kit/fakes/test_system_text.h"
#include "tests/store/rules_file/record_text.h"

namespace corvane::test {
namespace {

using ::std::string_literals::operator""s;

store::TextList Records(std::string_view bytes) {
    return store::SplitRecords(bytes, TestSystemText(CodePage::kLatin));
}

std::vector<store::Rule> Rules(std::string_view bytes) {
    return store::ParseRulesFile(bytes, TestSystemText(CodePage::kLatin));
}

// The one rule of a record; the test fails if there is another number of rules.
store::Rule OneRule(const std::vector<std::string>& fields) {
    const std::vector<store::Rule> rules = Rules(RecordText(fields));
    EXPECT_EQ(rules.size(), 1U);
    return rules.empty() ? store::Rule() : rules.front();
}

TEST(SplitRecords, ARecordEndsWithLineFeedThenCarriageReturn) {
    EXPECT_EQ(Records("a\nb\n\rc\nd\n\r"), (store::TextList{L"a\nb", L"c\nd"}));
}

TEST(SplitRecords, CarriageReturnThenLineFeedEndsNoRecord) {
    EXPECT_EQ(Records("a\r\nb\r\nc\n\r"), (store::TextList{L"a\r\nb\r\nc"}));
}

TEST(SplitRecords, TextAfterTheLastRecordEndIsNoRecord) {
    EXPECT_EQ(Records("a\nb\n\rc\nd\n"), store::TextList{L"a\nb"});
}

TEST(SplitRecords, AFileWithoutARecordEndHasNoRecords) {
    EXPECT_EQ(Records("a\nb\nc"), store::TextList());
    EXPECT_EQ(Records("a\r\nb\r\n"), store::TextList());
    EXPECT_EQ(Records("\r\r\n\n"), store::TextList());
}

TEST(SplitRecords, AnEmptyFileHasNoRecords) {
    EXPECT_EQ(Records(""), store::TextList());
}

TEST(SplitRecords, EmptyRecordsAreNotKept) {
    EXPECT_EQ(Records("\n\r\n\ra\nb\n\r\n\r"), store::TextList{L"a\nb"});
}

TEST(SplitRecords, ARecordWithoutALineFeedIsNotKept) {
    EXPECT_EQ(Records("a\n\rb\nc\n\r"), store::TextList{L"b\nc"});
}

TEST(SplitRecords, ARecordOfOnlyALineFeedIsKept) {
    EXPECT_EQ(Records("\n\n\r"), store::TextList{L"\n"});
}

TEST(SplitRecords, ARecordMayBeginWithCarriageReturn) {
    EXPECT_EQ(Records("a\nb\n\r\rc\nd\n\r"), (store::TextList{L"a\nb", L"\rc\nd"}));
}

TEST(SplitRecords, AZeroByteEndsTheText) {
    EXPECT_EQ(Records("a\nb\n\rc\nd\0e\n\rf\ng\n\r"s), store::TextList{L"a\nb"});
    EXPECT_EQ(Records("\0a\nb\n\r"s), store::TextList());
}

TEST(SplitRecords, AZeroByteBetweenLineFeedAndCarriageReturnLosesTheRecord) {
    EXPECT_EQ(Records("a\nb\n\0\r"s), store::TextList());
}

TEST(SplitRecords, RecordsThatGiveNoRuleAreKeptNonetheless) {
    // What an import refreshes hangs on the records, not on the rules that they give.
    const store::TextList records = Records("a\nb\n\r");
    EXPECT_EQ(records.size(), 1U);
    EXPECT_EQ(store::ParseRecords(records), std::vector<store::Rule>());
}

TEST(ParseRulesFile, EveryFieldOfARecordReachesItsPlace) {
    store::Rule expected;
    expected.operation = L"ENCR";
    expected.inputFolder = L"C:\\in";
    expected.outputFolder = L"C:\\out";
    expected.errorFolder = L"C:\\error";
    expected.masks = {L"*.doc", L"*.xls"};
    expected.recipients = {L"CN=First,C=RU", L"CN=Second"};
    expected.isOn = 1;
    expected.csProfile = L"Main profile";
    expected.inputDetached = 2;
    expected.outputDetached = 3;
    expected.resignProfile = L"Other profile";
    expected.secondOutput = L"D:\\second";
    expected.description = L"Letters to the bank";
    expected.signerGroups = {{L"chiefs", {L"CN=Chief", L"CN=Deputy"}}, {L"clerks", {L"CN=Clerk"}}};
    expected.archiveFormat = 4;
    expected.deleteExtension = L"tmp";
    expected.addExtension = L"p7e";
    expected.folders = L"%Y";
    expected.copyFolders = L"%M";
    expected.archiveFileCount = 5;
    expected.archiveSize = 6;
    expected.archiveTimeout = -7;
    expected.archiveName = L"mail%n";
    expected.executable = L"C:\\handler.exe";
    expected.executionTimeout = 8;
    EXPECT_EQ(Rules("ENCR\nC:\\in\nC:\\out\nC:\\error\n*.doc;;*.xls\nCN=First,C=RU;;CN=Second\n1\n"
                    "Main profile\n2\n3\nOther profile\nD:\\second\nLetters to the bank\n"
                    "chiefs;;CN=Chief;;CN=Deputy;\\;clerks;;CN=Clerk\n4\ntmp\np7e\n%Y\n%M\n5\n6\n-7\nmail%n\n"
                    "C:\\handler.exe\n8\n\r"),
              std::vector<store::Rule>{expected});
}

TEST(ParseRulesFile, ARecordOfElevenFieldsIsSkipped) {
    std::vector<std::string> fields = FieldsWith(0, "ENCR");
    fields.resize(11);
    EXPECT_EQ(Rules(RecordText(fields) + RecordText(FieldsWith(0, "DECR"))).size(), 1U);
    EXPECT_EQ(Rules(RecordText(fields)), std::vector<store::Rule>());
}

TEST(ParseRulesFile, ARecordOfTwelveFieldsLeavesTheRestAtItsDefaults) {
    const store::Rule rule =
        OneRule({"ARCH", "in", "out", "err", "*.*", "CN=A", "1", "cs", "1", "1", "other", "second"});
    store::Rule expected;
    expected.operation = L"ARCH";
    expected.inputFolder = L"in";
    expected.outputFolder = L"out";
    expected.errorFolder = L"err";
    expected.masks = {L"*.*"};
    expected.recipients = {L"CN=A"};
    expected.isOn = 1;
    expected.csProfile = L"cs";
    expected.inputDetached = 1;
    expected.outputDetached = 1;
    expected.resignProfile = L"other";
    expected.secondOutput = L"second";
    EXPECT_EQ(rule, expected);
}

TEST(ParseRulesFile, AnArchRuleWithoutTheFormatFieldKeepsFormatZero) {
    for (const std::size_t fieldCount : {12U, 13U, 14U}) {
        std::vector<std::string> fields = FieldsWith(0, "ARCH");
        fields.resize(fieldCount);
        EXPECT_EQ(OneRule(fields).archiveFormat, 0) << fieldCount << " fields";
    }
}

TEST(ParseRulesFile, AnArchOrUnarRuleWithFormatZeroBecomesZip) {
    for (const char* operation : {"ARCH", "UNAR"}) {
        EXPECT_EQ(OneRule(FieldsWith(0, operation)).archiveFormat, 1) << operation;
        std::vector<std::string> fields = FieldsWith(0, operation);
        fields.resize(15);
        EXPECT_EQ(OneRule(fields).archiveFormat, 1) << operation << " with 15 fields";
    }
}

TEST(ParseRulesFile, OtherOperationsKeepFormatZeroAndAnArchRuleKeepsGzip) {
    EXPECT_EQ(OneRule(FieldsWith(0, "PACK")).archiveFormat, 0);
    std::vector<std::string> fields = FieldsWith(0, "ARCH");
    fields[14] = "2";
    EXPECT_EQ(OneRule(fields).archiveFormat, 2);
}

TEST(ParseRulesFile, EachFieldAfterTheTwelfthIsTakenAsSoonAsItIsThere) {
    std::vector<std::string> fields = FieldsWith(0, "ENCR");
    for (std::size_t index = 12; index < fields.size(); ++index) {
        fields[index] = "7";
    }
    store::Rule expected;
    expected.operation = L"ENCR";
    for (std::size_t fieldCount = 12; fieldCount <= 25; ++fieldCount) {
        switch (fieldCount) {
            case 13:
                expected.description = L"7";
                break;
            case 14:
                expected.signerGroups = {{L"7", {}}};
                break;
            case 15:
                expected.archiveFormat = 7;
                break;
            case 16:
                expected.deleteExtension = L"7";
                break;
            case 17:
                expected.addExtension = L"7";
                break;
            case 18:
                expected.folders = L"7";
                break;
            case 19:
                expected.copyFolders = L"7";
                break;
            case 20:
                expected.archiveFileCount = 7;
                break;
            case 21:
                expected.archiveSize = 7;
                break;
            case 22:
                expected.archiveTimeout = 7;
                break;
            case 23:
                expected.archiveName = L"7";
                break;
            case 24:
                expected.executable = L"7";
                break;
            case 25:
                expected.executionTimeout = 7;
                break;
            default:
                break;
        }
        EXPECT_EQ(OneRule({fields.begin(), fields.begin() + static_cast<std::ptrdiff_t>(fieldCount)}),
                  expected)
            << fieldCount << " fields";
    }
}

TEST(ParseRulesFile, FieldsAfterTheTwentyFifthAreIgnored) {
    std::vector<std::string> fields = FieldsWith(24, "9");
    fields.insert(fields.end(), {"more", "", "fields"});
    EXPECT_EQ(OneRule(fields), OneRule(FieldsWith(24, "9")));
}

TEST(ParseRulesFile, EmptyFieldsKeepTheirPositions) {
    const store::Rule rule = OneRule({"", "", "", "", "", "", "", "", "", "", "", "last"});
    store::Rule expected;
    expected.secondOutput = L"last";
    EXPECT_EQ(rule, expected);
}

TEST(ParseRulesFile, AnEmptyLastFieldCounts) {
    EXPECT_EQ(Rules("ENCR\n\n\n\n\n\n\n\n\n\n\n\n\r").size(), 1U);
    EXPECT_EQ(Rules("ENCR\n\n\n\n\n\n\n\n\n\n\n\r").size(), 0U);
}

TEST(ParseRulesFile, ZeroStandsForAnEmptyList) {
    const store::Rule rule = OneRule(EmptyFields());
    EXPECT_EQ(rule, store::Rule());
}

TEST(ParseRulesFile, OnlyZeroAloneStandsForAnEmptyList) {
    EXPECT_EQ(OneRule(FieldsWith(4, "00")).masks, store::TextList{L"00"});
    EXPECT_EQ(OneRule(FieldsWith(4, "0;;0")).masks, (store::TextList{L"0", L"0"}));
    EXPECT_EQ(OneRule(FieldsWith(13, "0;;0")).signerGroups,
              (std::vector<store::SignerGroup>{{L"0", {L"0"}}}));
}

TEST(ParseRulesFile, EmptyMasksAndRecipientsAreDropped) {
    EXPECT_EQ(OneRule(FieldsWith(4, "")).masks, store::TextList());
    EXPECT_EQ(OneRule(FieldsWith(4, ";;*.a;;;;*.b;;")).masks, (store::TextList{L"*.a", L"*.b"}));
    EXPECT_EQ(OneRule(FieldsWith(5, ";;;;")).recipients, store::TextList());
}

TEST(ParseRulesFile, SeparatorsAreFoundFromTheLeft) {
    EXPECT_EQ(OneRule(FieldsWith(4, "a;;;b")).masks, (store::TextList{L"a", L";b"}));
    EXPECT_EQ(OneRule(FieldsWith(4, "a;b")).masks, store::TextList{L"a;b"});
    EXPECT_EQ(OneRule(FieldsWith(13, "a;;\\;b")).signerGroups,
              (std::vector<store::SignerGroup>{{L"a;", {}}, {L"b", {}}}));
}

TEST(ParseRulesFile, EmptySignersAreKept) {
    EXPECT_EQ(OneRule(FieldsWith(13, "list;;;;CN=A;;")).signerGroups,
              (std::vector<store::SignerGroup>{{L"list", {L"", L"CN=A", L""}}}));
}

TEST(ParseRulesFile, ASignerListWithoutSignersIsKept) {
    EXPECT_EQ(OneRule(FieldsWith(13, "first;\\;second")).signerGroups,
              (std::vector<store::SignerGroup>{{L"first", {}}, {L"second", {}}}));
}

TEST(ParseRulesFile, ASignerListOfNothingIsSkipped) {
    EXPECT_EQ(OneRule(FieldsWith(13, "")).signerGroups, std::vector<store::SignerGroup>());
    EXPECT_EQ(OneRule(FieldsWith(13, ";\\;")).signerGroups, std::vector<store::SignerGroup>());
    EXPECT_EQ(OneRule(FieldsWith(13, ";\\;list;;CN=A;\\;")).signerGroups,
              (std::vector<store::SignerGroup>{{L"list", {L"CN=A"}}}));
}

TEST(ParseRulesFile, ASignerListMayHaveAnEmptyName) {
    EXPECT_EQ(OneRule(FieldsWith(13, ";;CN=A")).signerGroups,
              (std::vector<store::SignerGroup>{{L"", {L"CN=A"}}}));
}

TEST(ParseRulesFile, NumbersAreReadAsFarAsTheyGo) {
    EXPECT_EQ(OneRule(FieldsWith(6, " \t+12abc")).isOn, 12);
    EXPECT_EQ(OneRule(FieldsWith(6, "-3")).isOn, -3);
    EXPECT_EQ(OneRule(FieldsWith(6, "yes")).isOn, 0);
    EXPECT_EQ(OneRule(FieldsWith(6, "")).isOn, 0);
    EXPECT_EQ(OneRule(FieldsWith(6, "0x10")).isOn, 0);
}

TEST(ParseRulesFile, NothingIsCheckedAgainstTheOperations) {
    EXPECT_EQ(OneRule(FieldsWith(0, "no such operation")).operation, L"no such operation");
    EXPECT_EQ(OneRule(FieldsWith(0, "")).operation, L"");
}

TEST(ParseRulesFile, TheSameRecordTwiceGivesTwoRules) {
    const std::string record = RecordText(FieldsWith(0, "ENCR"));
    const std::vector<store::Rule> rules = Rules(record + record);
    ASSERT_EQ(rules.size(), 2U);
    EXPECT_EQ(rules[0], rules[1]);
}

TEST(ParseRulesFile, AMissingLastRecordEndLosesThatRecordOnly) {
    std::string text = RecordText(FieldsWith(0, "ENCR")) + RecordText(FieldsWith(0, "DECR"));
    text.pop_back();
    const std::vector<store::Rule> rules = Rules(text);
    ASSERT_EQ(rules.size(), 1U);
    EXPECT_EQ(rules[0].operation, L"ENCR");
}

TEST(ParseRulesFile, RulesComeInFileOrderAndSkippedRecordsLeaveNoGap) {
    const std::vector<store::Rule> rules =
        Rules(RecordText(FieldsWith(0, "ENCR")) + "too\nshort\n\r" + RecordText(FieldsWith(0, "DECR")));
    ASSERT_EQ(rules.size(), 2U);
    EXPECT_EQ(rules[0].operation, L"ENCR");
    EXPECT_EQ(rules[1].operation, L"DECR");
}

TEST(ParseRulesFile, LoadingRulesOfOtherOperationsAreNotAppliedHere) {
    // Only a load from the registry copies the first recipient; a rules file is taken as it is.
    std::vector<std::string> fields = FieldsWith(0, "RESG");
    fields[5] = "CN=A";
    EXPECT_EQ(OneRule(fields).resignProfile, L"");
    fields[0] = "MOVE";
    EXPECT_EQ(OneRule(fields).secondOutput, L"");
}

}  // namespace
}  // namespace corvane::test
