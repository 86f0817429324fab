#include "app/rule_row.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace corvane::testing {
namespace {

Rule RuleOf(const wchar_t* operation) {
    Rule rule;
    rule.operation = operation;
    return rule;
}

TEST(RuleCellText, ShowsTheFieldsFromLeftToRight) {
    Rule rule = RuleOf(L"MOVE");
    rule.description = L"description";
    rule.inputFolder = L"in";
    rule.outputFolder = L"out";
    rule.errorFolder = L"error";
    rule.masks = {L"*.txt"};
    rule.csProfile = L"profile";
    rule.secondOutput = L"out 2";
    const wchar_t* const expected[kRuleColumnCount] = {L"7",     L"description", L"Move",    L"in",   L"out",
                                                       L"error", L"*.txt",       L"profile", L"out 2"};
    for (std::size_t column = 0; column < kRuleColumnCount; ++column) {
        EXPECT_EQ(RuleCellText(rule, 6, column), expected[column]) << "column " << column;
    }
}

TEST(RuleCellText, TheNumberIsTheRulesPositionPlusOne) {
    EXPECT_EQ(RuleCellText(RuleOf(L"ENCR"), 0, kNumberColumn), L"1");
    EXPECT_EQ(RuleCellText(RuleOf(L"ENCR"), 9999, kNumberColumn), L"10000");
}

TEST(RuleCellText, AnOperationCodeIsShownByItsDisplayName) {
    EXPECT_EQ(RuleCellText(RuleOf(L"DCCX"), 0, kOperationColumn),
              L"Decrypt, verify and delete attached signatures");
    EXPECT_EQ(RuleCellText(RuleOf(L"EXEC"), 0, kOperationColumn), L"Execute");
}

TEST(RuleCellText, AnOperationThatIsNoCodeIsShownAsItIs) {
    EXPECT_EQ(RuleCellText(RuleOf(L"encr"), 0, kOperationColumn), L"encr");
    EXPECT_EQ(RuleCellText(RuleOf(L"ENC"), 0, kOperationColumn), L"ENC");
    EXPECT_EQ(RuleCellText(RuleOf(L"ENCR\nDECR"), 0, kOperationColumn), L"ENCR\nDECR");
}

// Deliberate: the operation is blanked, not the folder that is not set.
TEST(RuleCellText, AnOutputFolderOf0BlanksTheOperationAndIsShownItself) {
    Rule rule = RuleOf(L"DELE");
    rule.outputFolder = L"0";
    EXPECT_EQ(RuleCellText(rule, 0, kOperationColumn), L"");
    EXPECT_EQ(RuleCellText(rule, 0, kOutputFolderColumn), L"0");
}

// Deliberate: the error folder is blanked, not the CS profile that is not set.
TEST(RuleCellText, ACsProfileOf0BlanksTheErrorFolderAndIsShownItself) {
    Rule rule = RuleOf(L"ENCR");
    rule.csProfile = L"0";
    rule.errorFolder = L"C:\\errors";
    EXPECT_EQ(RuleCellText(rule, 0, kErrorFolderColumn), L"");
    EXPECT_EQ(RuleCellText(rule, 0, kCsProfileColumn), L"0");
}

TEST(RuleCellText, OnlyTheText0Blanks) {
    Rule rule = RuleOf(L"ENCR");
    rule.errorFolder = L"0";
    rule.inputFolder = L"0";
    rule.outputFolder = L"";
    rule.csProfile = L"00";
    EXPECT_EQ(RuleCellText(rule, 0, kOperationColumn), L"Encrypt");
    EXPECT_EQ(RuleCellText(rule, 0, kInputFolderColumn), L"0");
    EXPECT_EQ(RuleCellText(rule, 0, kErrorFolderColumn), L"0");
}

TEST(RuleCellText, MasksShowTheOnlyMaskElseTheirNumber) {
    Rule rule = RuleOf(L"ENCR");
    EXPECT_EQ(RuleCellText(rule, 0, kMasksColumn), L"0");
    rule.masks = {L"*.doc"};
    EXPECT_EQ(RuleCellText(rule, 0, kMasksColumn), L"*.doc");
    rule.masks = {L"*.doc", L"*.xls"};
    EXPECT_EQ(RuleCellText(rule, 0, kMasksColumn), L"2");
}

TEST(RuleCellText, AColumnThatIsNoneIsAFault) {
    EXPECT_THROW((void)RuleCellText(RuleOf(L"ENCR"), 0, kRuleColumnCount), std::invalid_argument);
}

TEST(ExtraText, OfARuleThatCarriesNothingIsEmpty) {
    EXPECT_EQ(ExtraText(RuleOf(L"ENCR")), L"");
    EXPECT_EQ(ExtraText(RuleOf(L"MOVE")), L"");
    EXPECT_EQ(ExtraText(RuleOf(L"DCCX")), L"");
    EXPECT_EQ(ExtraText(RuleOf(L"PACK")), L"");
    EXPECT_EQ(ExtraText(RuleOf(L"EXEC")), L"");
}

TEST(ExtraText, OfMoveJoinsTheFiveFieldsThatAreNotEmpty) {
    Rule rule = RuleOf(L"MOVE");
    rule.secondOutput = L"out 2";
    rule.deleteExtension = L"tmp";
    rule.addExtension = L"bak";
    rule.folders = L"%y";
    rule.copyFolders = L"%m";
    EXPECT_EQ(ExtraText(rule), L"out 2; tmp; bak; %y; %m");
    rule.secondOutput.clear();
    rule.addExtension.clear();
    EXPECT_EQ(ExtraText(rule), L"tmp; %y; %m");
    rule.deleteExtension.clear();
    rule.folders.clear();
    EXPECT_EQ(ExtraText(rule), L"%m");
}

TEST(ExtraText, OfMoveShowsNeitherCertificatesNorArchiveFormat) {
    Rule rule = RuleOf(L"MOVE");
    rule.secondOutput = L"out 2";
    rule.recipients = {L"CN=A"};
    rule.signerGroups = {{L"g", {}}};
    rule.archiveFormat = 1;
    EXPECT_EQ(ExtraText(rule), L"out 2");
}

TEST(ExtraText, OfResignShowsGroupsProfileAndFormatsWithoutBlanksAroundTheArrow) {
    Rule rule = RuleOf(L"RESG");
    rule.signerGroups = {{L"g", {L"CN=A", L"CN=B"}}};
    rule.resignProfile = L"P";
    rule.inputDetached = 1;
    EXPECT_EQ(ExtraText(rule), L"1; P; Detached signature->Attached signature");
}

TEST(ExtraText, OfResignWithoutGroupsStartsWithTheProfileEvenAnEmptyOne) {
    Rule rule = RuleOf(L"RESG");
    rule.outputDetached = -1;
    rule.recipients = {L"CN=A"};
    rule.archiveFormat = 2;
    EXPECT_EQ(ExtraText(rule), L"; Attached signature->Detached signature");
}

TEST(ExtraText, CountsRecipientsForDecryptAndVerifyAndSignerListsForAllOthers) {
    Rule rule = RuleOf(L"DCCX");
    rule.recipients = {L"CN=A", L"CN=B", L"CN=C"};
    rule.signerGroups = {{L"g", {}}, {L"h", {}}};
    EXPECT_EQ(ExtraText(rule), L"3");
    rule.operation = L"CHCK";
    EXPECT_EQ(ExtraText(rule), L"2");
    rule.signerGroups.clear();
    EXPECT_EQ(ExtraText(rule), L"");
}

TEST(ExtraText, TheArchiveFormatFollowsTheNumber) {
    Rule rule = RuleOf(L"SIGN");
    rule.archiveFormat = 1;
    EXPECT_EQ(ExtraText(rule), L"ZIP archivation");
    rule.archiveFormat = 2;
    rule.signerGroups = {{L"g", {}}};
    EXPECT_EQ(ExtraText(rule), L"1; GZIP archivation");
}

// Deliberate: the separator depends on what the rule has, not on what is shown before it.
TEST(ExtraText, TheArchiveFormatHasItsSeparatorAlsoAfterANumberThatIsNotShown) {
    Rule rule = RuleOf(L"ENCR");
    rule.recipients = {L"CN=A"};
    rule.archiveFormat = 1;
    EXPECT_EQ(ExtraText(rule), L"; ZIP archivation");
    rule.operation = L"DCCX";
    rule.recipients.clear();
    rule.signerGroups = {{L"g", {}}};
    EXPECT_EQ(ExtraText(rule), L"; ZIP archivation");
}

TEST(ExtraText, AnUnknownArchiveFormatLeavesOnlyItsSeparator) {
    Rule rule = RuleOf(L"ENCR");
    rule.archiveFormat = 3;
    EXPECT_EQ(ExtraText(rule), L"");
    rule.signerGroups = {{L"g", {}}};
    EXPECT_EQ(ExtraText(rule), L"1; ");
}

TEST(ExtraText, OfPackAddsTheNumbersAboveZeroAndTheName) {
    Rule rule = RuleOf(L"PACK");
    rule.archiveFileCount = 10;
    rule.archiveSize = 2048;
    rule.archiveTimeout = 5;
    rule.archiveName = L"day";
    EXPECT_EQ(ExtraText(rule), L"10; 2048; 5; day");
    rule.archiveFormat = 1;
    EXPECT_EQ(ExtraText(rule), L"ZIP archivation; 10; 2048; 5; day");
}

TEST(ExtraText, OfPackLeavesOutNumbersThatAreZeroOrLess) {
    Rule rule = RuleOf(L"PACK");
    rule.archiveFileCount = -1;
    rule.archiveTimeout = 5;
    EXPECT_EQ(ExtraText(rule), L"5");
    rule.archiveTimeout = 0;
    rule.archiveName = L"day";
    EXPECT_EQ(ExtraText(rule), L"day");
}

TEST(ExtraText, PackFieldsOfOtherOperationsAreNotShown) {
    Rule rule = RuleOf(L"ARCH");
    rule.archiveFormat = 1;
    rule.archiveFileCount = 10;
    rule.archiveName = L"day";
    rule.executable = L"a.exe";
    rule.executionTimeout = 5;
    EXPECT_EQ(ExtraText(rule), L"ZIP archivation");
}

TEST(ExtraText, OfExecuteShowsTheProgramAndATimeoutAboveZero) {
    Rule rule = RuleOf(L"EXEC");
    rule.executable = L"a.exe";
    EXPECT_EQ(ExtraText(rule), L"a.exe");
    rule.executionTimeout = 15;
    EXPECT_EQ(ExtraText(rule), L"a.exe; 15");
    rule.executionTimeout = -15;
    rule.signerGroups = {{L"g", {}}};
    EXPECT_EQ(ExtraText(rule), L"1; a.exe");
}

TEST(ExtraText, OfExecuteKeepsTheSeparatorsOfAnEmptyProgram) {
    Rule rule = RuleOf(L"EXEC");
    rule.executionTimeout = 15;
    EXPECT_EQ(ExtraText(rule), L"; 15");
    rule.archiveFormat = 2;
    EXPECT_EQ(ExtraText(rule), L"GZIP archivation; ; 15");
}

}  // namespace
}  // namespace corvane::testing
