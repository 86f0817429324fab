#include "store/registry/save_configuration.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/kit/fakes/memory_registry.h"
#include "tests/kit/fixtures/store_fixture.h"
#include "tests/store/registry/stored_paths.h"

namespace corvane::test {
namespace {

store::Rule RuleOf(const wchar_t* operation) {
    store::Rule rule;
    rule.operation = operation;
    return rule;
}

class SaveConfiguration : public ::testing::Test {
  protected:
    SaveConfiguration() {
        registry.PutKey(kProgram);
        store.restored = {.top = 1, .bottom = 2, .left = 3, .right = 4};
        AddProfile(L"Office");
        state.isDirty = true;
    }

    store::Profile& AddProfile(const wchar_t* name) {
        state.profileNames.emplace_back(name);
        store::Profile& profile = state.profiles.emplace_back();
        profile.name = name;
        return profile;
    }

    void FailAt(RegistryOperation operation, const std::wstring& keyPath, std::uint32_t code) {
        registry.FailCalls(
            [operation, keyPath](const RegistryCall& call) {
                return call.operation == operation && call.keyPath == keyPath;
            },
            code);
    }

    [[nodiscard]] std::vector<std::wstring> Reports() const { return store.ReportTexts(); }

    StoreFixture store;
    MemoryRegistry& registry = store.registry;
    store::ConfigurationState& state = store.state;
};

TEST_F(SaveConfiguration, StoresEveryValueUnderItsNameTypeAndData) {
    state.settings.window = {.top = 91, .bottom = 92, .left = 93, .right = 94};
    state.settings.signedExtension = L"e1";
    state.settings.detachedSignatureExtension = L"e2";
    state.settings.encryptedExtension = L"e3";
    state.settings.base64Extension = L"e4";
    state.settings.hashExtension = L"e5";
    state.settings.verificationExtension = L"e6";
    state.settings.zipExtension = L"e7";
    state.settings.gzipExtension = L"e8";
    state.settings.additionalExtensions = {L"doc", L"pdf"};
    state.settings.logPath = L"C:\\log";
    state.settings.logFileSize = 5000;
    store::Profile& profile = state.profiles[0];
    profile.timeStampServers = {L"http://tsp", L""};
    profile.csProfiles = {L"Main CSP", L"Second"};
    profile.notUseDirectory = {1, 2};
    profile.notCopyToLocal = {3, 4};
    profile.autoUseTimeStamp = {5, 6};
    profile.autoVerifyTimeStamp = {7, 8};
    profile.noTimeStampIsError = {9, 10};
    profile.useAuthorityAccess = {11, 12};
    profile.notAddCertificate = {13, 14};
    profile.notLoadCrl = {15, 16};
    profile.crlUpdatePeriods = {17, -18};
    profile.verifyFile = 19;
    profile.verifyXFile = 20;
    profile.verifyDetachedFile = 21;
    profile.verifyResignFile = 22;
    profile.handlerTimeout = 23;
    profile.renameConfFiles = -24;
    store::Rule& rule = profile.rules.emplace_back();
    rule.operation = L"PACK";
    rule.inputFolder = L"t1";
    rule.outputFolder = L"t2";
    rule.secondOutput = L"t3";
    rule.errorFolder = L"t4";
    rule.deleteExtension = L"t5";
    rule.addExtension = L"t6";
    rule.folders = L"t7";
    rule.copyFolders = L"t8";
    rule.archiveFileCount = 1;
    rule.archiveSize = 2;
    rule.archiveTimeout = 3;
    rule.archiveName = L"t9";
    rule.executable = L"t10";
    rule.executionTimeout = 4;
    rule.masks = {L"*.txt", L""};
    rule.legacyMask = L"never stored";
    rule.recipients = {L"CN=\x0418\x0432\x0430\x043D", L"CN=B"};
    rule.isOn = 5;
    rule.csProfile = L"t11";
    rule.resignProfile = L"t12";
    rule.inputDetached = 6;
    rule.outputDetached = 7;
    rule.description = L"t13";
    rule.archiveFormat = 8;
    rule.signerGroups = {{L"zeta", {L"CN=C", L"CN=D"}}, {L"alpha", {}}};

    store.Save();

    RegistrySnapshot expected;
    expected[L"SOFTWARE"];
    expected[L"SOFTWARE\\HOLVAN"];
    expected[kProgram] = {
        {L"Window_top", Number(1)},
        {L"Window_bottom", Number(2)},
        {L"Window_left", Number(3)},
        {L"Window_right", Number(4)},
        {L"SigExt", Text(L"e1")},
        {L"DsigExt", Text(L"e2")},
        {L"EncExt", Text(L"e3")},
        {L"B64Ext", Text(L"e4")},
        {L"HashExt", Text(L"e5")},
        {L"VerifyFileExt", Text(L"e6")},
        {L"ZIPArchiveExt", Text(L"e7")},
        {L"GZIPArchiveExt", Text(L"e8")},
        {L"LogPath", Text(L"C:\\log")},
        {L"Log filesize", Number(5000)},
        {L"ExtExt",
         Bytes(store::kTypeTextList, {'d', 0, 'o', 0, 'c', 0, 0, 0, 'p', 0, 'd', 0, 'f', 0, 0, 0, 0, 0})},
    };
    const auto two = [](const wchar_t* first, const wchar_t* second) { return MultiText({first, second}); };
    expected[kProfile] = {
        {L"ServerTSP", two(L"http://tsp", L"0")},
        {L"ZCSProfile", two(L"Main CSP", L"Second")},
        {L"NotUseLDAP", two(L"1", L"2")},
        {L"NotCopyToLocal", two(L"3", L"4")},
        {L"AutoUseTSP", two(L"5", L"6")},
        {L"AutoVerifyTSP", two(L"7", L"8")},
        {L"NoTSPisError", two(L"9", L"10")},
        {L"UseAIA", two(L"11", L"12")},
        {L"NotAddCert", two(L"13", L"14")},
        {L"NotLoadCrl", two(L"15", L"16")},
        {L"CrlUpdatePeriod", two(L"17", L"-18")},
        {L"Verify File", Number(19)},
        {L"Verify x file", Number(20)},
        {L"Verify det file", Number(21)},
        {L"Verify resign file", Number(22)},
        {L"Handler timeout", Number(23)},
        {L"Rename conf files", Number(0xFFFFFFE8)},
    };
    expected[kRules];
    expected[kRules + L"\\Rule 0"] = {
        {L"Operation", Text(L"PACK")},
        {L"Path In", Text(L"t1")},
        {L"Path Out", Text(L"t2")},
        {L"Path Out 2", Text(L"t3")},
        {L"Path Error", Text(L"t4")},
        {L"DelExt", Text(L"t5")},
        {L"AddExt", Text(L"t6")},
        {L"Folders", Text(L"t7")},
        {L"Copyfolders", Text(L"t8")},
        {L"ArchCount", Number(1)},
        {L"ArchSize", Number(2)},
        {L"ArchTimeout", Number(3)},
        {L"ArchName", Text(L"t9")},
        {L"ExecName", Text(L"t10")},
        {L"ExecTimeout", Number(4)},
        {L"Mask num", Number(2)},
        {L"M0", Text(L"*.txt")},
        {L"M1", Text(L"")},
        {L"Ext num", Number(2)},
        {L"Is on", Number(5)},
        {L"ZCSProfile", Text(L"t11")},
        {L"ResignProfile", Text(L"t12")},
        {L"In format det", Number(6)},
        {L"Out format det", Number(7)},
        {L"Descryption", Text(L"t13")},
        {L"ZipFile", Number(8)},
        {L"C0", Text(L"CN=\x0418\x0432\x0430\x043D")},
        {L"C1", Text(L"CN=B")},
    };
    expected[kRules + L"\\Rule 0\\zeta"] = {
        {L"Signer Num", Number(2)}, {L"S0", Text(L"CN=C")}, {L"S1", Text(L"CN=D")}};
    expected[kRules + L"\\Rule 0\\alpha"] = {{L"Signer Num", Number(0)}};
    EXPECT_EQ(Differences(expected, registry.Snapshot()), "");
    EXPECT_TRUE(Reports().empty());
    EXPECT_FALSE(state.isDirty);
}

TEST_F(SaveConfiguration, WritesInTheLaidDownOrder) {
    store::Rule rule = RuleOf(L"ENCR");
    rule.masks = {L"*.a"};
    rule.recipients = {L"CN=A"};
    rule.signerGroups = {{L"List", {L"CN=S"}}};
    state.profiles[0].rules = {rule};
    store.Save();
    std::vector<std::wstring> steps;
    for (const RegistryCall& call : registry.Calls()) {
        const std::wstring key = call.keyPath.substr(std::min(call.keyPath.size(), kProgram.size()));
        if (call.operation == RegistryOperation::kSet) {
            steps.push_back(call.name);
        } else if (call.operation == RegistryOperation::kCreate) {
            steps.push_back(L"create " + key);
        } else if (call.operation == RegistryOperation::kOpen) {
            steps.push_back(L"open " + key);
        }
    }
    EXPECT_EQ(steps, (std::vector<std::wstring>{
                         L"open ",
                         L"Window_top",
                         L"Window_bottom",
                         L"Window_left",
                         L"Window_right",
                         L"SigExt",
                         L"DsigExt",
                         L"EncExt",
                         L"B64Ext",
                         L"HashExt",
                         L"VerifyFileExt",
                         L"ZIPArchiveExt",
                         L"GZIPArchiveExt",
                         L"ExtExt",
                         L"LogPath",
                         L"Log filesize",
                         L"create \\Office",
                         L"open ",
                         L"open \\Office",
                         L"ServerTSP",
                         L"ZCSProfile",
                         L"NotUseLDAP",
                         L"NotCopyToLocal",
                         L"AutoUseTSP",
                         L"AutoVerifyTSP",
                         L"NoTSPisError",
                         L"UseAIA",
                         L"NotAddCert",
                         L"NotLoadCrl",
                         L"CrlUpdatePeriod",
                         L"Verify File",
                         L"Verify x file",
                         L"Verify det file",
                         L"Verify resign file",
                         L"Handler timeout",
                         L"Rename conf files",
                         L"open \\Office\\rules",
                         L"create \\Office\\rules",
                         L"open \\Office\\rules",
                         L"create \\Office\\rules\\Rule 0",
                         L"Operation",
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
                         L"C0",
                         L"create \\Office\\rules\\Rule 0\\List",
                         L"Signer Num",
                         L"S0",
                         L"open ",
                     }));
}

TEST_F(SaveConfiguration, DeletesTheKeyOfADeletedProfileWithItsRulesAndSignerLists) {
    registry.PutText(kProgram + L"\\Gone\\rules\\Rule 0\\List", L"S0", L"CN=S");
    registry.PutKey(kProfile);
    store.Save();
    EXPECT_EQ(registry.SubkeyNames(kProgram), store::TextList{L"Office"});
    EXPECT_TRUE(Reports().empty());
}

TEST_F(SaveConfiguration, ComparesProfileNamesWithTheirCase) {
    registry.PutText(kProgram + L"\\OFFICE", L"Stale", L"of another profile");
    store.Save();
    EXPECT_EQ(registry.SubkeyNames(kProgram), store::TextList{L"Office"});
    EXPECT_FALSE(registry.Find(kProfile, L"Stale").has_value());
    EXPECT_FALSE(state.isDirty);
}

TEST_F(SaveConfiguration, KeepsValuesAndKeysThatItDoesNotKnow) {
    registry.PutText(kProgram, L"LastCrlUpdate", L"kept");
    registry.PutText(kProfile, L"Note", L"kept");
    registry.PutText(kProfile + L"\\other", L"Note", L"kept");
    store.Save();
    EXPECT_EQ(registry.Find(kProgram, L"LastCrlUpdate"), Text(L"kept"));
    EXPECT_EQ(registry.Find(kProfile, L"Note"), Text(L"kept"));
    EXPECT_EQ(registry.Find(kProfile + L"\\other", L"Note"), Text(L"kept"));
}

TEST_F(SaveConfiguration, WritesTheRulesAfresh) {
    registry.PutText(kRules + L"\\Rule 0", L"Mask", L"*.old");
    registry.PutText(kRules + L"\\Rule 7\\List", L"S0", L"CN=S");
    state.profiles[0].rules = {RuleOf(L"ENCR")};
    store.Save();
    EXPECT_EQ(registry.SubkeyNames(kRules), store::TextList{L"Rule 0"});
    EXPECT_FALSE(registry.Find(kRules + L"\\Rule 0", L"Mask").has_value());
}

TEST_F(SaveConfiguration, SkipsARuleWithoutOperationAndItsNumber) {
    state.profiles[0].rules = {RuleOf(L"ENCR"), RuleOf(L""), RuleOf(L"DECR")};
    registry.PutKey(kCatalogue);
    store.Save();
    EXPECT_EQ(registry.SubkeyNames(kRules), (store::TextList{L"Rule 0", L"Rule 2"}));
    EXPECT_EQ(state.profiles[0].rules.size(), 3U);
    ASSERT_TRUE(store.Load());
    ASSERT_EQ(state.profiles[0].rules.size(), 2U);
    EXPECT_EQ(state.profiles[0].rules[0].operation, L"ENCR");
    EXPECT_EQ(state.profiles[0].rules[1].operation, L"DECR");
}

TEST_F(SaveConfiguration, ARuleWithoutMasksComesBackWithOneEmptyMask) {
    state.profiles[0].rules = {RuleOf(L"ENCR")};
    registry.PutKey(kCatalogue);
    store.Save();
    EXPECT_EQ(registry.Find(kRules + L"\\Rule 0", L"Mask num"), Number(0));
    EXPECT_FALSE(registry.Find(kRules + L"\\Rule 0", L"M0").has_value());
    ASSERT_TRUE(store.Load());
    EXPECT_EQ(state.profiles[0].rules[0].masks, store::TextList{L""});
    store.Save();
    EXPECT_EQ(registry.Find(kRules + L"\\Rule 0", L"Mask num"), Number(1));
    EXPECT_EQ(registry.Find(kRules + L"\\Rule 0", L"M0"), Text(L""));
    EXPECT_FALSE(registry.Find(kRules + L"\\Rule 0", L"Mask").has_value());
}

TEST_F(SaveConfiguration, StoresAnEmptyTimeStampServerAsZero) {
    state.profiles[0].timeStampServers = {L""};
    state.profiles[0].csProfiles = {L"", L"Second"};
    store.Save();
    EXPECT_EQ(registry.Find(kProfile, L"ServerTSP"), MultiText({L"0"}));
    EXPECT_EQ(registry.Find(kProfile, L"ZCSProfile"), MultiText({L"0", L"Second"}));
    EXPECT_EQ(state.profiles[0].timeStampServers, store::TextList{L""}) << "in memory it stays empty";
}

TEST_F(SaveConfiguration, StoresTheAdditionalExtensionsAsTheyAre) {
    state.settings.additionalExtensions = {L"doc", L"", L"pdf"};
    store.Save();
    EXPECT_EQ(registry.Find(kProgram, L"ExtExt"), MultiText({L"doc", L"", L"pdf"}));
}

TEST_F(SaveConfiguration, StoresTextsThatAreLongerThanCanBeReadBack) {
    state.settings.logPath = std::wstring(2000, L'x');
    store.Save();
    EXPECT_EQ(registry.Find(kProgram, L"LogPath"), Text(std::wstring(2000, L'x')));
    EXPECT_TRUE(Reports().empty());
}

TEST_F(SaveConfiguration, LeavesTheProvidersKeyUntouched) {
    registry.PutText(kCatalogue + L"\\{1}", L"ProfileName", L"Main CSP");
    registry.PutText(kCatalogue + L"\\{1}", L"Secret", L"of the provider");
    store.Save();
    for (const RegistryCall& call : registry.Calls()) {
        EXPECT_TRUE(call.keyPath.starts_with(kProgram)) << Describe(call);
    }
}

TEST_F(SaveConfiguration, LeavesTheRecordsAsTheyAreButForTheDirtyFlag) {
    state.profiles[0].rules = {RuleOf(L"ENCR"), RuleOf(L"")};
    state.currentProfileName = L"Office";
    store::ConfigurationState expected = state;
    expected.isDirty = false;
    store.Save();
    EXPECT_EQ(state, expected);
}

TEST_F(SaveConfiguration, ClosesEveryKeyAndHoldsTwoAtMostOutsideADeletion) {
    store::Rule rule = RuleOf(L"ENCR");
    rule.signerGroups = {{L"List", {}}};
    state.profiles[0].rules = {rule};
    store.Save();
    EXPECT_EQ(registry.OpenKeys(), 0U);
    EXPECT_EQ(registry.MostOpenKeys(), 2U);
    EXPECT_EQ(registry.Misuses(), 0U);
}

TEST(SaveConfigurationOfNothing, WithoutItsProgramKeyEndsAndStaysDirty) {
    StoreFixture empty;
    empty.state.isDirty = true;
    empty.Save();
    EXPECT_EQ(empty.ReportTexts(),
              std::vector<std::wstring>{ReportText(
                  L"Create (open) register key HKEY_CURRENT_USER\\SOFTWARE\\HOLVAN\\tarntray", 2)});
    EXPECT_TRUE(empty.state.isDirty);
    EXPECT_TRUE(empty.registry.Snapshot().empty());
}

TEST_F(SaveConfiguration, WithAProgramKeyThatCannotBeSearchedEndsAndStaysDirty) {
    FailAt(RegistryOperation::kEnumerate, kProgram, 5);
    store.Save();
    EXPECT_EQ(Reports(), std::vector<std::wstring>{ReportText(
                             L"Search register key HKEY_CURRENT_USER\\" + kProgram + L" subkeys", 5)});
    EXPECT_TRUE(state.isDirty);
    EXPECT_TRUE(registry.SubkeyNames(kProgram).empty());
}

TEST_F(SaveConfiguration, ARemovedProfileThatCannotBeDeletedEndsItDirtyWithTheKeyOpen) {
    registry.PutKey(kProgram + L"\\Gone");
    registry.PutKey(kProgram + L"\\Gone too");
    FailAt(RegistryOperation::kDelete, kProgram + L"\\Gone", 5);
    store.Save();
    EXPECT_EQ(Reports(), std::vector<std::wstring>{ReportText(
                             L"Delete register key HKEY_CURRENT_USER\\" + kProgram + L"\\Gone", 5)});
    EXPECT_TRUE(state.isDirty);
    EXPECT_EQ(registry.SubkeyNames(kProgram), (store::TextList{L"Gone", L"Gone too"}));
    EXPECT_FALSE(registry.Find(kProgram, L"SigExt").has_value());
    EXPECT_EQ(registry.OpenKeys(), 1U);
}

TEST_F(SaveConfiguration, NotFoundIsAFailureToDeleteARemovedProfile) {
    registry.PutKey(kProgram + L"\\Gone");
    FailAt(RegistryOperation::kOpen, kProgram + L"\\Gone", 2);
    store.Save();
    EXPECT_EQ(Reports(), std::vector<std::wstring>{ReportText(
                             L"Delete register key HKEY_CURRENT_USER\\" + kProgram + L"\\Gone", 2)});
    EXPECT_TRUE(state.isDirty);
}

TEST_F(SaveConfiguration, AValueThatCannotBeWrittenIsReportedAndTheNextOneIsWritten) {
    registry.FailCalls([](const RegistryCall& call) { return call.name == L"SigExt"; }, 5);
    store.Save();
    EXPECT_EQ(Reports(),
              std::vector<std::wstring>{ReportText(L"Writing string value 'SigExt' into register", 5)});
    EXPECT_FALSE(registry.Find(kProgram, L"SigExt").has_value());
    EXPECT_TRUE(registry.Find(kProgram, L"DsigExt").has_value());
    EXPECT_FALSE(state.isDirty);
}

TEST_F(SaveConfiguration, ANewProfileThatCannotBeMadeIsReportedAndTheNextOneIsMade) {
    AddProfile(L"Second");
    FailAt(RegistryOperation::kCreate, kProfile, 5);
    store.Save();
    const std::wstring report =
        L"Create (open) register key HKEY_CURRENT_USER\\SOFTWARE\\HOLVAN\\tarntray\\Office";
    // Then its key cannot be opened either, and that ends the profiles.
    EXPECT_EQ(Reports(), (std::vector<std::wstring>{ReportText(report, 5), ReportText(report, 2)}));
    EXPECT_EQ(registry.SubkeyNames(kProgram), store::TextList{L"Second"});
    EXPECT_FALSE(registry.Find(kProgram + L"\\Second", L"ZCSProfile").has_value());
    EXPECT_FALSE(state.isDirty);
}

TEST_F(SaveConfiguration, AProfileThatCannotBeOpenedDeliberatelyEndsTheProfilesWithTheFlagCleared) {
    AddProfile(L"Second");
    registry.PutKey(kProfile);
    registry.PutKey(kProgram + L"\\Second");
    FailAt(RegistryOperation::kOpen, kProfile, 5);
    store.Save();
    EXPECT_EQ(Reports(), std::vector<std::wstring>{
                             ReportText(L"Create (open) register key HKEY_CURRENT_USER\\" + kProfile, 5)});
    EXPECT_TRUE(registry.Find(kProgram, L"Log filesize").has_value());
    EXPECT_FALSE(registry.HasKey(kProgram + L"\\Second\\rules"));
    EXPECT_FALSE(state.isDirty);
    EXPECT_EQ(registry.OpenKeys(), 0U);
}

TEST_F(SaveConfiguration, OldRulesThatCannotBeDeletedDeliberatelyEndItWithTheFlagCleared) {
    AddProfile(L"Second");
    registry.PutKey(kRules + L"\\Rule 0");
    FailAt(RegistryOperation::kDelete, kRules + L"\\Rule 0", 5);
    state.profiles[0].rules = {RuleOf(L"ENCR")};
    store.Save();
    EXPECT_EQ(Reports(),
              std::vector<std::wstring>{ReportText(L"Delete register key HKEY_CURRENT_USER\\" + kRules, 5)});
    EXPECT_TRUE(registry.Find(kProfile, L"Handler timeout").has_value());
    EXPECT_FALSE(registry.HasKey(kProgram + L"\\Second\\rules"));
    EXPECT_FALSE(state.isDirty);
    EXPECT_EQ(registry.OpenKeys(), 0U);
}

TEST_F(SaveConfiguration, MissingOldRulesAreNoFailure) {
    store.Save();
    EXPECT_TRUE(Reports().empty());
    EXPECT_TRUE(registry.HasKey(kRules));
}

TEST_F(SaveConfiguration, ARulesKeyThatCannotBeMadeEndsItWithTheFlagCleared) {
    AddProfile(L"Second");
    registry.PutKey(kRules + L"\\Rule 0");
    FailAt(RegistryOperation::kCreate, kRules, 5);
    store.Save();
    EXPECT_EQ(Reports(), std::vector<std::wstring>{
                             ReportText(L"Create (open) register key HKEY_CURRENT_USER\\" + kRules, 5)});
    EXPECT_FALSE(registry.HasKey(kRules));
    EXPECT_FALSE(registry.HasKey(kProgram + L"\\Second\\rules"));
    EXPECT_FALSE(state.isDirty);
}

TEST_F(SaveConfiguration, ARuleKeyThatCannotBeMadeEndsTheRulesOfItsProfileOnly) {
    state.profiles[0].rules = {RuleOf(L"ENCR"), RuleOf(L"DECR"), RuleOf(L"HASH")};
    AddProfile(L"Second").rules = {RuleOf(L"MOVE")};
    FailAt(RegistryOperation::kCreate, kRules + L"\\Rule 1", 5);
    store.Save();
    EXPECT_EQ(Reports(), std::vector<std::wstring>{ReportText(
                             L"Create (open) register key HKEY_CURRENT_USER\\" + kRules + L"\\Rule 1", 5)});
    EXPECT_EQ(registry.SubkeyNames(kRules), store::TextList{L"Rule 0"});
    EXPECT_TRUE(registry.HasKey(kProgram + L"\\Second\\rules\\Rule 0"));
    EXPECT_FALSE(state.isDirty);
}

TEST_F(SaveConfiguration, ARulesKeyThatCannotBeOpenedEndsTheRulesOfItsProfileOnly) {
    state.profiles[0].rules = {RuleOf(L"ENCR")};
    AddProfile(L"Second").rules = {RuleOf(L"MOVE")};
    FailAt(RegistryOperation::kOpen, kRules, 2);
    store.Save();
    EXPECT_EQ(Reports(), std::vector<std::wstring>{
                             ReportText(L"Create (open) register key HKEY_CURRENT_USER\\" + kRules, 2)});
    EXPECT_TRUE(registry.SubkeyNames(kRules).empty());
    EXPECT_TRUE(registry.HasKey(kProgram + L"\\Second\\rules\\Rule 0"));
}

TEST_F(SaveConfiguration, ASignerListKeyThatCannotBeMadeEndsTheListsOfItsRuleOnly) {
    store::Rule first = RuleOf(L"SIGN");
    first.signerGroups = {{L"a", {L"CN=A"}}, {L"b", {L"CN=B"}}, {L"c", {L"CN=C"}}};
    store::Rule second = RuleOf(L"SIGN");
    second.signerGroups = {{L"d", {L"CN=D"}}};
    state.profiles[0].rules = {first, second};
    FailAt(RegistryOperation::kCreate, kRules + L"\\Rule 0\\b", 5);
    store.Save();
    EXPECT_EQ(Reports(),
              std::vector<std::wstring>{ReportText(
                  L"Create (open) register key HKEY_CURRENT_USER\\" + kRules + L"\\Rule 0\\b", 5)});
    EXPECT_EQ(registry.SubkeyNames(kRules + L"\\Rule 0"), store::TextList{L"a"});
    EXPECT_EQ(registry.SubkeyNames(kRules + L"\\Rule 1"), store::TextList{L"d"});
    EXPECT_FALSE(state.isDirty);
}

TEST_F(SaveConfiguration, AKeyThatDoesNotCloseIsDeliberatelyReportedWithTheTextForOpening) {
    registry.PutKey(kRules);
    store.Save();
    const std::size_t callsOfASave = registry.Calls().size();
    state.isDirty = true;
    registry.FailCall(2 * callsOfASave - 1, 6);
    store.Save();
    EXPECT_EQ(registry.Calls().back().operation, RegistryOperation::kClose);
    EXPECT_EQ(Reports(), std::vector<std::wstring>{
                             ReportText(L"Create (open) register key HKEY_CURRENT_USER\\" + kProgram, 6)});
    EXPECT_FALSE(state.isDirty);
}

TEST_F(SaveConfiguration, ThenLoadGivesTheSameRecords) {
    store::Rule rule = RuleOf(L"SGEN");
    rule.masks = {L"", L"*.txt"};
    rule.recipients = {L"", L"CN=\x0418\x0432\x0430\x043D"};
    rule.signerGroups = {{L"b", {L"", L"CN=S"}}, {L"a", {}}};
    state.profiles[0].rules.assign(12, rule);
    for (std::size_t index = 0; index < state.profiles[0].rules.size(); ++index) {
        state.profiles[0].rules[index].description = std::to_wstring(index);
    }
    state.profiles[0].timeStampServers = {L"0"};
    state.profiles[0].csProfiles = {L"Main CSP"};
    state.profiles[0].notLoadCrl = {0, 1};
    state.profiles[0].crlUpdatePeriods = {24, 1};
    state.settings.additionalExtensions = {L"doc"};
    registry.PutText(kCatalogue + L"\\{1}", L"ProfileName", L"Main CSP");
    state.csProfileCatalogue = {L"Main CSP"};
    store.Save();
    store::ConfigurationState expected = state;
    expected.settings.window = store.restored;
    ASSERT_TRUE(store.Load());
    EXPECT_EQ(state, expected);
}

}  // namespace
}  // namespace corvane::test
