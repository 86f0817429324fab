#include "editors/rule/rule_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "tests/kit/samples/sample_rules.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

store::Rule RuleWith(const std::wstring& code, std::int32_t archiveFormat) {
    store::Rule rule = FullRule(code);
    rule.archiveFormat = archiveFormat;
    return rule;
}

int ArchiverShownFor(const std::wstring& code, std::int32_t archiveFormat) {
    return Opened(RuleWith(code, archiveFormat)).choices[1].index;
}

TEST(OpenRule, ANewRuleIsAdded) {
    const editors::RuleForm form = Opened(store::Rule());
    EXPECT_TRUE(form.isNew);
    EXPECT_EQ(form.title, L"Add rule");
    EXPECT_EQ(form.exitText, L"Exit");
}

TEST(OpenRule, ARuleWithAnOperationIsEdited) {
    const editors::RuleForm form = Opened(FullRule(L"HASH"));
    EXPECT_FALSE(form.isNew);
    EXPECT_EQ(form.title, L"Edit rule");
    EXPECT_EQ(form.exitText, L"Exit");
}

TEST(OpenRule, ButtonsAndLabelsHaveTheirTextsAndPictures) {
    const editors::RuleForm form = Opened(store::Rule());
    EXPECT_EQ(form.descriptionLabel, L"Descrip\ntion");
    EXPECT_EQ(form.inputButton.toolTip, L"Input folder");
    EXPECT_EQ(form.inputButton.icon, editors::RuleIcon::kInputFolder);
    EXPECT_EQ(form.outputButton.toolTip, L"Output folder");
    EXPECT_EQ(form.outputButton.icon, editors::RuleIcon::kOutputFolder);
    EXPECT_EQ(form.errorButton.toolTip, L"Error folder");
    EXPECT_EQ(form.errorButton.icon, editors::RuleIcon::kErrorFolder);
    EXPECT_EQ(form.addMaskButton.toolTip, L"Add");
    EXPECT_EQ(form.addMaskButton.icon, editors::RuleIcon::kAddMask);
    EXPECT_EQ(form.editMaskButton.toolTip, L"Edit");
    EXPECT_EQ(form.editMaskButton.icon, editors::RuleIcon::kEditMask);
    EXPECT_EQ(form.deleteMaskButton.toolTip, L"Delete");
    EXPECT_EQ(form.deleteMaskButton.icon, editors::RuleIcon::kDeleteMask);
}

TEST(OpenRule, TheOperationsStandUnsortedInTheirOrder) {
    const editors::RuleForm form = Opened(store::Rule());
    ASSERT_EQ(form.operation.entries.size(), 24U);
    EXPECT_EQ(form.operation.entries[0], L"Encrypt");
    EXPECT_EQ(form.operation.entries[1], L"Decrypt");
    EXPECT_EQ(form.operation.entries[9], L"Delete");
    EXPECT_EQ(form.operation.entries[18], L"Decrypt, verify and delete attached signatures");
    EXPECT_EQ(form.operation.entries[23], L"Execute");
}

TEST(OpenRule, TheCsProfilesStandInTheOrderOfTheProfile) {
    const editors::RuleForm form = Opened(FullRule(L"RESG"));
    EXPECT_THAT(form.csProfile.entries, ElementsAre(L"First", L"Second", L"Third"));
    EXPECT_EQ(form.choices[2].entries, form.csProfile.entries);
}

TEST(OpenRule, ANewRuleIsAnEmptyEncryptRule) {
    const editors::RuleForm form = Opened(store::Rule());
    EXPECT_EQ(form.operation.index, 0);
    EXPECT_EQ(form.csProfile.index, 0);
    for (const editors::TextField* field :
         {&form.inputFolder, &form.outputFolder, &form.errorFolder, &form.description}) {
        EXPECT_EQ(field->text, L"");
    }
    EXPECT_EQ(form.cert.text, L"0");
    EXPECT_THAT(form.recipients, IsEmpty());
    EXPECT_EQ(form.result, store::Rule());
    EXPECT_THAT(form.choices[1].entries, ElementsAre(L"No", L"ZIP archivation", L"GZIP archivation"));
    EXPECT_EQ(form.choices[1].index, 0);
    EXPECT_EQ(form.rowLabels[1], L"Use archivation:");
}

