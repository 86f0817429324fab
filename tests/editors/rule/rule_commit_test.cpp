#include "editors/rule/rule_form.h"

#include <gtest/gtest.h>

#include "tests/kit/fakes/registry_snapshot.h"
#include "tests/kit/samples/sample_rules.h"

namespace corvane::test {
namespace {

// What a rule of the code keeps of a rule that has everything.
store::Rule Kept(const std::wstring& code) {
    const store::Rule full = FullRule(code);
    store::Rule kept;
    kept.operation = code;
    kept.inputFolder = full.inputFolder;
    kept.errorFolder = full.errorFolder;
    kept.description = full.description;
    kept.masks = full.masks;
    kept.isOn = 1;
    if (code != L"DELE") {
        kept.outputFolder = full.outputFolder;
    }
    if (!IsOneOf(code, L"B64E B64D MOVE DELE ARCH UNAR PACK UNPK EXEC")) {
        kept.csProfile = full.csProfile;
    }
    if (IsOneOf(code, L"ENCR LENC SGEN")) {
        kept.recipients = full.recipients;
    }
    if (IsOneOf(code, L"CHCK CHKX DCHK RESG DCCX")) {
        kept.signerGroups = full.signerGroups;
    }
    if (IsOneOf(code, L"ENCR DECR LENC LDEC SGEN DCCX ARCH UNAR")) {
        kept.archiveFormat = full.archiveFormat;
    }
    if (code == L"RESG") {
        kept.resignProfile = full.resignProfile;
        kept.inputDetached = full.inputDetached;
        kept.outputDetached = full.outputDetached;
    } else if (code == L"MOVE") {
        kept.secondOutput = full.secondOutput;
        kept.deleteExtension = full.deleteExtension;
        kept.addExtension = full.addExtension;
        kept.folders = full.folders;
        kept.copyFolders = full.copyFolders;
    } else if (code == L"PACK") {
        kept.archiveFileCount = full.archiveFileCount;
        kept.archiveSize = full.archiveSize;
        kept.archiveTimeout = full.archiveTimeout;
        kept.archiveName = full.archiveName;
    } else if (code == L"EXEC") {
        kept.executable = full.executable;
        kept.executionTimeout = full.executionTimeout;
    }
    return kept;
}

TEST(CommitRule, ARuleOfEachOperationKeepsWhatItUsesAndNothingElse) {
    for (const std::wstring code : kCodes) {
        EXPECT_EQ(editors::CommitRule(Opened(FullRule(code))), Kept(code)) << Printable(code);
    }
}

TEST(CommitRule, ACommittedRuleThatIsOpenedAndCommittedAgainIsTheSame) {
    for (const std::wstring code : kCodes) {
        for (const std::int32_t archiveFormat : {0, 1, 2}) {
            store::Rule rule = FullRule(code);
            rule.archiveFormat = archiveFormat;
            const store::Rule committed = editors::CommitRule(Opened(rule));
            EXPECT_EQ(editors::CommitRule(Opened(committed)), committed) << Printable(code);
        }
    }
}

TEST(CommitRule, AHashRuleThatWasOnceAMoveRuleDropsTheFieldsOfMoving) {
    const store::Rule rule = editors::CommitRule(Opened(FullRule(L"HASH")));
    EXPECT_EQ(rule.secondOutput, L"");
    EXPECT_EQ(rule.deleteExtension, L"");
    EXPECT_EQ(rule.addExtension, L"");
    EXPECT_EQ(rule.folders, L"");
    EXPECT_EQ(rule.copyFolders, L"");
}

TEST(CommitRule, TheLegacyMaskIsNeverWritten) {
    for (const std::wstring code : kCodes) {
        EXPECT_EQ(editors::CommitRule(Opened(FullRule(code))).legacyMask, L"");
    }
}

TEST(CommitRule, EveryRuleIsSwitchedOn) {
    for (const std::int32_t isOn : {0, 1, 5}) {
        for (const std::wstring code : kCodes) {
            store::Rule rule = FullRule(code);
            rule.isOn = isOn;
            EXPECT_EQ(editors::CommitRule(Opened(rule)).isOn, 1);
        }
    }
}

TEST(CommitRule, ARuleAfterAChangeOfOperationHoldsOnlyWhatItsOwnOperationUses) {
    for (const std::wstring from : kCodes) {
        for (const std::wstring to : kCodes) {
            if (from == to) {
                continue;
            }
            editors::RuleForm form = Opened(FullRule(from));
            SelectOperation(form, to);
            const store::Rule rule = editors::CommitRule(form);
            SCOPED_TRACE(Printable(from) + " to " + Printable(to));
            EXPECT_EQ(rule.operation, to);
            EXPECT_EQ(rule.secondOutput + rule.deleteExtension + rule.addExtension + rule.folders +
                          rule.copyFolders + rule.archiveName + rule.executable,
                      L"");
            EXPECT_EQ(rule.archiveFileCount + rule.archiveSize + rule.archiveTimeout + rule.executionTimeout,
                      0);
            EXPECT_EQ(rule.csProfile.empty(), IsOneOf(to, L"B64E B64D MOVE DELE ARCH UNAR PACK UNPK EXEC"));
            EXPECT_EQ(rule.recipients.empty(),
                      !(IsOneOf(from, L"ENCR LENC SGEN") && IsOneOf(to, L"ENCR LENC SGEN")));
            EXPECT_EQ(rule.signerGroups.empty(), !(IsOneOf(from, L"CHCK CHKX DCHK RESG DCCX") &&
                                                   IsOneOf(to, L"CHCK CHKX DCHK RESG DCCX")));
            EXPECT_EQ(rule.inputDetached + rule.outputDetached, 0);
        }
    }
}

// Signer lists outlive executing in the editor, but an executing rule has none.
TEST(CommitRule, AnExecuteRuleThatWasAVerifyingOneCommitsNoSignerLists) {
    editors::RuleForm form = Opened(FullRule(L"CHCK"));
    SelectOperation(form, L"EXEC");
    ASSERT_EQ(form.result.signerGroups.size(), 3U);
    EXPECT_TRUE(editors::CommitRule(form).signerGroups.empty());
}

TEST(CommitRule, AnArchiveRuleThatWasAnEncryptingOneKeepsTheArchiver) {
    for (const std::int32_t archiveFormat : {1, 2}) {
        store::Rule rule = FullRule(L"ENCR");
        rule.archiveFormat = archiveFormat;
        editors::RuleForm form = Opened(rule);
        SelectOperation(form, L"ARCH");
        EXPECT_EQ(editors::CommitRule(form).archiveFormat, archiveFormat);
        SelectOperation(form, L"DECR");
        EXPECT_EQ(editors::CommitRule(form).archiveFormat, archiveFormat);
    }
}

TEST(CommitRule, AnArchiveRuleAlwaysHasAnArchiver) {
    editors::RuleForm form = Opened(store::Rule());
    SelectOperation(form, L"ARCH");
    EXPECT_EQ(editors::CommitRule(form).archiveFormat, 1);
    form.choices[1].index = 1;
    EXPECT_EQ(editors::CommitRule(form).archiveFormat, 2);
    form.choices[1].index = -1;
    EXPECT_EQ(editors::CommitRule(form).archiveFormat, 1);
}

TEST(CommitRule, ADeleteRuleHasNoOutputFolderWhateverStandsInTheDisabledField) {
    editors::RuleForm form = Opened(FullRule(L"DELE"));
    form.outputFolder.text = L"C:\\put in";
    EXPECT_EQ(editors::CommitRule(form).outputFolder, L"");
}

TEST(CommitRule, TextsAreNeitherTrimmedNorFolded) {
    editors::RuleForm form = Opened(FullRule(L"MOVE"));
    form.inputFolder.text = L" C:\\In ";
    form.description.text = L"  Two\r\n Lines ";
    form.cert.text = L" D:\\Second ";
    form.texts[1].text = L" .ADD ";
    const store::Rule rule = editors::CommitRule(form);
    EXPECT_EQ(rule.inputFolder, L" C:\\In ");
    EXPECT_EQ(rule.description, L"  Two\r\n Lines ");
    EXPECT_EQ(rule.secondOutput, L" D:\\Second ");
    EXPECT_EQ(rule.addExtension, L" .ADD ");
}

TEST(CommitRule, WhatTheUserSelectedIsWritten) {
    editors::RuleForm form = Opened(FullRule(L"RESG"));
    form.csProfile.index = 2;
    form.choices[0].index = 0;
    form.choices[1].index = 1;
    form.choices[2].index = 0;
    const store::Rule rule = editors::CommitRule(form);
    EXPECT_EQ(rule.csProfile, L"Third");
    EXPECT_EQ(rule.inputDetached, 0);
    EXPECT_EQ(rule.outputDetached, 1);
    EXPECT_EQ(rule.resignProfile, L"First");
}

TEST(CommitRule, AListWithoutASelectionGivesNoName) {
    editors::RuleForm form = Opened(FullRule(L"RESG"));
    for (const int index : {-1, 3}) {
        form.csProfile.index = index;
        form.choices[2].index = index;
        EXPECT_EQ(editors::CommitRule(form).csProfile, L"");
        EXPECT_EQ(editors::CommitRule(form).resignProfile, L"");
    }
}

TEST(CommitRule, LeavesTheFormAsItWas) {
    const editors::RuleForm form = Opened(FullRule(L"ENCR"));
    const store::Rule once = editors::CommitRule(form);
    EXPECT_EQ(editors::CommitRule(form), once);
    EXPECT_EQ(once.recipients.size(), 2U);
}

}  // namespace
}  // namespace corvane::test
