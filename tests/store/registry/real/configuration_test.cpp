#include <gtest/gtest.h>

#include "tests/kit/fakes/memory_registry.h"
#include "tests/kit/fakes/reg_file.h"
#include "tests/store/registry/real/real_store_fixture.h"

// Whole configurations in the system's registry: what a save writes there, and that it comes back.

namespace corvane::test {
namespace {

// Every field of every record holds something of its own.
store::ConfigurationState FullConfiguration() {
    store::ConfigurationState state;
    state.csProfileCatalogue = {L"Main CSP"};
    state.settings.signedExtension = L"e1";
    state.settings.detachedSignatureExtension = L"e2";
    state.settings.encryptedExtension = L"e3";
    state.settings.base64Extension = L"e4";
    state.settings.hashExtension = L"e5";
    state.settings.verificationExtension = L"e6";
    state.settings.zipExtension = L"e7";
    state.settings.gzipExtension = L"e8";
    state.settings.additionalExtensions = {L"doc", L"pdf"};
    state.settings.logPath = L"C:\\\x0416\x0443\x0440\x043D\x0430\x043B";
    state.settings.logFileSize = 5000;
    for (const wchar_t* name : {L"Archive", L"\x041F\x043E\x0447\x0442\x0430"}) {
        state.profileNames.emplace_back(name);
        store::Profile& profile = state.profiles.emplace_back();
        profile.name = name;
        profile.timeStampServers = {L"http://tsp", L"0"};
        profile.csProfiles = {L"Main CSP", L"Second"};
        profile.notUseDirectory = {1, 0};
        profile.notCopyToLocal = {0, 1};
        profile.autoUseTimeStamp = {1, 1};
        profile.autoVerifyTimeStamp = {0, 0};
        profile.noTimeStampIsError = {2, 3};
        profile.useAuthorityAccess = {4, 5};
        profile.notAddCertificate = {6, 7};
        profile.notLoadCrl = {8, 9};
        profile.crlUpdatePeriods = {24, -1};
        profile.verifyFile = 1;
        profile.verifyXFile = 2;
        profile.verifyDetachedFile = 3;
        profile.verifyResignFile = 4;
        profile.handlerTimeout = 30;
        profile.renameConfFiles = 5;
        store::Rule rule;
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
        rule.recipients = {L"CN=\x0418\x0432\x0430\x043D", L""};
        rule.isOn = 1;
        rule.csProfile = L"Main CSP";
        rule.resignProfile = L"Second";
        rule.inputDetached = 1;
        rule.outputDetached = 2;
        rule.archiveFormat = 2;
        rule.signerGroups = {{L"Clerks", {}}, {L"Officers", {L"CN=A", L""}}};
        profile.rules.assign(12, rule);
        for (std::size_t index = 0; index < profile.rules.size(); ++index) {
            profile.rules[index].description = L"number " + std::to_wstring(index);
        }
    }
    state.isDirty = true;
    return state;
}

using RealConfiguration = RealStore;

TEST_F(RealConfiguration, IsStoredValueByValueAndTypeByType) {
    state.settings.logPath = L"C:\\log";
    state.settings.additionalExtensions = {L"doc", L"pdf"};
    state.profileNames = {L"Office"};
    store::Profile& profile = state.profiles.emplace_back();
    profile.name = L"Office";
    profile.timeStampServers = {L"", L"x"};
    profile.csProfiles = {L"Main CSP"};
    profile.notUseDirectory = {1, -2};
    store::Rule& rule = profile.rules.emplace_back();
    rule.operation = L"SIGN";
    rule.masks = {L"*.txt"};
    rule.recipients = {L"CN=A"};
    rule.signerGroups = {{L"List", {L"CN=S"}}};
    restored = {.top = 1, .bottom = 2, .left = -3, .right = 4};
    root.PutKey(kProgram);
    Save();

    const StoredData none = Bytes(store::kTypeTextList, {0, 0});
    RegistrySnapshot expected;
    expected[L"SOFTWARE"];
    expected[L"SOFTWARE\\HOLVAN"];
    expected[kProgram] = {
        {L"Window_top", Number(1)},
        {L"Window_bottom", Number(2)},
        {L"Window_left", Bytes(store::kTypeNumber, {0xFD, 0xFF, 0xFF, 0xFF})},
        {L"Window_right", Number(4)},
        {L"SigExt", Bytes(store::kTypeText, {'p', 0, '7', 0, 's', 0, 0, 0})},
        {L"DsigExt", Text(L"p7d")},
        {L"EncExt", Text(L"p7e")},
        {L"B64Ext", Text(L"b64")},
        {L"HashExt", Text(L"hsh")},
        {L"VerifyFileExt", Text(L"vrf")},
        {L"ZIPArchiveExt", Text(L"zip")},
        {L"GZIPArchiveExt", Text(L"gz")},
        {L"ExtExt",
         Bytes(store::kTypeTextList, {'d', 0, 'o', 0, 'c', 0, 0, 0, 'p', 0, 'd', 0, 'f', 0, 0, 0, 0, 0})},
        {L"LogPath", Text(L"C:\\log")},
        {L"Log filesize", Bytes(store::kTypeNumber, {0xA0, 0x0F, 0, 0})},
    };
    expected[kProgram + L"\\Office"] = {
        {L"ServerTSP", Bytes(store::kTypeTextList, {'0', 0, 0, 0, 'x', 0, 0, 0, 0, 0})},
        {L"ZCSProfile", MultiText({L"Main CSP"})},
        {L"NotUseLDAP", MultiText({L"1", L"-2"})},
        {L"NotCopyToLocal", none},
        {L"AutoUseTSP", none},
        {L"AutoVerifyTSP", none},
        {L"NoTSPisError", none},
        {L"UseAIA", none},
        {L"NotAddCert", none},
        {L"NotLoadCrl", none},
        {L"CrlUpdatePeriod", none},
        {L"Verify File", Number(0)},
        {L"Verify x file", Number(0)},
        {L"Verify det file", Number(0)},
        {L"Verify resign file", Number(0)},
        {L"Handler timeout", Number(15)},
        {L"Rename conf files", Number(0)},
    };
    expected[kProgram + L"\\Office\\rules"];
    expected[kProgram + L"\\Office\\rules\\Rule 0"] = {
        {L"Operation", Text(L"SIGN")}, {L"Path In", Bytes(store::kTypeText, {0, 0})},
        {L"Path Out", Text(L"")},      {L"Path Out 2", Text(L"")},
        {L"Path Error", Text(L"")},    {L"DelExt", Text(L"")},
        {L"AddExt", Text(L"")},        {L"Folders", Text(L"")},
        {L"Copyfolders", Text(L"")},   {L"ArchCount", Number(0)},
        {L"ArchSize", Number(0)},      {L"ArchTimeout", Number(0)},
        {L"ArchName", Text(L"")},      {L"ExecName", Text(L"")},
        {L"ExecTimeout", Number(0)},   {L"Mask num", Number(1)},
        {L"M0", Text(L"*.txt")},       {L"Ext num", Number(1)},
        {L"C0", Text(L"CN=A")},        {L"Is on", Number(0)},
        {L"ZCSProfile", Text(L"")},    {L"ResignProfile", Text(L"")},
        {L"In format det", Number(0)}, {L"Out format det", Number(0)},
        {L"Descryption", Text(L"")},   {L"ZipFile", Number(0)},
    };
    expected[kProgram + L"\\Office\\rules\\Rule 0\\List"] = {{L"Signer Num", Number(1)},
                                                             {L"S0", Text(L"CN=S")}};
    EXPECT_EQ(Differences(expected, root.Snapshot()), "");
    EXPECT_TRUE(ReportTexts().empty());
}

TEST_F(RealConfiguration, IsStoredAsInTheRegistryOfTheOtherTests) {
    state = FullConfiguration();
    root.PutKey(kProgram);
    Save();
    MemoryRegistry memory;
    memory.PutKey(kProgram);
    store::RegistryAccess inMemory(memory, reports.reporter);
    store::ConfigurationState same = FullConfiguration();
    store::SaveConfiguration(same, restored, inMemory, reports.reporter, nullptr);
    EXPECT_EQ(Differences(memory.Snapshot(), root.Snapshot()), "");
}

TEST_F(RealConfiguration, ComesBackAsItWasSavedWithItsRulesInOrder) {
    state = FullConfiguration();
    restored = {.top = -1, .bottom = 2, .left = 3, .right = 0x7FFFFFFF};
    root.PutKey(kProgram);
    root.Put(kCatalogue + L"\\{1}", L"ProfileName", Text(L"Main CSP"));
    Save();
    store::ConfigurationState expected = FullConfiguration();
    expected.settings.window = restored;
    expected.isDirty = false;
    ASSERT_TRUE(Load());
    EXPECT_TRUE(state == expected);
    Save();
    ASSERT_TRUE(Load());
    EXPECT_TRUE(state == expected) << "after a second save";
    EXPECT_TRUE(ReportTexts().empty());
}

TEST_F(RealConfiguration, LosesWhatWasDeletedAndKeepsWhatIsUnknown) {
    state = FullConfiguration();
    root.PutKey(kProgram);
    root.PutKey(kCatalogue);
    root.Put(kProgram, L"LastCrlUpdate", MultiText({L"Main CSP;;1700000000"}));
    Save();
    state.profiles.erase(state.profiles.begin());
    state.profileNames.erase(state.profileNames.begin());
    state.profiles[0].rules.resize(2);
    state.profiles[0].rules[0].signerGroups.clear();
    Save();
    EXPECT_EQ(root.SubkeyNames(kProgram), std::vector<std::wstring>{L"\x041F\x043E\x0447\x0442\x0430"});
    EXPECT_EQ(root.SubkeyNames(kProgram + L"\\\x041F\x043E\x0447\x0442\x0430\\rules"),
              (std::vector<std::wstring>{L"Rule 0", L"Rule 1"}));
    EXPECT_TRUE(root.SubkeyNames(kProgram + L"\\\x041F\x043E\x0447\x0442\x0430\\rules\\Rule 0").empty());
    EXPECT_EQ(root.Find(kProgram, L"LastCrlUpdate"), MultiText({L"Main CSP;;1700000000"}));
    EXPECT_TRUE(ReportTexts().empty());
}

TEST_F(RealConfiguration, LeavesTheProvidersKeyUntouched) {
    root.Put(kCatalogue + L"\\{1}", L"ProfileName", Text(L"Main CSP"));
    root.Put(kCatalogue + L"\\{1}", L"Other", Bytes(store::kTypeBinary, {1, 2, 3}));
    root.PutKey(L"SOFTWARE\\HOLVAN\\tarn\\Other");
    const RegistrySnapshot before = root.Snapshot();
    ASSERT_TRUE(Load());
    state.profiles[0].rules.resize(1);
    state.profiles[0].rules[0].operation = L"MOVE";
    Save();
    RegistrySnapshot after = root.Snapshot();
    std::erase_if(after, [](const auto& key) { return key.first.starts_with(kProgram); });
    EXPECT_EQ(Differences(before, after), "");
}

TEST_F(RealConfiguration, AFirstStartMakesTheProfileDefaultThatLoadsTheNextTime) {
    root.Put(kCatalogue + L"\\{1}", L"ProfileName", Text(L"Main CSP"));
    ASSERT_TRUE(Load());
    const store::ConfigurationState first = state;
    EXPECT_EQ(root.Find(kProgram + L"\\default", L"CrlUpdatePeriod"), Bytes(store::kTypeTextList, {0, 0}));
    EXPECT_EQ(root.Find(kProgram + L"\\default", L"NotUseLDAP"), MultiText({L"1"}));
    EXPECT_EQ(root.Find(kProgram + L"\\default", L"ZCSProfile"), MultiText({L"Main CSP"}));
    EXPECT_EQ(first.profiles.at(0).crlUpdatePeriods, store::NumberList{1});
    ASSERT_TRUE(Load());
    EXPECT_TRUE(state == first);
}

TEST_F(RealConfiguration, TheWorkedExampleComesBackAsItWasAfterASave) {
    root.PutAll(ParseRegFile(ReadWholeFile(CORVANE_WORKED_EXAMPLE)));
    const RegistrySnapshot before = root.Snapshot();
    ASSERT_TRUE(Load());
    const store::ConfigurationState loaded = state;
    EXPECT_EQ(loaded.profiles.size(), 3U);
    restored = loaded.settings.window;
    Save();
    EXPECT_EQ(Differences(before, root.Snapshot()), "");
    ASSERT_TRUE(Load());
    EXPECT_TRUE(state == loaded);
    EXPECT_TRUE(ReportTexts().empty());
}

TEST_F(RealConfiguration, ATextThatIsTooLongToBeReadBackIsStoredWholeAndReportedWhenRead) {
    state = FullConfiguration();
    state.profiles[0].rules[0].description = std::wstring(519, L'x');
    state.profiles[0].rules[1].description = std::wstring(520, L'y');
    root.PutKey(kProgram);
    root.PutKey(kCatalogue);
    Save();
    EXPECT_TRUE(ReportTexts().empty());
    EXPECT_EQ(root.Find(kProgram + L"\\Archive\\rules\\Rule 1", L"Descryption"),
              Text(std::wstring(520, L'y')));
    ASSERT_TRUE(Load());
    EXPECT_EQ(state.profiles[0].rules[0].description, std::wstring(519, L'x'));
    EXPECT_EQ(state.profiles[0].rules[1].description, L"");
    ASSERT_EQ(ReportTexts().size(), 1U);
    EXPECT_TRUE(
        ReportTexts()[0].starts_with(L"Reading string value 'Descryption' from register.\r\nError 0xEA - "));
}

}  // namespace
}  // namespace corvane::test
