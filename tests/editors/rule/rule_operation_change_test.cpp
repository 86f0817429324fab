#include "editors/rule/rule_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/editors/rule/described_form.h"
#include "tests/kit/samples/sample_rules.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

editors::RuleForm OpenedWithArchiver(const std::wstring& code, std::int32_t archiveFormat) {
    store::Rule rule = FullRule(code);
    rule.archiveFormat = archiveFormat;
    return Opened(rule);
}

void Select(editors::RuleForm& form, std::initializer_list<const wchar_t*> codes) {
    for (const wchar_t* const code : codes) {
        SelectOperation(form, code);
    }
}

TEST(ChangeOperation, EncryptWithTwoRecipientsToSignAndBackShowsZeroAndNoRecipients) {
    editors::RuleForm form = Opened(FullRule(L"ENCR"));
    ASSERT_EQ(form.cert.text, L"2");
    Select(form, {L"SIGN", L"ENCR"});
    EXPECT_EQ(form.cert.text, L"0");
    EXPECT_THAT(form.recipients, IsEmpty());
}

TEST(ChangeOperation, RecipientsSurviveAmongRecipientOperations) {
    editors::RuleForm form = Opened(FullRule(L"ENCR"));
    Select(form, {L"LENC", L"SGEN", L"ENCR"});
    EXPECT_EQ(form.cert.text, L"2");
    EXPECT_THAT(form.recipients, ElementsAre(L"CN=A", L"CN=B"));
}

TEST(ChangeOperation, SignerListsSurviveAmongSignerOperations) {
    editors::RuleForm form = Opened(FullRule(L"CHCK"));
    Select(form, {L"RESG", L"DCCX", L"DCHK", L"CHKX"});
    EXPECT_EQ(form.cert.text, L"3");
    EXPECT_EQ(form.result.signerGroups, FullRule(L"CHCK").signerGroups);
}

TEST(ChangeOperation, LeavingTheSignerOperationsDropsTheSignerLists) {
    for (const std::wstring to : kCodes) {
        if (IsOneOf(to, L"CHCK CHKX DCHK RESG DCCX EXEC")) {
            continue;
        }
        editors::RuleForm form = Opened(FullRule(L"CHCK"));
        SelectOperation(form, to);
        EXPECT_THAT(form.result.signerGroups, IsEmpty());
        EXPECT_EQ(form.cert.text, to == L"MOVE" ? L"" : L"0");
    }
}

// Deliberate: users who come back from executing to verifying find their signer lists again.
TEST(ChangeOperation, SignerListsSurviveExecuteAndTheirNumberIsShownAgain) {
    editors::RuleForm form = Opened(FullRule(L"CHCK"));
    SelectOperation(form, L"EXEC");
    EXPECT_EQ(form.cert.text, L"");
    SelectOperation(form, L"CHKX");
    EXPECT_EQ(form.cert.text, L"3");
    EXPECT_TRUE(form.cert.isReadOnly);
    EXPECT_EQ(form.result.signerGroups.size(), 3U);
}

TEST(ChangeOperation, SignerListsDoNotSurviveExecuteAndAThirdOperation) {
    editors::RuleForm form = Opened(FullRule(L"CHCK"));
    Select(form, {L"EXEC", L"HASH", L"CHCK"});
    EXPECT_EQ(form.cert.text, L"0");
    EXPECT_THAT(form.result.signerGroups, IsEmpty());
}

TEST(ChangeOperation, ExecuteToVerifyShowsTheNumberOfSignerListsAndNotThePath) {
    editors::RuleForm form = Opened(FullRule(L"EXEC"));
    SelectOperation(form, L"CHCK");
    EXPECT_EQ(form.cert.text, L"0");
}

