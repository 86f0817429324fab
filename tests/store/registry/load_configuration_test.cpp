#include "store/registry/load_configuration.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "store/registry/stored_record.h"
#include "tests/kit/fakes/memory_registry.h"
#include "tests/kit/fixtures/store_fixture.h"
#include "tests/store/registry/stored_paths.h"

namespace corvane::test {
namespace {

const std::wstring kRule = L"SOFTWARE\\HOLVAN\\tarntray\\Office\\rules\\Rule 0";

class LoadConfiguration : public ::testing::Test {
  protected:
    LoadConfiguration() {
        registry.PutText(kCatalogue + L"\\{1}", L"ProfileName", L"Main CSP");
        registry.PutKey(kRules);
    }

    // A rule of the profile "Office" as it comes out of the registry.
    [[nodiscard]] store::Rule LoadOnlyRule() {
        EXPECT_TRUE(store.Load());
        EXPECT_EQ(state.profiles.size(), 1U);
        if (state.profiles.empty() || state.profiles[0].rules.size() != 1) {
            ADD_FAILURE() << "expected one rule";
            return {};
        }
        return state.profiles[0].rules[0];
    }

    [[nodiscard]] const store::Profile& LoadOnlyProfile() {
        EXPECT_TRUE(store.Load());
        EXPECT_EQ(state.profiles.size(), 1U);
        return state.profiles.at(0);
    }

    void ExpectNoReports() const { EXPECT_TRUE(store.ReportTexts().empty()); }