TEST(OpenRule, ANewRuleTakesNothingElseFromTheRuleHandedIn) {
    const editors::RuleForm form = Opened(FullRule(L""));
    EXPECT_EQ(form.title, L"Add rule");
    EXPECT_EQ(form.inputFolder.text, L"");
    EXPECT_EQ(form.description.text, L"");
    EXPECT_EQ(form.csProfile.index, 0);
    EXPECT_EQ(form.choices[1].index, 0);
    EXPECT_THAT(form.recipients, IsEmpty());
    EXPECT_EQ(form.result, store::Rule());
}

TEST(OpenRule, EveryOperationIsSelectedByItsCode) {
    for (std::size_t index = 0; index < kCodes.size(); ++index) {
        EXPECT_EQ(Opened(FullRule(kCodes[index])).operation.index, static_cast<int>(index));
    }
}

TEST(OpenRule, ARuleWithAnUnknownOperationOpensAsEncryptWithItsFoldersDescriptionAndMasks) {
    for (const wchar_t* const code : {L"XXXX", L"encr", L"ENCR ", L"ENC", L"Encrypt", L"\n"}) {
        const store::Rule rule = FullRule(code);
        const editors::RuleForm form = Opened(rule);
        EXPECT_FALSE(form.isNew);
        EXPECT_EQ(form.title, L"Edit rule");
        EXPECT_EQ(form.operation.index, 0);
        EXPECT_EQ(form.inputFolder.text, rule.inputFolder);
        EXPECT_EQ(form.outputFolder.text, rule.outputFolder);
        EXPECT_EQ(form.errorFolder.text, rule.errorFolder);
        EXPECT_EQ(form.description.text, rule.description);
        EXPECT_EQ(form.result.masks, rule.masks);
        EXPECT_EQ(form.certButton.toolTip, L"Add recipients");
    }
}

TEST(OpenRule, EveryOperationLoadsFoldersDescriptionAndMasks) {
    for (const std::wstring code : kCodes) {
        const store::Rule rule = FullRule(code);
        const editors::RuleForm form = Opened(rule);
        EXPECT_EQ(form.inputFolder.text, rule.inputFolder);
        EXPECT_EQ(form.outputFolder.text, code == L"DELE" ? L"" : rule.outputFolder);
        EXPECT_EQ(form.errorFolder.text, rule.errorFolder);
        EXPECT_EQ(form.description.text, rule.description);
        EXPECT_EQ(form.result.masks, rule.masks);
    }
}

TEST(OpenRule, ADeleteRuleOpensWithTheOutputFolderAndItsButtonDisabledAndTheFolderEmpty) {
    const editors::RuleForm form = Opened(FullRule(L"DELE"));
    EXPECT_FALSE(form.outputFolder.isEnabled);
    EXPECT_FALSE(form.outputButton.isEnabled);
    EXPECT_EQ(form.outputFolder.text, L"");
}

TEST(OpenRule, RecipientOperationsLoadTheRecipientsAndShowTheirNumber) {
    for (const std::wstring code : {L"ENCR", L"LENC", L"SGEN"}) {
        const editors::RuleForm form = Opened(FullRule(code));
        EXPECT_THAT(form.recipients, ElementsAre(L"CN=A", L"CN=B"));
        EXPECT_EQ(form.cert.text, L"2");
        EXPECT_THAT(form.result.signerGroups, IsEmpty());
    }
}

TEST(OpenRule, SignerOperationsLoadTheSignerListsAndShowTheirNumber) {
    for (const std::wstring code : {L"CHCK", L"CHKX", L"DCHK", L"RESG", L"DCCX"}) {
        const store::Rule rule = FullRule(code);
        const editors::RuleForm form = Opened(rule);
        EXPECT_THAT(form.result.signerGroups, ElementsAreArray(rule.signerGroups));
        EXPECT_EQ(form.cert.text, L"3");
        EXPECT_EQ(form.certButton.toolTip, L"Add signers");
        EXPECT_THAT(form.recipients, IsEmpty());
    }
}

