#include "app/rule_list/rule_row.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace corvane::test {
namespace {

enum Column : std::size_t {
    kNumberColumn,
    kDescriptionColumn,
    kOperationColumn,
    kInputFolderColumn,
    kOutputFolderColumn,
    kErrorFolderColumn,
    kMasksColumn,
    kCsProfileColumn,
    kExtraColumn,
    kColumnCount
};

std::wstring CellText(const store::Rule& rule, std::size_t position, std::size_t column) {
    return app::RuleColumnAt(column).text(rule, position);
}

store::Rule RuleOf(const wchar_t* operation) {
    store::Rule rule;
    rule.operation = operation;
    return rule;
}

TEST(RuleCellText, ShowsTheFieldsFromLeftToRight) {
    store::Rule rule = RuleOf(L"MOVE");
    rule.description = L"description";
    rule.inputFolder = L"in";
    rule.outputFolder = L"out";
    rule.errorFolder = L"error";
    rule.masks = {L"*.txt"};
    rule.csProfile = L"profile";
    rule.secondOutput = L"out 2";
    ASSERT_EQ(app::RuleColumns().size(), kColumnCount);
    const wchar_t* const expected[kColumnCount] = {L"7",     L"description", L"Move",    L"in",   L"out",
                                                   L"error", L"*.txt",       L"profile", L"out 2"};
    for (std::size_t column = 0; column < kColumnCount; ++column) {
        EXPECT_EQ(CellText(rule, 6, column), expected[column]) << "column " << column;
    }
}

TEST(RuleCellText, TheNumberIsTheRulesPositionPlusOne) {
    EXPECT_EQ(CellText(RuleOf(L"ENCR"), 0, kNumberColumn), L"1");
    EXPECT_EQ(CellText(RuleOf(L"ENCR"), 9999, kNumberColumn), L"10000");
}

TEST(RuleCellText, AnOperationCodeIsShownByItsDisplayName) {
    EXPECT_EQ(CellText(RuleOf(L"DCCX"), 0, kOperationColumn),
              L"Decrypt, verify and delete attached signatures");
    EXPECT_EQ(CellText(RuleOf(L"EXEC"), 0, kOperationColumn), L"Execute");
}

TEST(RuleCellText, AnOperationThatIsNoCodeIsShownAsItIs) {
    EXPECT_EQ(CellText(RuleOf(L"encr"), 0, kOperationColumn), L"encr");
    EXPECT_EQ(CellText(RuleOf(L"ENC"), 0, kOperationColumn), L"ENC");
    EXPECT_EQ(CellText(RuleOf(L"ENCR\nDECR"), 0, kOperationColumn), L"ENCR\nDECR");
}

// Deliberate: the operation is blanked, not the folder that is not set.
TEST(RuleCellText, AnOutputFolderOf0BlanksTheOperationAndIsShownItself) {
    store::Rule rule = RuleOf(L"DELE");
    rule.outputFolder = L"0";
    EXPECT_EQ(CellText(rule, 0, kOperationColumn), L"");
    EXPECT_EQ(CellText(rule, 0, kOutputFolderColumn), L"0");
}

// Deliberate: the error folder is blanked, not the CS profile that is not set.
TEST(RuleCellText, ACsProfileOf0BlanksTheErrorFolderAndIsShownItself) {
    store::Rule rule = RuleOf(L"ENCR");
    rule.csProfile = L"0";
    rule.errorFolder = L"C:\\errors";
    EXPECT_EQ(CellText(rule, 0, kErrorFolderColumn), L"");
    EXPECT_EQ(CellText(rule, 0, kCsProfileColumn), L"0");
}

TEST(RuleCellText, OnlyTheText0Blanks) {
    store::Rule rule = RuleOf(L"ENCR");
    rule.errorFolder = L"0";
    rule.inputFolder = L"0";
    rule.outputFolder = L"";
    rule.csProfile = L"00";
    EXPECT_EQ(CellText(rule, 0, kOperationColumn), L"Encrypt");
    EXPECT_EQ(CellText(rule, 0, kInputFolderColumn), L"0");
    EXPECT_EQ(CellText(rule, 0, kErrorFolderColumn), L"0");
}

TEST(RuleCellText, MasksShowTheOnlyMaskElseTheirNumber) {
    store::Rule rule = RuleOf(L"ENCR");
    EXPECT_EQ(CellText(rule, 0, kMasksColumn), L"0");
    rule.masks = {L"*.doc"};
    EXPECT_EQ(CellText(rule, 0, kMasksColumn), L"*.doc");
    rule.masks = {L"*.doc", L"*.xls"};
    EXPECT_EQ(CellText(rule, 0, kMasksColumn), L"2");
}

TEST(ExtraText, OfARuleThatCarriesNothingIsEmpty) {
    EXPECT_EQ(app::ExtraText(RuleOf(L"ENCR")), L"");
    EXPECT_EQ(app::ExtraText(RuleOf(L"MOVE")), L"");
    EXPECT_EQ(app::ExtraText(RuleOf(L"DCCX")), L"");
    EXPECT_EQ(app::ExtraText(RuleOf(L"PACK")), L"");
    EXPECT_EQ(app::ExtraText(RuleOf(L"EXEC")), L"");
}

TEST(ExtraText, OfMoveJoinsTheFiveFieldsThatAreNotEmpty) {
    store::Rule rule = RuleOf(L"MOVE");
    rule.secondOutput = L"out 2";
    rule.deleteExtension = L"tmp";
    rule.addExtension = L"bak";
    rule.folders = L"%y";
    rule.copyFolders = L"%m";
    EXPECT_EQ(app::ExtraText(rule), L"out 2; tmp; bak; %y; %m");
    rule.secondOutput.clear();
    rule.addExtension.clear();
    EXPECT_EQ(app::ExtraText(rule), L"tmp; %y; %m");
    rule.deleteExtension.clear();
    rule.folders.clear();
    EXPECT_EQ(app::ExtraText(rule), L"%m");
}

TEST(ExtraText, OfMoveShowsNeitherCertificatesNorArchiveFormat) {
    store::Rule rule = RuleOf(L"MOVE");
    rule.secondOutput = L"out 2";
    rule.recipients = {L"CN=A"};
    rule.signerGroups = {{L"g", {}}};
    rule.archiveFormat = 1;
    EXPECT_EQ(app::ExtraText(rule), L"out 2");
}

TEST(ExtraText, OfResignShowsGroupsProfileAndFormatsWithoutBlanksAroundTheArrow) {
    store::Rule rule = RuleOf(L"RESG");
    rule.signerGroups = {{L"g", {L"CN=A", L"CN=B"}}};
    rule.resignProfile = L"P";
    rule.inputDetached = 1;
    EXPECT_EQ(app::ExtraText(rule), L"1; P; Detached signature->Attached signature");
}

TEST(ExtraText, OfResignWithoutGroupsStartsWithTheProfileEvenAnEmptyOne) {
    store::Rule rule = RuleOf(L"RESG");
    rule.outputDetached = -1;
    rule.recipients = {L"CN=A"};
    rule.archiveFormat = 2;
    EXPECT_EQ(app::ExtraText(rule), L"; Attached signature->Detached signature");
}

TEST(ExtraText, CountsRecipientsForDecryptAndVerifyAndSignerListsForAllOthers) {
    store::Rule rule = RuleOf(L"DCCX");
    rule.recipients = {L"CN=A", L"CN=B", L"CN=C"};
    rule.signerGroups = {{L"g", {}}, {L"h", {}}};
    EXPECT_EQ(app::ExtraText(rule), L"3");
    rule.operation = L"CHCK";
    EXPECT_EQ(app::ExtraText(rule), L"2");
    rule.signerGroups.clear();
    EXPECT_EQ(app::ExtraText(rule), L"");
}

TEST(ExtraText, TheArchiveFormatFollowsTheNumber) {
    store::Rule rule = RuleOf(L"SIGN");
    rule.archiveFormat = 1;
    EXPECT_EQ(app::ExtraText(rule), L"ZIP archivation");
    rule.archiveFormat = 2;
    rule.signerGroups = {{L"g", {}}};
    EXPECT_EQ(app::ExtraText(rule), L"1; GZIP archivation");
}

// Deliberate: the separator depends on what the rule has, not on what is shown before it.
TEST(ExtraText, TheArchiveFormatHasItsSeparatorAlsoAfterANumberThatIsNotShown) {
    store::Rule rule = RuleOf(L"ENCR");
    rule.recipients = {L"CN=A"};
    rule.archiveFormat = 1;
    EXPECT_EQ(app::ExtraText(rule), L"; ZIP archivation");
    rule.operation = L"DCCX";
    rule.recipients.clear();
    rule.signerGroups = {{L"g", {}}};
    EXPECT_EQ(app::ExtraText(rule), L"; ZIP archivation");
}

TEST(ExtraText, AnUnknownArchiveFormatLeavesOnlyItsSeparator) {
    store::Rule rule = RuleOf(L"ENCR");
    rule.archiveFormat = 3;
    EXPECT_EQ(app::ExtraText(rule), L"");
    rule.signerGroups = {{L"g", {}}};
    EXPECT_EQ(app::ExtraText(rule), L"1; ");
}

TEST(ExtraText, OfPackAddsTheNumbersAboveZeroAndTheName) {
    store::Rule rule = RuleOf(L"PACK");
    rule.archiveFileCount = 10;
    rule.archiveSize = 2048;
    rule.archiveTimeout = 5;
    rule.archiveName = L"day";
    EXPECT_EQ(app::ExtraText(rule), L"10; 2048; 5; day");
    rule.archiveFormat = 1;
    EXPECT_EQ(app::ExtraText(rule), L"ZIP archivation; 10; 2048; 5; day");
}

TEST(ExtraText, OfPackLeavesOutNumbersThatAreZeroOrLess) {
    store::Rule rule = RuleOf(L"PACK");
    rule.archiveFileCount = -1;
    rule.archiveTimeout = 5;
    EXPECT_EQ(app::ExtraText(rule), L"5");
    rule.archiveTimeout = 0;
    rule.archiveName = L"day";
    EXPECT_EQ(app::ExtraText(rule), L"day");
}

TEST(ExtraText, PackFieldsOfOtherOperationsAreNotShown) {
    store::Rule rule = RuleOf(L"ARCH");
    rule.archiveFormat = 1;
    rule.archiveFileCount = 10;
    rule.archiveName = L"day";
    rule.executable = L"a.exe";
    rule.executionTimeout = 5;
    EXPECT_EQ(app::ExtraText(rule), L"ZIP archivation");
}

TEST(ExtraText, OfExecuteShowsTheProgramAndATimeoutAboveZero) {
    store::Rule rule = RuleOf(L"EXEC");
    rule.executable = L"a.exe";
    EXPECT_EQ(app::ExtraText(rule), L"a.exe");
    rule.executionTimeout = 15;
    EXPECT_EQ(app::ExtraText(rule), L"a.exe; 15");
    rule.executionTimeout = -15;
    rule.signerGroups = {{L"g", {}}};
    EXPECT_EQ(app::ExtraText(rule), L"1; a.exe");
}

TEST(ExtraText, OfExecuteKeepsTheSeparatorsOfAnEmptyProgram) {
    store::Rule rule = RuleOf(L"EXEC");
    rule.executionTimeout = 15;
    EXPECT_EQ(app::ExtraText(rule), L"; 15");
    rule.archiveFormat = 2;
    EXPECT_EQ(app::ExtraText(rule), L"GZIP archivation; ; 15");
}

}  // namespace
}  // namespace corvane::test