TEST(ChangeOperation, ThePathOfMoveDoesNotBecomeThatOfExecuteOrTheOtherWayRound) {
    editors::RuleForm form = Opened(FullRule(L"MOVE"));
    SelectOperation(form, L"EXEC");
    EXPECT_EQ(form.cert.text, L"");
    form.cert.text = L"C:\\run.exe";
    SelectOperation(form, L"MOVE");
    EXPECT_EQ(form.cert.text, L"");
    form.cert.text = L"C:\\second";
    SelectOperation(form, L"HASH");
    EXPECT_EQ(form.cert.text, L"0");
}

TEST(ChangeOperation, GzipOfEncryptIsGzipOfArchiveAndOfEncryptAgain) {
    editors::RuleForm form = OpenedWithArchiver(L"ENCR", 2);
    SelectOperation(form, L"ARCH");
    EXPECT_THAT(form.choices[1].entries, ElementsAre(L"ZIP archivation", L"GZIP archivation"));
    EXPECT_EQ(form.choices[1].index, 1);
    SelectOperation(form, L"ENCR");
    EXPECT_THAT(form.choices[1].entries, ElementsAre(L"No", L"ZIP archivation", L"GZIP archivation"));
    EXPECT_EQ(form.choices[1].index, 2);
}

TEST(ChangeOperation, ZipSurvivesToo) {
    editors::RuleForm form = OpenedWithArchiver(L"LDEC", 1);
    SelectOperation(form, L"UNAR");
    EXPECT_EQ(form.choices[1].index, 0);
    SelectOperation(form, L"DCCX");
    EXPECT_EQ(form.choices[1].index, 1);
}

TEST(ChangeOperation, NoArchiverBecomesZipWhereThereMustBeOne) {
    editors::RuleForm form = OpenedWithArchiver(L"ENCR", 0);
    SelectOperation(form, L"ARCH");
    EXPECT_EQ(form.choices[1].index, 0);
    SelectOperation(form, L"ENCR");
    EXPECT_EQ(form.choices[1].index, 1);
}

TEST(ChangeOperation, TheArchiverStaysAmongOperationsWithTheSameList) {
    editors::RuleForm form = OpenedWithArchiver(L"ENCR", 2);
    Select(form, {L"DECR", L"SGEN", L"DCCX"});
    EXPECT_EQ(form.choices[1].index, 2);
    form = OpenedWithArchiver(L"ARCH", 2);
    Select(form, {L"UNAR", L"ARCH"});
    EXPECT_EQ(form.choices[1].index, 1);
}

TEST(ChangeOperation, TheArchiverSurvivesAnOperationWithoutOneInBetween) {
    for (const wchar_t* const between : {L"SIGN", L"DELE", L"PACK", L"EXEC", L"CHCK"}) {
        editors::RuleForm form = OpenedWithArchiver(L"ENCR", 2);
        Select(form, {between, L"ARCH"});
        EXPECT_EQ(form.choices[1].index, 1);
        Select(form, {between, L"ARCH"});
        EXPECT_EQ(form.choices[1].index, 1);
        Select(form, {between, L"LENC"});
        EXPECT_EQ(form.choices[1].index, 2);
        Select(form, {between, L"DECR"});
        EXPECT_EQ(form.choices[1].index, 2);
    }
}

TEST(ChangeOperation, ComingStraightToMoveSelectsTheFirstArchiver) {
    editors::RuleForm form = OpenedWithArchiver(L"ENCR", 2);
    SelectOperation(form, L"MOVE");
    EXPECT_EQ(form.choices[1].index, 0);
    form = OpenedWithArchiver(L"ARCH", 2);
    SelectOperation(form, L"MOVE");
    EXPECT_EQ(form.choices[1].index, 0);
}

// Deliberate: only straight from an archiving operation.
TEST(ChangeOperation, ComingToMoveFromAnotherOperationKeepsTheArchiver) {
    editors::RuleForm form = OpenedWithArchiver(L"ENCR", 2);
    Select(form, {L"SIGN", L"MOVE", L"ENCR"});
    EXPECT_EQ(form.choices[1].index, 2);
}