TEST(OpenRule, OtherOperationsShowZeroAndTakeNoCertificates) {
    for (const std::wstring code : kCodes) {
        if (IsOneOf(code, L"ENCR LENC SGEN CHCK CHKX DCHK RESG DCCX MOVE EXEC")) {
            continue;
        }
        const editors::RuleForm form = Opened(FullRule(code));
        EXPECT_EQ(form.cert.text, L"0");
        EXPECT_THAT(form.recipients, IsEmpty());
        EXPECT_THAT(form.result.signerGroups, IsEmpty());
    }
}

TEST(OpenRule, AMoveRuleLoadsItsPathAndFourTexts) {
    const editors::RuleForm form = Opened(FullRule(L"MOVE"));
    EXPECT_EQ(form.cert.text, L"C:\\second");
    EXPECT_FALSE(form.cert.isReadOnly);
    EXPECT_EQ(form.texts[0].text, L"del");
    EXPECT_EQ(form.texts[1].text, L"add");
    EXPECT_EQ(form.texts[2].text, L"%Y");
    EXPECT_EQ(form.texts[3].text, L"%M");
}

TEST(OpenRule, AMoveRuleWithSecondOutputZeroOpensWithAnEmptySecondOutputFolder) {
    store::Rule rule = FullRule(L"MOVE");
    rule.secondOutput = L"0";
    EXPECT_EQ(Opened(rule).cert.text, L"");
    rule.secondOutput = L"00";
    EXPECT_EQ(Opened(rule).cert.text, L"00");
}

TEST(OpenRule, AnExecuteRuleLoadsItsPathAndTimeout) {
    const editors::RuleForm form = Opened(FullRule(L"EXEC"));
    EXPECT_EQ(form.cert.text, L"C:\\run.exe");
    EXPECT_EQ(form.numbers[0].number, 14);
    EXPECT_EQ(form.rowLabels[0], L"Execution timeout (min.):");
}

TEST(OpenRule, AnExecuteRuleWithExecutableZeroOpensWithAnEmptyPath) {
    store::Rule rule = FullRule(L"EXEC");
    rule.executable = L"0";
    EXPECT_EQ(Opened(rule).cert.text, L"");
}

TEST(OpenRule, APackRuleLoadsItsNumbersAndName) {
    const editors::RuleForm form = Opened(FullRule(L"PACK"));
    EXPECT_EQ(form.numbers[0].number, 11);
    EXPECT_EQ(form.numbers[1].number, 12);
    EXPECT_EQ(form.numbers[2].number, 13);
    EXPECT_EQ(form.texts[3].text, L"name%D");
}

TEST(OpenRule, AStoredNegativeNumberShowsAsZero) {
    for (const std::int32_t number : {-1, std::numeric_limits<std::int32_t>::min()}) {
        store::Rule rule = FullRule(L"PACK");
        rule.archiveFileCount = rule.archiveSize = rule.archiveTimeout = rule.executionTimeout = number;
        for (const editors::NumberField& field : Opened(rule).numbers) {
            EXPECT_EQ(field.number, 0);
        }
        rule.operation = L"EXEC";
        EXPECT_EQ(Opened(rule).numbers[0].number, 0);
    }
}

TEST(OpenRule, TheLargestStoredNumberIsShown) {
    store::Rule rule = FullRule(L"PACK");
    rule.archiveSize = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(Opened(rule).numbers[1].number, 2147483647);
}

TEST(OpenRule, TheArchiverIsSelectedByTheStoredFormat) {
    for (const std::wstring code : {L"ENCR", L"DECR", L"LENC", L"LDEC", L"SGEN", L"DCCX"}) {
        EXPECT_EQ(ArchiverShownFor(code, 0), 0);
        EXPECT_EQ(ArchiverShownFor(code, 1), 1);
        EXPECT_EQ(ArchiverShownFor(code, 2), 2);
    }
    for (const std::wstring code : {L"ARCH", L"UNAR"}) {
        EXPECT_EQ(ArchiverShownFor(code, 1), 0);
        EXPECT_EQ(ArchiverShownFor(code, 2), 1);
    }
}

