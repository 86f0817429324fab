#include "app/rule_list/rule_description.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

TEST(DescribeRule, OfARuleThatCarriesNothingElseIsEmpty) {
    store::Rule rule;
    rule.operation = L"ENCR";
    rule.inputFolder = L"in";
    rule.outputFolder = L"out";
    rule.errorFolder = L"error";
    rule.masks = {L"*.*"};
    rule.description = L"text";
    EXPECT_EQ(app::DescribeRule(rule), L"");
}

TEST(DescribeRule, StartsWithTheResignProfileAndTheFormats) {
    store::Rule rule;
    rule.operation = L"RESG";
    rule.resignProfile = L"P";
    rule.outputDetached = 1;
    EXPECT_EQ(app::DescribeRule(rule),
              L"Resign to CS profile: P\r\nAttached signature->Detached signature\r\n\r\n");
    rule.inputDetached = 2;
    rule.outputDetached = 0;
    EXPECT_EQ(app::DescribeRule(rule),
              L"Resign to CS profile: P\r\nDetached signature->Attached signature\r\n\r\n");
}

TEST(DescribeRule, TheFormatsAloneAreNotShownWithoutAResignProfile) {
    store::Rule rule;
    rule.operation = L"RESG";
    rule.inputDetached = 1;
    rule.outputDetached = 1;
    EXPECT_EQ(app::DescribeRule(rule), L"");
}

TEST(DescribeRule, NumbersRecipientsFromOne) {
    store::Rule rule;
    rule.recipients = {L"CN=A", L"CN=B"};
    EXPECT_EQ(app::DescribeRule(rule), L"Recipient 1:\r\nCN=A\r\n\r\nRecipient 2:\r\nCN=B\r\n\r\n");
}

TEST(DescribeRule, NumbersSignersWithinEachList) {
    store::Rule rule;
    rule.signerGroups = {{L"first", {L"CN=A", L"CN=B"}}, {L"none", {}}, {L"last", {L"CN=C"}}};
    EXPECT_EQ(app::DescribeRule(rule),
              L"List name: first\r\nSigner 1:\r\nCN=A\r\nSigner 2:\r\nCN=B\r\n\r\n"
              L"List name: none\r\n\r\n"
              L"List name: last\r\nSigner 1:\r\nCN=C\r\n\r\n");
}

TEST(DescribeRule, NamesTheArchiveFormat) {
    store::Rule rule;
    rule.archiveFormat = 1;
    EXPECT_EQ(app::DescribeRule(rule), L"ZIP archivation\r\n\r\n");
    rule.archiveFormat = 2;
    EXPECT_EQ(app::DescribeRule(rule), L"GZIP archivation\r\n\r\n");
}

TEST(DescribeRule, AnUnknownArchiveFormatLeavesABlankLine) {
    store::Rule rule;
    rule.archiveFormat = 3;
    EXPECT_EQ(app::DescribeRule(rule), L"\r\n\r\n");
    rule.archiveFormat = -1;
    EXPECT_EQ(app::DescribeRule(rule), L"\r\n\r\n");
}

// Deliberate: it replaces what stands before it, and a blank stands before its colon.
TEST(DescribeRule, ASecondOutputFolderTakesThePlaceOfAllItemsBeforeIt) {
    store::Rule rule;
    rule.operation = L"MOVE";
    rule.resignProfile = L"P";
    rule.recipients = {L"CN=A"};
    rule.signerGroups = {{L"first", {L"CN=B"}}};
    rule.archiveFormat = 1;
    rule.secondOutput = L"C:\\second";
    rule.deleteExtension = L"tmp";
    EXPECT_EQ(app::DescribeRule(rule),
              L"Second Output folder : C:\\second\r\n\r\nDelete extension: tmp\r\n\r\n");
}