    StoreFixture store;
    MemoryRegistry& registry = store.registry;
    store::ConfigurationState& state = store.state;
};

TEST_F(LoadConfiguration, AppendsTheCatalogueInTheOrderOfItsKeysEmptyNamesIncluded) {
    registry.PutText(kCatalogue + L"\\zeta", L"ProfileName", L"Second");
    registry.PutKey(kCatalogue + L"\\alpha");
    registry.PutNumber(kCatalogue + L"\\beta", L"ProfileName", 1);
    registry.PutText(kCatalogue + L"\\gamma", L"ProfileName", L"Second");
    ASSERT_TRUE(store.Load());
    EXPECT_EQ(state.csProfileCatalogue, (store::TextList{L"Main CSP", L"Second", L"", L"", L"Second"}));
    ExpectNoReports();
}

TEST_F(LoadConfiguration, TakesTheProfilesInTheOrderOfTheirKeys) {
    registry.PutKey(kProgram + L"\\Archive\\rules");
    registry.PutKey(kProgram + L"\\Zoo\\rules");
    registry.PutSubkeysFirst(kProgram, {L"Zoo"});
    ASSERT_TRUE(store.Load());
    EXPECT_EQ(state.profileNames, (store::TextList{L"Zoo", L"Office", L"Archive"}));
    ASSERT_EQ(state.profiles.size(), 3U);
    EXPECT_EQ(state.profiles[0].name, L"Zoo");
    EXPECT_EQ(state.profiles[1].name, L"Office");
    EXPECT_EQ(state.profiles[2].name, L"Archive");
}

TEST_F(LoadConfiguration, GivesEveryMissingValueItsDefault) {
    registry.PutKey(kRule + L"\\List");
    ASSERT_TRUE(store.Load());
    EXPECT_EQ(state.settings, store::AppSettings{});
    store::Profile expected;
    expected.name = L"Office";
    store::Rule& rule = expected.rules.emplace_back();
    rule.masks = {L""};
    rule.signerGroups = {{L"List", {}}};
    ASSERT_EQ(state.profiles.size(), 1U);
    EXPECT_EQ(state.profiles[0], expected);
    EXPECT_FALSE(state.isDirty);
    ExpectNoReports();
}

TEST_F(LoadConfiguration, ReadsEverySettingFromItsValue) {
    registry.PutNumber(kProgram, L"Window_top", 11);
    registry.PutNumber(kProgram, L"Window_bottom", 500);
    registry.PutNumber(kProgram, L"Window_left", 0xFFFFFFF0);
    registry.PutNumber(kProgram, L"Window_right", 800);
    registry.PutText(kProgram, L"SigExt", L"e1");
    registry.PutText(kProgram, L"DsigExt", L"e2");
    registry.PutText(kProgram, L"EncExt", L"e3");
    registry.PutText(kProgram, L"B64Ext", L"e4");
    registry.PutText(kProgram, L"HashExt", L"e5");
    registry.PutText(kProgram, L"VerifyFileExt", L"e6");
    registry.PutText(kProgram, L"ZIPArchiveExt", L"e7");
    registry.PutText(kProgram, L"GZIPArchiveExt", L"e8");
    registry.PutTextList(kProgram, L"ExtExt", {L"doc", L"pdf"});
    registry.PutText(kProgram, L"LogPath", L"C:\\log");
    registry.PutNumber(kProgram, L"Log filesize", 5000);
    ASSERT_TRUE(store.Load());
    store::AppSettings expected;
    expected.window = {.top = 11, .bottom = 500, .left = -16, .right = 800};
    expected.signedExtension = L"e1";
    expected.detachedSignatureExtension = L"e2";
    expected.encryptedExtension = L"e3";
    expected.base64Extension = L"e4";
    expected.hashExtension = L"e5";
    expected.verificationExtension = L"e6";
    expected.zipExtension = L"e7";
    expected.gzipExtension = L"e8";
    expected.additionalExtensions = {L"doc", L"pdf"};
    expected.logPath = L"C:\\log";
    expected.logFileSize = 5000;
    EXPECT_EQ(state.settings, expected);
    ExpectNoReports();
}

TEST_F(LoadConfiguration, RaisesALogSizeBelow400To400) {
    for (const auto& [stored, loaded] : std::vector<std::pair<std::uint32_t, std::int32_t>>{
             {10, 400}, {399, 400}, {400, 400}, {401, 401}, {0, 400}, {0xFFFFFFFF, 400}}) {
        registry.PutNumber(kProgram, L"Log filesize", stored);
        ASSERT_TRUE(store.Load());
        EXPECT_EQ(state.settings.logFileSize, loaded) << stored;
    }
}

TEST_F(LoadConfiguration, ReadsEveryProfileValueIntoItsField) {
    registry.PutTextList(kProfile, L"ServerTSP", {L"http://tsp", L"0"});
    registry.PutTextList(kProfile, L"ZCSProfile", {L"Main CSP", L"Second"});
    registry.PutTextList(kProfile, L"NotUseLDAP", {L"1", L"2"});
    registry.PutTextList(kProfile, L"NotCopyToLocal", {L"3", L"4"});
    registry.PutTextList(kProfile, L"AutoUseTSP", {L"5", L"6"});
    registry.PutTextList(kProfile, L"AutoVerifyTSP", {L"7", L"8"});
    registry.PutTextList(kProfile, L"NoTSPisError", {L"9", L"10"});
    registry.PutTextList(kProfile, L"UseAIA", {L"11", L"12"});
    registry.PutTextList(kProfile, L"NotAddCert", {L"13", L"14"});
    registry.PutTextList(kProfile, L"NotLoadCrl", {L"15", L"16"});
    registry.PutTextList(kProfile, L"CrlUpdatePeriod", {L"17", L"18"});
    registry.PutNumber(kProfile, L"Verify File", 19);
    registry.PutNumber(kProfile, L"Verify x file", 20);
    registry.PutNumber(kProfile, L"Verify det file", 21);
    registry.PutNumber(kProfile, L"Verify resign file", 22);
    registry.PutNumber(kProfile, L"Handler timeout", 23);
    registry.PutNumber(kProfile, L"Rename conf files", 24);
    store::Profile expected;
    expected.name = L"Office";
    expected.timeStampServers = {L"http://tsp", L"0"};
    expected.csProfiles = {L"Main CSP", L"Second"};
    expected.notUseDirectory = {1, 2};
    expected.notCopyToLocal = {3, 4};
    expected.autoUseTimeStamp = {5, 6};
    expected.autoVerifyTimeStamp = {7, 8};
    expected.noTimeStampIsError = {9, 10};
    expected.useAuthorityAccess = {11, 12};
    expected.notAddCertificate = {13, 14};
    expected.notLoadCrl = {15, 16};
    expected.crlUpdatePeriods = {17, 18};
    expected.verifyFile = 19;
    expected.verifyXFile = 20;
    expected.verifyDetachedFile = 21;
    expected.verifyResignFile = 22;
    expected.handlerTimeout = 23;
    expected.renameConfFiles = 24;
    EXPECT_EQ(LoadOnlyProfile(), expected);
    ExpectNoReports();
}

TEST_F(LoadConfiguration, PadsTheUpdatePeriodsWithOneToTheLengthOfNotLoadCrl) {
    registry.PutTextList(kProfile, L"NotLoadCrl", {L"0", L"1", L"0"});
    registry.PutTextList(kProfile, L"CrlUpdatePeriod", {L"24"});
    EXPECT_EQ(LoadOnlyProfile().crlUpdatePeriods, (store::NumberList{24, 1, 1}));
}

TEST_F(LoadConfiguration, KeepsOtherUnequalLengthsAsTheyAre) {
    registry.PutTextList(kProfile, L"ZCSProfile", {L"a", L"b", L"c"});
    registry.PutTextList(kProfile, L"NotLoadCrl", {L"0"});
    registry.PutTextList(kProfile, L"CrlUpdatePeriod", {L"1", L"2"});
    registry.PutTextList(kProfile, L"UseAIA", {L"0", L"1"});
    const store::Profile& profile = LoadOnlyProfile();
    EXPECT_EQ(profile.csProfiles.size(), 3U);
    EXPECT_EQ(profile.crlUpdatePeriods, (store::NumberList{1, 2}));
    EXPECT_EQ(profile.useAuthorityAccess.size(), 2U);
    EXPECT_TRUE(profile.notUseDirectory.empty());
}

TEST_F(LoadConfiguration, AListStoredAsANumberIsReportedAndLoadsEmpty) {
    registry.PutNumber(kProfile, L"UseAIA", 1);
    EXPECT_TRUE(LoadOnlyProfile().useAuthorityAccess.empty());
    EXPECT_EQ(store.ReportTexts(),
              std::vector<std::wstring>{ReportText(L"Reading multistring value 'UseAIA' from register", 13)});
}

TEST_F(LoadConfiguration, AListStoredAsATextLoadsAsOneElement) {
    registry.PutText(kProfile, L"ServerTSP", L"http://tsp");
    EXPECT_EQ(LoadOnlyProfile().timeStampServers, store::TextList{L"http://tsp"});
    ExpectNoReports();
}

TEST_F(LoadConfiguration, ReadsEveryRuleValueIntoItsField) {
    registry.PutText(kRule, L"Operation", L"PACK");
    registry.PutText(kRule, L"Path In", L"t1");
    registry.PutText(kRule, L"Path Out", L"t2");
    registry.PutText(kRule, L"Path Out 2", L"t3");
    registry.PutText(kRule, L"Path Error", L"t4");
    registry.PutText(kRule, L"DelExt", L"t5");
    registry.PutText(kRule, L"AddExt", L"t6");
    registry.PutText(kRule, L"Folders", L"t7");
    registry.PutText(kRule, L"Copyfolders", L"t8");
    registry.PutNumber(kRule, L"ArchCount", 1);
    registry.PutNumber(kRule, L"ArchSize", 2);
    registry.PutNumber(kRule, L"ArchTimeout", 3);
    registry.PutText(kRule, L"ArchName", L"t9");
    registry.PutText(kRule, L"ExecName", L"t10");
    registry.PutNumber(kRule, L"ExecTimeout", 4);
    registry.PutNumber(kRule, L"Mask num", 2);
    registry.PutText(kRule, L"M0", L"*.txt");
    registry.PutText(kRule, L"M1", L"*.doc");
    registry.PutText(kRule, L"Mask", L"not read");
    registry.PutNumber(kRule, L"Ext num", 2);
    registry.PutText(kRule, L"C0", L"CN=A");
    registry.PutText(kRule, L"C1", L"CN=B");
    registry.PutNumber(kRule, L"Is on", 5);
    registry.PutText(kRule, L"ZCSProfile", L"t11");
    registry.PutText(kRule, L"ResignProfile", L"t12");
    registry.PutNumber(kRule, L"In format det", 6);
    registry.PutNumber(kRule, L"Out format det", 7);
    registry.PutText(kRule, L"Descryption", L"t13");
    registry.PutNumber(kRule, L"ZipFile", 8);
    registry.PutNumber(kRule + L"\\zeta", L"Signer Num", 2);
    registry.PutText(kRule + L"\\zeta", L"S0", L"CN=C");
    registry.PutText(kRule + L"\\zeta", L"S1", L"CN=D");
    registry.PutNumber(kRule + L"\\alpha", L"Signer Num", 1);
    registry.PutText(kRule + L"\\alpha", L"S0", L"CN=E");
    store::Rule expected;
    expected.operation = L"PACK";
    expected.inputFolder = L"t1";
    expected.outputFolder = L"t2";
    expected.secondOutput = L"t3";
    expected.errorFolder = L"t4";
    expected.deleteExtension = L"t5";
    expected.addExtension = L"t6";
    expected.folders = L"t7";
    expected.copyFolders = L"t8";
    expected.archiveFileCount = 1;
    expected.archiveSize = 2;
    expected.archiveTimeout = 3;
    expected.archiveName = L"t9";
    expected.executable = L"t10";
    expected.executionTimeout = 4;
    expected.masks = {L"*.txt", L"*.doc"};
    expected.recipients = {L"CN=A", L"CN=B"};
    expected.isOn = 5;
    expected.csProfile = L"t11";
    expected.resignProfile = L"t12";
    expected.inputDetached = 6;
    expected.outputDetached = 7;
    expected.description = L"t13";
    expected.archiveFormat = 8;
    expected.signerGroups = {{L"zeta", {L"CN=C", L"CN=D"}}, {L"alpha", {L"CN=E"}}};
    EXPECT_EQ(LoadOnlyRule(), expected);
    ExpectNoReports();
}

TEST_F(LoadConfiguration, OrdersTheRulesByTheirNumbers) {
    for (const wchar_t* name : {L"Rule 0", L"Rule 1", L"Rule 10", L"Rule 2"}) {
        registry.PutText(kRules + L"\\" + name, L"Descryption", name);
    }
    const store::Profile& profile = LoadOnlyProfile();
    ASSERT_EQ(profile.rules.size(), 4U);
    EXPECT_EQ(profile.rules[1].description, L"Rule 1");
    EXPECT_EQ(profile.rules[2].description, L"Rule 2");
    EXPECT_EQ(profile.rules[3].description, L"Rule 10");
}

TEST_F(LoadConfiguration, TwoRulesAreDeliberatelyNotReordered) {
    registry.PutText(kRules + L"\\Rule 1", L"Descryption", L"one");
    registry.PutText(kRules + L"\\Rule 0", L"Descryption", L"zero");
    const store::Profile& profile = LoadOnlyProfile();
    ASSERT_EQ(profile.rules.size(), 2U);
    EXPECT_EQ(profile.rules[0].description, L"one");
    EXPECT_EQ(profile.rules[1].description, L"zero");
}

TEST_F(LoadConfiguration, ALastRuleThatBelongsFirstDeliberatelyComesSecond) {
    for (const wchar_t* name : {L"Rule 1", L"Rule 2", L"Rule 0"}) {
        registry.PutText(kRules + L"\\" + name, L"Descryption", name);
    }
    const store::Profile& profile = LoadOnlyProfile();
    ASSERT_EQ(profile.rules.size(), 3U);
    EXPECT_EQ(profile.rules[0].description, L"Rule 1");
    EXPECT_EQ(profile.rules[1].description, L"Rule 0");
    EXPECT_EQ(profile.rules[2].description, L"Rule 2");
}

TEST_F(LoadConfiguration, ARuleKeyWithoutMaskNumAndMaskLoadsWithOneEmptyMask) {
    registry.PutNumber(kRule, L"Mask num", 0);
    const store::Rule rule = LoadOnlyRule();
    EXPECT_EQ(rule.masks, store::TextList{L""});
    EXPECT_EQ(rule.legacyMask, L"");
}

TEST_F(LoadConfiguration, TheOldMaskIsTheOnlyMaskWhereNoneAreCounted) {
    registry.PutText(kRule, L"Mask", L"*.old");
    registry.PutText(kRule, L"M0", L"*.new");
    const store::Rule rule = LoadOnlyRule();
    EXPECT_EQ(rule.masks, store::TextList{L"*.old"});
    EXPECT_EQ(rule.legacyMask, L"*.old");
}

TEST_F(LoadConfiguration, ANegativeMaskNumGivesNoMasksAtAll) {
    registry.PutNumber(kRule, L"Mask num", 0xFFFFFFFF);
    registry.PutText(kRule, L"Mask", L"*.old");
    registry.PutText(kRule, L"M0", L"*.new");
    const store::Rule rule = LoadOnlyRule();
    EXPECT_TRUE(rule.masks.empty());
    EXPECT_EQ(rule.legacyMask, L"");
    ExpectNoReports();
}

TEST_F(LoadConfiguration, MissingMasksRecipientsAndSignersKeepTheirPlacesEmpty) {
    registry.PutNumber(kRule, L"Mask num", 2);
    registry.PutText(kRule, L"M0", L"*.txt");
    registry.PutNumber(kRule, L"Ext num", 3);
    registry.PutText(kRule, L"C1", L"CN=B");
    registry.PutNumber(kRule + L"\\List", L"Signer Num", 2);
    registry.PutText(kRule + L"\\List", L"S1", L"CN=S");
    const store::Rule rule = LoadOnlyRule();
    EXPECT_EQ(rule.masks, (store::TextList{L"*.txt", L""}));
    EXPECT_EQ(rule.recipients, (store::TextList{L"", L"CN=B", L""}));
    ASSERT_EQ(rule.signerGroups.size(), 1U);
    EXPECT_EQ(rule.signerGroups[0].signers, (store::TextList{L"", L"CN=S"}));
    ExpectNoReports();
}

TEST_F(LoadConfiguration, AMaskRecipientOrSignerThatCannotBeReadIsReportedAndKeepsItsPlaceEmpty) {
    const std::wstring tooLong(520, L'x');
    registry.PutNumber(kRule, L"Mask num", 2);
    registry.PutText(kRule, L"M0", tooLong);
    registry.PutText(kRule, L"M1", L"*.txt");
    registry.PutNumber(kRule, L"Ext num", 2);
    registry.PutText(kRule, L"C0", tooLong);
    registry.PutText(kRule, L"C1", L"CN=B");
    registry.PutNumber(kRule + L"\\List", L"Signer Num", 2);
    registry.PutText(kRule + L"\\List", L"S0", tooLong);
    registry.PutText(kRule + L"\\List", L"S1", L"CN=S");
    const store::Rule rule = LoadOnlyRule();
    EXPECT_EQ(rule.masks, (store::TextList{L"", L"*.txt"}));
    EXPECT_EQ(rule.recipients, (store::TextList{L"", L"CN=B"}));
    ASSERT_EQ(rule.signerGroups.size(), 1U);
    EXPECT_EQ(rule.signerGroups[0].signers, (store::TextList{L"", L"CN=S"}));
    EXPECT_EQ(store.ReportTexts(),
              (std::vector<std::wstring>{ReportText(L"Reading string value 'M0' from register", 234),
                                         ReportText(L"Reading string value 'C0' from register", 234),
                                         ReportText(L"Reading string value 'S0' from register", 234)}));
}

TEST_F(LoadConfiguration, NegativeCountsOfRecipientsAndSignersGiveNone) {
    registry.PutNumber(kRule, L"Ext num", 0x80000000);
    registry.PutText(kRule, L"C0", L"CN=A");
    registry.PutNumber(kRule + L"\\List", L"Signer Num", 0xFFFFFFFF);
    registry.PutText(kRule + L"\\List", L"S0", L"CN=S");
    const store::Rule rule = LoadOnlyRule();
    EXPECT_TRUE(rule.recipients.empty());
    ASSERT_EQ(rule.signerGroups.size(), 1U);
    EXPECT_TRUE(rule.signerGroups[0].signers.empty());
    ExpectNoReports();
}

TEST_F(LoadConfiguration, ReadsAsManyElementsAsCountedUpToTheHighestCount) {
    registry.PutNumber(kRule, L"Mask num", store::kHighestElementCount);
    registry.PutText(kRule, L"M0", L"*.txt");
    const store::Rule rule = LoadOnlyRule();
    EXPECT_EQ(rule.masks.size(), 100000U);
    EXPECT_EQ(rule.masks.front(), L"*.txt");
    ExpectNoReports();
}

TEST_F(LoadConfiguration, ACountBeyondBeliefIsReportedAndLosesNoTextThatStandsThere) {
    registry.PutNumber(kRule, L"Mask num", 0x7FFFFFFF);
    registry.PutText(kRule, L"M0", L"*.txt");
    registry.PutText(kRule, L"M2", L"*.doc");
    registry.PutText(kRule, L"Mask", L"not read");
    const store::Rule rule = LoadOnlyRule();
    EXPECT_EQ(rule.masks, (store::TextList{L"*.txt", L"", L"*.doc"}));
    EXPECT_EQ(store.ReportTexts(),
              std::vector<std::wstring>{ReportText(L"Reading integer value 'Mask num' from register", 13)});
}

TEST_F(LoadConfiguration, AnArchRuleWithZipFileZeroLoadsAsZip) {
    for (const wchar_t* operation : {L"ARCH", L"UNAR"}) {
        registry.PutText(kRule, L"Operation", operation);
        EXPECT_EQ(LoadOnlyRule().archiveFormat, 1) << operation;
    }
}

TEST_F(LoadConfiguration, OtherArchiveFormatsAndOperationsStayAsTheyAre) {
    registry.PutText(kRule, L"Operation", L"ARCH");
    registry.PutNumber(kRule, L"ZipFile", 2);
    EXPECT_EQ(LoadOnlyRule().archiveFormat, 2);
    registry.PutText(kRule, L"Operation", L"PACK");
    registry.PutNumber(kRule, L"ZipFile", 0);
    EXPECT_EQ(LoadOnlyRule().archiveFormat, 0);
}

TEST_F(LoadConfiguration, ARulesEmptyResignProfileTakesTheFirstRecipientWhichStays) {
    registry.PutText(kRule, L"Operation", L"RESG");
    registry.PutNumber(kRule, L"Ext num", 2);
    registry.PutText(kRule, L"C0", L"A");
    registry.PutText(kRule, L"C1", L"B");
    const store::Rule rule = LoadOnlyRule();
    EXPECT_EQ(rule.resignProfile, L"A");
    EXPECT_EQ(rule.recipients, (store::TextList{L"A", L"B"}));
    EXPECT_EQ(rule.secondOutput, L"");
}

TEST_F(LoadConfiguration, AMoveRulesEmptySecondOutputTakesTheFirstRecipientWhichStays) {
    registry.PutText(kRule, L"Operation", L"MOVE");
    registry.PutNumber(kRule, L"Ext num", 1);
    registry.PutText(kRule, L"C0", L"D:\\copy");
    const store::Rule rule = LoadOnlyRule();
    EXPECT_EQ(rule.secondOutput, L"D:\\copy");
    EXPECT_EQ(rule.recipients, store::TextList{L"D:\\copy"});
    EXPECT_EQ(rule.resignProfile, L"");
}

TEST_F(LoadConfiguration, AFilledFieldIsNotTakenFromTheRecipientsNorIsThatOfAnotherOperation) {
    registry.PutNumber(kRule, L"Ext num", 1);
    registry.PutText(kRule, L"C0", L"A");
    registry.PutText(kRule, L"ResignProfile", L"own");
    registry.PutText(kRule, L"Operation", L"RESG");
    EXPECT_EQ(LoadOnlyRule().resignProfile, L"own");
    registry.PutText(kRule, L"ResignProfile", L"");
    registry.PutText(kRule, L"Operation", L"ENCR");
    const store::Rule rule = LoadOnlyRule();
    EXPECT_EQ(rule.resignProfile, L"");
    EXPECT_EQ(rule.secondOutput, L"");
}

TEST_F(LoadConfiguration, WithoutRecipientsTheFieldsStayEmpty) {
    registry.PutText(kRule, L"Operation", L"RESG");
    EXPECT_EQ(LoadOnlyRule().resignProfile, L"");
    registry.PutText(kRule, L"Operation", L"MOVE");
    EXPECT_EQ(LoadOnlyRule().secondOutput, L"");
}

TEST_F(LoadConfiguration, AValueThatCannotBeReadIsReportedAndKeepsItsDefault) {
    registry.PutText(kProgram, L"SigExt", std::wstring(520, L'x'));
    registry.Put(kProgram, L"Window_top", Bytes(11, {1, 0, 0, 0, 0, 0, 0, 0}));
    registry.Put(kProfile, L"Handler timeout", Bytes(11, {1, 0, 0, 0, 0, 0, 0, 0}));
    ASSERT_TRUE(store.Load());
    EXPECT_EQ(state.settings.signedExtension, L"p7s");
    EXPECT_EQ(state.settings.window.top, 0);
    EXPECT_EQ(state.profiles.at(0).handlerTimeout, 15);
    EXPECT_EQ(store.ReportTexts(),
              (std::vector<std::wstring>{
                  ReportText(L"Reading integer value 'Window_top' from register", 234),
                  ReportText(L"Reading string value 'SigExt' from register", 234),
                  ReportText(L"Reading integer value 'Handler timeout' from register", 234)}));
    EXPECT_EQ(store.reports.presenter.Boxes().at(0).owner, store.owner);
}

TEST(LoadConfigurationOfNothing, WithoutTheProvidersKeyTheProgramEnds) {
    StoreFixture empty;
    empty.registry.PutKey(kRules);
    EXPECT_FALSE(empty.Load());
    EXPECT_EQ(empty.ReportTexts(),
              std::vector<std::wstring>{ReportText(
                  L"Create (open) register key HKEY_CURRENT_USER\\SOFTWARE\\HOLVAN\\tarn\\Profiles", 2)});
}

TEST_F(LoadConfiguration, AProfileWithoutRulesKeyEndsTheProgram) {
    registry.PutKey(kProgram + L"\\Broken");
    EXPECT_FALSE(store.Load());
    EXPECT_EQ(store.ReportTexts(), std::vector<std::wstring>{ReportText(
                                       L"Create (open) register key "
                                       L"HKEY_CURRENT_USER\\SOFTWARE\\HOLVAN\\tarntray\\Broken\\rules",
                                       2)});
}

TEST_F(LoadConfiguration, AKeyThatCannotBeSearchedEndsTheProgram) {
    registry.PutKey(kRule);
    registry.FailCalls(
        [](const RegistryCall& call) {
            return call.operation == RegistryOperation::kEnumerate && call.keyPath == kRule;
        },
        1018);
    EXPECT_FALSE(store.Load());
    EXPECT_EQ(store.ReportTexts(),
              std::vector<std::wstring>{
                  ReportText(L"Search register key HKEY_CURRENT_USER\\" + kRule + L" subkeys", 1018)});
}

TEST_F(LoadConfiguration, StartsAfreshAndClearsTheDirtyFlag) {
    state.isDirty = true;
    state.csProfileCatalogue = {L"stale"};
    state.profileNames = {L"stale"};
    state.profiles.resize(1);
    state.settings.logPath = L"stale";
    ASSERT_TRUE(store.Load());
    EXPECT_FALSE(state.isDirty);
    EXPECT_EQ(state.csProfileCatalogue, store::TextList{L"Main CSP"});
    EXPECT_EQ(state.profileNames, store::TextList{L"Office"});
    EXPECT_EQ(state.profiles.size(), 1U);
    EXPECT_EQ(state.settings.logPath, L"");
}

TEST_F(LoadConfiguration, ClosesEveryKeyAndHoldsTwoAtMost) {
    registry.PutKey(kRule + L"\\List");
    ASSERT_TRUE(store.Load());
    EXPECT_EQ(registry.OpenKeys(), 0U);
    EXPECT_EQ(registry.MostOpenKeys(), 2U) << "the new one is opened before the old one is closed";
    EXPECT_EQ(registry.Misuses(), 0U);
}

TEST_F(LoadConfiguration, ChangesNothingWhereThereIsAProfile) {
    registry.PutKey(kRule + L"\\List");
    const RegistrySnapshot before = registry.Snapshot();
    ASSERT_TRUE(store.Load());
    EXPECT_EQ(Differences(before, registry.Snapshot()), "");
}

TEST_F(LoadConfiguration, MakesNoMoreCallsThanTheLayoutNeeds) {
    registry.PutNumber(kRule, L"Mask num", 2);
    registry.PutNumber(kRule, L"Ext num", 1);
    registry.PutNumber(kRule + L"\\List", L"Signer Num", 3);
    ASSERT_TRUE(store.Load());
    std::map<RegistryOperation, int> counts;
    for (const RegistryCall& call : registry.Calls()) {
        ++counts[call.operation];
    }
    // The catalogue and its one key, the profile, its rules, the rule, the list; and the program key created.
    EXPECT_EQ(counts[RegistryOperation::kOpen], 6);
    EXPECT_EQ(counts[RegistryOperation::kCreate], 1);
    EXPECT_EQ(counts[RegistryOperation::kClose], 7);
    // Catalogue, program, rules and rule, each with one subkey and its end.
    EXPECT_EQ(counts[RegistryOperation::kEnumerate], 8);
    // Missing lists are not read: one in the program key, eleven in the profile key.
    EXPECT_EQ(counts[RegistryOperation::kQuerySize], 12);
    // 1 name; 4 + 8 + 2 settings; 6 of the profile; 24 of the rule with 2 masks and 1 recipient; 1 with 3.
    EXPECT_EQ(counts[RegistryOperation::kQuery], 1 + 14 + 6 + 24 + 2 + 1 + 1 + 3);
    EXPECT_EQ(counts[RegistryOperation::kSet], 0);
    EXPECT_EQ(counts[RegistryOperation::kDelete], 0);
}

TEST_F(LoadConfiguration, ReadsInTheLaidDownOrder) {
    registry.PutNumber(kRule, L"Mask num", 1);
    registry.PutNumber(kRule, L"Ext num", 1);
    ASSERT_TRUE(store.Load());
    std::vector<std::wstring> names;
    for (const RegistryCall& call : registry.Calls()) {
        if (call.operation == RegistryOperation::kQuery && call.keyPath == kRule) {
            names.push_back(call.name);
        }
    }
    EXPECT_EQ(names, (std::vector<std::wstring>{L"Operation",
                                                L"Path In",
                                                L"Path Out",
                                                L"Path Out 2",
                                                L"Path Error",
                                                L"DelExt",
                                                L"AddExt",
                                                L"Folders",
                                                L"Copyfolders",
                                                L"ArchCount",
                                                L"ArchSize",
                                                L"ArchTimeout",
                                                L"ArchName",
                                                L"ExecName",
                                                L"ExecTimeout",
                                                L"Mask num",
                                                L"M0",
                                                L"Ext num",
                                                L"Is on",
                                                L"ZCSProfile",
                                                L"ResignProfile",
                                                L"In format det",
                                                L"Out format det",
                                                L"Descryption",
                                                L"ZipFile",
                                                L"C0"}));
}

// A program key without a profile.
class FirstProfile : public ::testing::Test {
  protected:
    StoreFixture store;
    MemoryRegistry& registry = store.registry;
    store::ConfigurationState& state = store.state;
};

TEST_F(FirstProfile, IsStoredValueByValue) {
    registry.PutText(kCatalogue + L"\\{1}", L"ProfileName", L"Main CSP");
    ASSERT_TRUE(store.Load());
    const auto one = [](const wchar_t* text) { return MultiText({text}); };
    RegistrySnapshot expected;
    expected[L"SOFTWARE"];
    expected[L"SOFTWARE\\HOLVAN"];
    expected[L"SOFTWARE\\HOLVAN\\tarn"];
    expected[kCatalogue];
    expected[kCatalogue + L"\\{1}"] = {{L"ProfileName", Text(L"Main CSP")}};
    expected[kProgram] = {{L"LogPath", Text(L"")}, {L"Log filesize", Number(4000)}};
    expected[kProgram + L"\\default"] = {
        {L"AutoUseTSP", one(L"0")},        {L"AutoVerifyTSP", one(L"0")},
        {L"NotAddCert", one(L"0")},        {L"NotCopyToLocal", one(L"0")},
        {L"NotLoadCrl", one(L"0")},        {L"CrlUpdatePeriod", Bytes(store::kTypeTextList, {0, 0})},
        {L"NoTSPisError", one(L"0")},      {L"NotUseLDAP", one(L"1")},
        {L"ServerTSP", one(L"0")},         {L"UseAIA", one(L"0")},
        {L"Verify File", Number(0)},       {L"Verify x file", Number(0)},
        {L"Verify det file", Number(0)},   {L"Verify resign file", Number(0)},
        {L"Handler timeout", Number(15)},  {L"Rename conf files", Number(0)},
        {L"ZCSProfile", one(L"Main CSP")},
    };
    expected[kProgram + L"\\default\\rules"];
    EXPECT_EQ(Differences(expected, registry.Snapshot()), "");
    EXPECT_TRUE(store.ReportTexts().empty());
}

TEST_F(FirstProfile, IsStoredInItsOrder) {
    registry.PutText(kCatalogue + L"\\{1}", L"ProfileName", L"Main CSP");
    ASSERT_TRUE(store.Load());
    std::vector<std::wstring> steps;
    for (const RegistryCall& call : registry.Calls()) {
        if (call.operation == RegistryOperation::kSet) {
            steps.push_back(call.name);
        } else if (call.operation == RegistryOperation::kCreate) {
            steps.push_back(L"+" + call.keyPath);
        }
    }
    EXPECT_EQ(steps, (std::vector<std::wstring>{L"+" + kProgram,    L"LogPath",
                                                L"Log filesize",    L"+" + kProgram + L"\\default",
                                                L"AutoUseTSP",      L"AutoVerifyTSP",
                                                L"NotAddCert",      L"NotCopyToLocal",
                                                L"NotLoadCrl",      L"CrlUpdatePeriod",
                                                L"NoTSPisError",    L"NotUseLDAP",
                                                L"ServerTSP",       L"UseAIA",
                                                L"Verify File",     L"Verify x file",
                                                L"Verify det file", L"Verify resign file",
                                                L"Handler timeout", L"Rename conf files",
                                                L"ZCSProfile",      L"+" + kProgram + L"\\default\\rules"}));
}

TEST_F(FirstProfile, LoadsWithTheUpdatePeriodThatIsDeliberatelyNotStored) {
    registry.PutText(kCatalogue + L"\\{1}", L"ProfileName", L"Main CSP");
    registry.PutText(kCatalogue + L"\\{2}", L"ProfileName", L"Second");
    registry.PutKey(kProgram);
    ASSERT_TRUE(store.Load());
    store::Profile expected;
    expected.name = L"default";
    expected.timeStampServers = {L"0"};
    expected.csProfiles = {L"Main CSP"};
    expected.notUseDirectory = {1};
    expected.notAddCertificate = {0};
    expected.notCopyToLocal = {0};
    expected.autoVerifyTimeStamp = {0};
    expected.noTimeStampIsError = {0};
    expected.useAuthorityAccess = {0};
    expected.autoUseTimeStamp = {0};
    expected.notLoadCrl = {0};
    expected.crlUpdatePeriods = {1};
    EXPECT_EQ(state.profileNames, store::TextList{L"default"});
    ASSERT_EQ(state.profiles.size(), 1U);
    EXPECT_EQ(state.profiles[0], expected);
    EXPECT_FALSE(state.isDirty);
}

TEST_F(FirstProfile, KeepsTheSettingsThatStandInTheProgramKey) {
    registry.PutText(kCatalogue + L"\\{1}", L"ProfileName", L"Main CSP");
    registry.PutText(kProgram, L"SigExt", L"own");
    registry.PutText(kProgram, L"LogPath", L"C:\\log");
    ASSERT_TRUE(store.Load());
    EXPECT_EQ(state.settings.signedExtension, L"own");
    EXPECT_EQ(state.settings.logPath, L"") << "written together with the profile";
}

TEST_F(FirstProfile, HasTheMarkerWhereTheFirstCatalogueNameIsEmpty) {
    registry.PutKey(kCatalogue + L"\\{1}");
    ASSERT_TRUE(store.Load());
    EXPECT_EQ(registry.Find(kProgram + L"\\default", L"ZCSProfile"), MultiText({L"0"}));
}

TEST_F(FirstProfile, CannotBeMadeWithoutACsProfileAndThenNothingOfItIsWritten) {
    registry.PutKey(kCatalogue);
    try {
        static_cast<void>(store.Load());
        ADD_FAILURE() << "expected an exception";
    } catch (const std::invalid_argument& error) {
        EXPECT_STREQ(
            error.what(),
            "There is no profile yet, and the crypto provider has no CS profile to make a first one with.");
    }
    RegistrySnapshot expected;
    expected[L"SOFTWARE"];
    expected[L"SOFTWARE\\HOLVAN"];
    expected[L"SOFTWARE\\HOLVAN\\tarn"];
    expected[kCatalogue];
    expected[kProgram];
    EXPECT_EQ(Differences(expected, registry.Snapshot()), "");
    EXPECT_TRUE(store.ReportTexts().empty());
}

TEST_F(FirstProfile, IsNotNeededWithAnEmptyCatalogueWhereThereIsAProfile) {
    registry.PutKey(kCatalogue);
    registry.PutKey(kRules);
    EXPECT_TRUE(store.Load());
    EXPECT_TRUE(state.csProfileCatalogue.empty());
}

TEST(ShouldRestoreWindow, OnlyWithBothTopAndLeftNonZero) {
    const auto rectangle = [](std::int32_t top, std::int32_t left) {
        return store::WindowRectangle{.top = top, .bottom = 500, .left = left, .right = 900};
    };
    EXPECT_TRUE(store::ShouldRestoreWindow(rectangle(100, 50)));
    EXPECT_TRUE(store::ShouldRestoreWindow(rectangle(-8, -8)));
    EXPECT_FALSE(store::ShouldRestoreWindow(rectangle(100, 0)));
    EXPECT_FALSE(store::ShouldRestoreWindow(rectangle(0, 100)));
    EXPECT_FALSE(store::ShouldRestoreWindow(rectangle(0, 0)));
    EXPECT_TRUE(store::ShouldRestoreWindow({.top = 1, .bottom = 0, .left = 1, .right = 0}));
}

}  // namespace
}  // namespace corvane::test