TEST(OpenRule, AStoredFormatThatTheListDoesNotHoldShowsItsFirstEntry) {
    for (const std::int32_t format :
         {-1, 3, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_EQ(ArchiverShownFor(L"ENCR", format), 0);
        EXPECT_EQ(ArchiverShownFor(L"ARCH", format), 0);
    }
    EXPECT_EQ(ArchiverShownFor(L"ARCH", 0), 0);
}

TEST(OpenRule, AResignRuleLoadsItsFormatsAndNewProfile) {
    const editors::RuleForm form = Opened(FullRule(L"RESG"));
    EXPECT_EQ(form.choices[0].index, 1);
    EXPECT_EQ(form.choices[1].index, 1);
    EXPECT_EQ(form.choices[2].index, 2);
}

// Deliberate: the client takes every number but 0 for detached, this editor only 1.
TEST(OpenRule, AResignFormatOtherThanOneShowsAsAttached) {
    for (const std::int32_t format : {0, 2, -1}) {
        store::Rule rule = FullRule(L"RESG");
        rule.inputDetached = rule.outputDetached = format;
        EXPECT_EQ(Opened(rule).choices[0].index, 0);
        EXPECT_EQ(Opened(rule).choices[1].index, 0);
    }
}

TEST(OpenRule, ANewSignatureProfileThatTheProfileLacksShowsTheFirst) {
    store::Rule rule = FullRule(L"RESG");
    rule.resignProfile = L"Gone";
    EXPECT_EQ(Opened(rule).choices[2].index, 0);
}

TEST(OpenRule, TheRulesCsProfileIsSelected) {
    EXPECT_EQ(Opened(FullRule(L"HASH")).csProfile.index, 1);
}

TEST(OpenRule, ACsProfileThatTheProfileLacksShowsTheFirst) {
    for (const wchar_t* const name : {L"Gone", L"second", L""}) {
        store::Rule rule = FullRule(L"HASH");
        rule.csProfile = name;
        EXPECT_EQ(Opened(rule).csProfile.index, 0);
    }
}

TEST(OpenRule, AProfileWithoutCsProfilesOpensWithEmptyLists) {
    editors::AcceptedCsProfile accepted;
    const editors::RuleForm form = editors::OpenRule(store::Profile(), FullRule(L"RESG"), accepted);
    EXPECT_THAT(form.csProfile.entries, IsEmpty());
    EXPECT_THAT(form.choices[2].entries, IsEmpty());
    EXPECT_EQ(form.inputFolder.text, L"C:\\in");
}

TEST(OpenRule, AnExistingRuleSetsTheAcceptedCsProfile) {
    editors::AcceptedCsProfile accepted{7};
    static_cast<void>(editors::OpenRule(SampleProfile(), FullRule(L"ENCR"), accepted));
    EXPECT_EQ(accepted.index, 1);
}

// Deliberate: what counts for a new rule is still the rule that was opened before it.
TEST(OpenRule, ANewRuleLeavesTheAcceptedCsProfileAsItWas) {
    editors::AcceptedCsProfile accepted{7};
    const editors::RuleForm form = editors::OpenRule(SampleProfile(), store::Rule(), accepted);
    EXPECT_EQ(accepted.index, 7);
    EXPECT_EQ(form.csProfile.index, 0);
}

TEST(OpenRule, LeavesTheRuleAndTheProfileAsTheyWere) {
    const store::Profile profile = SampleProfile();
    const store::Rule rule = FullRule(L"ENCR");
    editors::AcceptedCsProfile accepted;
    editors::RuleForm form = editors::OpenRule(profile, rule, accepted);
    form.recipients.clear();
    form.result.masks.clear();
    form.profile.csProfiles.clear();
    EXPECT_EQ(profile, SampleProfile());
    EXPECT_EQ(rule, FullRule(L"ENCR"));
}

}  // namespace
}  // namespace corvane::test