TEST(ChangeOperation, AnyOtherOperationLeavesTheArchiverWhereItWas) {
    for (const std::wstring to : kCodes) {
        if (IsOneOf(to, L"MOVE RESG ARCH UNAR")) {
            continue;
        }
        editors::RuleForm form = OpenedWithArchiver(L"ENCR", 2);
        SelectOperation(form, to);
        EXPECT_EQ(form.choices[1].index, 2);
    }
}

TEST(ChangeOperation, ResignStartsWithAttachedFormatsWhateverArchiverWasChosen) {
    editors::RuleForm form = OpenedWithArchiver(L"ENCR", 2);
    SelectOperation(form, L"RESG");
    EXPECT_THAT(form.choices[0].entries, ElementsAre(L"Attached signature", L"Detached signature"));
    EXPECT_EQ(form.choices[1].entries, form.choices[0].entries);
    EXPECT_EQ(form.choices[0].index, 0);
    EXPECT_EQ(form.choices[1].index, 0);
}

TEST(ChangeOperation, SelectingResignAgainKeepsItsChoices) {
    editors::RuleForm form = Opened(FullRule(L"RESG"));
    SelectOperation(form, L"RESG");
    EXPECT_EQ(form.choices[0].index, 1);
    EXPECT_EQ(form.choices[1].index, 1);
    EXPECT_EQ(form.choices[2].index, 2);
}

TEST(ChangeOperation, TheNewSignatureProfileOutlivesOtherOperations) {
    editors::RuleForm form = Opened(FullRule(L"RESG"));
    Select(form, {L"MOVE", L"ARCH", L"RESG"});
    EXPECT_EQ(form.choices[2].index, 2);
}

TEST(ChangeOperation, TheRowOneChoiceIsResetOnlyOnTheWayFromAnArchivingOperationToMoveOrArchive) {
    for (const std::wstring to : kCodes) {
        editors::RuleForm form = Opened(FullRule(L"RESG"));
        SelectOperation(form, L"ENCR");
        ASSERT_EQ(form.choices[0].index, 1);
        SelectOperation(form, to);
        EXPECT_EQ(form.choices[0].index, IsOneOf(to, L"MOVE ARCH UNAR RESG") ? 0 : 1);
    }
}

// A signature format is no archiver, so there is nothing that a change of the list could carry over.
TEST(ChangeOperation, FormatsBecomeArchiversByTheirPosition) {
    editors::RuleForm form = Opened(FullRule(L"RESG"));
    SelectOperation(form, L"ARCH");
    EXPECT_EQ(form.choices[1].index, 1);
    form = Opened(FullRule(L"RESG"));
    SelectOperation(form, L"ENCR");
    EXPECT_EQ(form.choices[1].index, 1);
    form = Opened(FullRule(L"HASH"));
    SelectOperation(form, L"ENCR");
    EXPECT_EQ(form.choices[1].index, 0);
}

TEST(ChangeOperation, DeleteEmptiesAndDisablesTheOutputFolder) {
    editors::RuleForm form = Opened(FullRule(L"HASH"));
    SelectOperation(form, L"DELE");
    EXPECT_EQ(form.outputFolder.text, L"");
    EXPECT_FALSE(form.outputFolder.isEnabled);
    EXPECT_FALSE(form.outputButton.isEnabled);
}

TEST(ChangeOperation, LeavingDeleteLeavesTheOutputFolderEmptyAndEnabled) {
    editors::RuleForm form = Opened(FullRule(L"HASH"));
    Select(form, {L"DELE", L"HASH"});
    EXPECT_EQ(form.outputFolder.text, L"");
    EXPECT_TRUE(form.outputFolder.isEnabled);
    EXPECT_TRUE(form.outputButton.isEnabled);
}

