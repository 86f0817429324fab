#include <gtest/gtest.h>

#include "store/rules_file/rules_file.h"
#include "tests/store/rules_file/record_text.h"

namespace corvane::test {
namespace {

// A rule in which no two fields are alike, so that no two can change places unseen.
store::Rule RuleWithEveryField() {
    store::Rule rule;
    rule.operation = L"ENCR";
    rule.inputFolder = L"C:\\in";
    rule.outputFolder = L"C:\\out";
    rule.errorFolder = L"C:\\error";
    rule.masks = {L"*.doc", L"*.xls"};
    rule.recipients = {L"CN=First,C=RU", L"CN=Second"};
    rule.isOn = 1;
    rule.csProfile = L"Main profile";
    rule.inputDetached = 2;
    rule.outputDetached = 3;
    rule.resignProfile = L"Other profile";
    rule.secondOutput = L"D:\\second";
    rule.description = L"Letters to the bank";
    rule.signerGroups = {{L"chiefs", {L"CN=Chief", L"CN=Deputy"}}, {L"clerks", {L"CN=Clerk"}}};
    rule.archiveFormat = 4;
    rule.deleteExtension = L"tmp";
    rule.addExtension = L"p7e";
    rule.folders = L"%Y";
    rule.copyFolders = L"%M";
    rule.archiveFileCount = 5;
    rule.archiveSize = 6;
    rule.archiveTimeout = -7;
    rule.archiveName = L"mail%n";
    rule.executable = L"C:\\handler.exe";
    rule.executionTimeout = 2147483647;
    rule.legacyMask = L"*.old";
    return rule;
}

TEST(FormatRulesFile, ARuleIsItsTwentyFiveFieldsInTheOrderOfTheFile) {
    EXPECT_EQ(store::FormatRulesFile({RuleWithEveryField()}),
              L"ENCR\n"
              L"C:\\in\n"
              L"C:\\out\n"
              L"C:\\error\n"
              L"*.doc;;*.xls\n"
              L"CN=First,C=RU;;CN=Second\n"
              L"1\n"
              L"Main profile\n"
              L"2\n"
              L"3\n"
              L"Other profile\n"
              L"D:\\second\n"
              L"Letters to the bank\n"
              L"chiefs;;CN=Chief;;CN=Deputy;\\;clerks;;CN=Clerk\n"
              L"4\n"
              L"tmp\n"
              L"p7e\n"
              L"%Y\n"
              L"%M\n"
              L"5\n"
              L"6\n"
              L"-7\n"
              L"mail%n\n"
              L"C:\\handler.exe\n"
              L"2147483647\n\r");
}

TEST(FormatRulesFile, ANewRuleHasZeroForEveryNumberAndEveryList) {
    EXPECT_EQ(store::FormatRulesFile({store::Rule()}),
              L"\n\n\n\n0\n0\n0\n\n0\n0\n\n\n\n0\n0\n\n\n\n\n0\n0\n0\n\n\n0\n\r");
}

TEST(FormatRulesFile, ARecordEndsWithLineFeedBeforeCarriageReturn) {
    const std::wstring text = store::FormatRulesFile({store::Rule(), store::Rule()});
    const std::wstring record = store::FormatRulesFile({store::Rule()});
    EXPECT_EQ(text, record + record);
    EXPECT_EQ(text.substr(text.size() - 2), L"\n\r");
    EXPECT_EQ(text.find(L"\r\n\r"), std::wstring::npos);
}

TEST(FormatRulesFile, NoRulesGiveAnEmptyText) {
    EXPECT_EQ(store::FormatRulesFile({}), L"");
}

TEST(FormatRulesFile, RulesStandInListOrderAndThoseWithoutAnOperationAreIncluded) {
    store::Rule first;
    first.operation = L"MOVE";
    store::Rule second;
    store::Rule third;
    third.operation = L"DELE";
    EXPECT_EQ(store::FormatRulesFile({first, second, third}),
              Wide(RecordText(FieldsWith(0, "MOVE")) + RecordText(EmptyFields()) +
                   RecordText(FieldsWith(0, "DELE"))));
}

TEST(FormatRulesFile, TheLegacyMaskIsNotWritten) {
    store::Rule rule;
    rule.legacyMask = L"*.old";
    EXPECT_EQ(store::FormatRulesFile({rule}), store::FormatRulesFile({store::Rule()}));
}

TEST(FormatRulesFile, AListOfOneElementHasNoSeparator) {
    store::Rule rule;
    rule.masks = {L"*.*"};
    EXPECT_EQ(store::FormatRulesFile({rule}), Wide(RecordText(FieldsWith(4, "*.*"))));
}

TEST(FormatRulesFile, AListOfOneEmptyElementIsAnEmptyField) {
    store::Rule rule;
    rule.masks = {L""};
    EXPECT_EQ(store::FormatRulesFile({rule}), Wide(RecordText(FieldsWith(4, ""))));
}

TEST(FormatRulesFile, EmptyElementsKeepTheirSeparators) {
    store::Rule rule;
    rule.recipients = {L"", L"CN=A", L"", L""};
    EXPECT_EQ(store::FormatRulesFile({rule}), Wide(RecordText(FieldsWith(5, ";;CN=A;;;;"))));
}

TEST(FormatRulesFile, ASignerListWithoutSignersIsItsName) {
    store::Rule rule;
    rule.signerGroups = {{L"first", {}}, {L"second", {}}};
    EXPECT_EQ(store::FormatRulesFile({rule}), Wide(RecordText(FieldsWith(13, "first;\\;second"))));
}

TEST(FormatRulesFile, AnEmptySignerKeepsItsSeparator) {
    store::Rule rule;
    rule.signerGroups = {{L"list", {L"", L"CN=A"}}};
    EXPECT_EQ(store::FormatRulesFile({rule}), Wide(RecordText(FieldsWith(13, "list;;;;CN=A"))));
}

TEST(FormatRulesFile, SeparatorsInsideValuesAreNotEscaped) {
    store::Rule rule;
    rule.inputFolder = L"a\nb";
    rule.masks = {L"c;;d"};
    rule.description = L"e\n\rf";
    rule.signerGroups = {{L"g;\\;h", {L"i;;j"}}};
    const std::wstring text = store::FormatRulesFile({rule});
    EXPECT_NE(text.find(L"\na\nb\n"), std::wstring::npos);
    EXPECT_NE(text.find(L"\nc;;d\n"), std::wstring::npos);
    EXPECT_NE(text.find(L"\ne\n\rf\n"), std::wstring::npos);
    EXPECT_NE(text.find(L"\ng;\\;h;;i;;j\n"), std::wstring::npos);
}

TEST(FormatRulesFile, TheSmallestNumberIsWrittenWhole) {
    store::Rule rule;
    rule.archiveSize = -2147483647 - 1;
    EXPECT_EQ(store::FormatRulesFile({rule}), Wide(RecordText(FieldsWith(20, "-2147483648"))));
}

}  // namespace
}  // namespace corvane::test