TEST(DescribeRule, PutsTheRemainingItemsInTheirOrderEachWithABlankLine) {
    store::Rule rule;
    rule.deleteExtension = L"del";
    rule.addExtension = L"add";
    rule.folders = L"fol";
    rule.copyFolders = L"cop";
    rule.archiveFileCount = 1;
    rule.archiveSize = 2;
    rule.archiveTimeout = 3;
    rule.archiveName = L"nam";
    rule.executable = L"a.exe";
    rule.executionTimeout = 4;
    EXPECT_EQ(app::DescribeRule(rule),
              L"Delete extension: del\r\n\r\n"
              L"Add extension: add\r\n\r\n"
              L"Accounting format: fol\r\n\r\n"
              L"Accounting copy format: cop\r\n\r\n"
              L"File count: 1\r\n\r\n"
              L"Archive size (KB.): 2\r\n\r\n"
              L"Archivation timeout (min.): 3\r\n\r\n"
              L"Archives name format: nam\r\n\r\n"
              L"Executable file: a.exe\r\n\r\n"
              L"Execution timeout (min.): 4\r\n\r\n");
}

TEST(DescribeRule, PutsTheFirstFourItemsInTheirOrder) {
    store::Rule rule;
    rule.archiveFormat = 1;
    rule.signerGroups = {{L"g", {}}};
    rule.recipients = {L"CN=A"};
    rule.resignProfile = L"P";
    EXPECT_EQ(app::DescribeRule(rule),
              L"Resign to CS profile: P\r\nAttached signature->Attached signature\r\n\r\n"
              L"Recipient 1:\r\nCN=A\r\n\r\nList name: g\r\n\r\nZIP archivation\r\n\r\n");
}

// Deliberate: what is not zero is shown, so negative numbers are too.
TEST(DescribeRule, ShowsNegativeArchiveNumbers) {
    store::Rule rule;
    rule.archiveFileCount = -1;
    rule.archiveSize = -2147483647 - 1;
    rule.archiveTimeout = -3;
    EXPECT_EQ(app::DescribeRule(rule),
              L"File count: -1\r\n\r\nArchive size (KB.): -2147483648\r\n\r\n"
              L"Archivation timeout (min.): -3\r\n\r\n");
}

TEST(DescribeRule, TheExecutionTimeoutIsShownOnlyAboveZeroAndOnlyWithAProgram) {
    store::Rule rule;
    rule.executionTimeout = 5;
    EXPECT_EQ(app::DescribeRule(rule), L"");
    rule.executable = L"a.exe";
    rule.executionTimeout = 0;
    EXPECT_EQ(app::DescribeRule(rule), L"Executable file: a.exe\r\n\r\n");
    rule.executionTimeout = -5;
    EXPECT_EQ(app::DescribeRule(rule), L"Executable file: a.exe\r\n\r\n");
}

TEST(DescribeMasks, StartsEveryMaskWithALineBreak) {
    store::Rule rule;
    rule.masks = {L"a", L"b"};
    EXPECT_EQ(app::DescribeMasks(rule), L"\r\na\r\nb");
}

TEST(DescribeMasks, OfNoMasksIsEmpty) {
    EXPECT_EQ(app::DescribeMasks(store::Rule()), L"");
}

TEST(RulePositionFromNumberCell, IsOneLessThanTheNumber) {
    EXPECT_EQ(app::RulePositionFromNumberCell(L"1", 3), 0U);
    EXPECT_EQ(app::RulePositionFromNumberCell(L"3", 3), 2U);
}

TEST(RulePositionFromNumberCell, OutsideTheProfilesRulesThereIsNone) {
    EXPECT_EQ(app::RulePositionFromNumberCell(L"4", 3), std::nullopt);
    EXPECT_EQ(app::RulePositionFromNumberCell(L"1", 0), std::nullopt);
    EXPECT_EQ(app::RulePositionFromNumberCell(L"0", 3), std::nullopt);
    EXPECT_EQ(app::RulePositionFromNumberCell(L"-1", 3), std::nullopt);
    EXPECT_EQ(app::RulePositionFromNumberCell(L"-2147483648", 3), std::nullopt);
    EXPECT_EQ(app::RulePositionFromNumberCell(L"99999999999999999999", 3), std::nullopt);
}

TEST(RulePositionFromNumberCell, ACellThatIsNoNumberHasNone) {
    EXPECT_EQ(app::RulePositionFromNumberCell(L"", 3), std::nullopt);
    EXPECT_EQ(app::RulePositionFromNumberCell(L"x", 3), std::nullopt);
}

}  // namespace
}  // namespace corvane::test