// Another program can put text into a field that is disabled for users.
TEST(ChangeOperation, LeavingDeleteEmptiesWhatStandsInTheDisabledOutputFolder) {
    editors::RuleForm form = Opened(FullRule(L"DELE"));
    form.outputFolder.text = L"C:\\put in";
    SelectOperation(form, L"HASH");
    EXPECT_EQ(form.outputFolder.text, L"");
}

TEST(ChangeOperation, FoldersDescriptionMasksAndCsProfileSurviveEveryChange) {
    for (const std::wstring from : kCodes) {
        for (const std::wstring to : kCodes) {
            editors::RuleForm form = Opened(FullRule(from));
            const editors::RuleForm before = form;
            SelectOperation(form, to);
            EXPECT_EQ(form.inputFolder.text, L"C:\\in");
            EXPECT_EQ(form.errorFolder.text, L"C:\\error");
            EXPECT_EQ(form.description.text, before.description.text);
            EXPECT_EQ(form.result.masks, before.result.masks);
            EXPECT_EQ(form.csProfile.index, 1);
            EXPECT_EQ(form.outputFolder.text, IsOneOf(L"DELE", from + L" " + to) ? L"" : L"C:\\out");
        }
    }
}

TEST(ChangeOperation, MoveToPackKeepsNoAccountingCopyFormat) {
    editors::RuleForm form = Opened(FullRule(L"MOVE"));
    SelectOperation(form, L"PACK");
    EXPECT_EQ(form.texts[3].text, L"");
    EXPECT_EQ(form.rowLabels[3], L"Archives name format:");
    EXPECT_TRUE(form.texts[3].isShown);
    EXPECT_TRUE(form.texts[3].isEnabled);
}

TEST(ChangeOperation, PackToMoveKeepsNoArchiveName) {
    editors::RuleForm form = Opened(FullRule(L"PACK"));
    SelectOperation(form, L"MOVE");
    EXPECT_EQ(form.texts[3].text, L"");
    EXPECT_EQ(form.rowLabels[3], L"Accounting copy format:");
    EXPECT_TRUE(form.texts[3].isEnabled);
}

TEST(ChangeOperation, LeavingMoveEmptiesItsThreeRows) {
    editors::RuleForm form = Opened(FullRule(L"MOVE"));
    Select(form, {L"HASH", L"MOVE"});
    for (const editors::TextField& field : form.texts) {
        EXPECT_EQ(field.text, L"");
    }
}

TEST(ChangeOperation, PackStartsWithZeros) {
    editors::RuleForm form = Opened(FullRule(L"PACK"));
    Select(form, {L"UNPK", L"PACK"});
    for (const editors::NumberField& field : form.numbers) {
        EXPECT_EQ(field.number, 0);
    }
}

TEST(ChangeOperation, PackToExecuteHidesRowsTwoAndThreeAndResetsTheTimeout) {
    editors::RuleForm form = Opened(FullRule(L"PACK"));
    SelectOperation(form, L"EXEC");
    EXPECT_TRUE(form.numbers[0].isShown);
    EXPECT_EQ(form.numbers[0].number, 0);
    EXPECT_FALSE(form.numbers[1].isShown);
    EXPECT_FALSE(form.numbers[2].isShown);
    EXPECT_FALSE(form.texts[3].isShown);
    EXPECT_EQ(form.rowLabels[3], L"");
}

TEST(ChangeOperation, SelectingTheSameOperationAgainChangesNothing) {
    for (const std::wstring code : kCodes) {
        editors::RuleForm form = Opened(FullRule(code));
        const std::string before = DescribeForm(form);
        SelectOperation(form, code);
        EXPECT_EQ(DescribeForm(form), before);
    }
}

TEST(ChangeOperation, NoSelectionChangesNothing) {
    for (const int index : {-1, 24}) {
        editors::RuleForm form = Opened(FullRule(L"MOVE"));
        form.operation.index = index;
        const std::string before = DescribeForm(form);
        editors::ChangeOperation(form);
        EXPECT_EQ(DescribeForm(form), before);
    }
}

}  // namespace
}  // namespace corvane::test
