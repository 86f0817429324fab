#include "config/registry_layout.h"

#include <gtest/gtest.h>

#include <set>
#include <variant>
#include <vector>

namespace corvane {
namespace {

template <typename Record>
std::vector<std::wstring> Names(std::span<const StoredValue<Record>> layout) {
    std::vector<std::wstring> names;
    for (const StoredValue<Record>& row : layout) {
        names.emplace_back(row.name);
    }
    return names;
}

template <typename Record>
std::vector<std::uint32_t> LoadFlags(std::span<const StoredValue<Record>> layout) {
    std::vector<std::uint32_t> flags;
    for (const StoredValue<Record>& row : layout) {
        flags.push_back(row.loadFlags);
    }
    return flags;
}

template <typename Record>
std::vector<std::uint32_t> SaveFlags(std::span<const StoredValue<Record>> layout) {
    std::vector<std::uint32_t> flags;
    for (const StoredValue<Record>& row : layout) {
        flags.push_back(row.saveFlags);
    }
    return flags;
}

template <typename Record>
void ExpectEachValueToBeNamedOnce(std::span<const StoredValue<Record>> layout) {
    const std::vector<std::wstring> names = Names(layout);
    EXPECT_EQ(std::set<std::wstring>(names.begin(), names.end()).size(), names.size());
}

TEST(RegistryLayout, NamesEachValueOnce) {
    ExpectEachValueToBeNamedOnce(ProviderProfileLayout());
    ExpectEachValueToBeNamedOnce(WindowLayout());
    ExpectEachValueToBeNamedOnce(SettingsLayout());
    ExpectEachValueToBeNamedOnce(ProfileLayout());
    ExpectEachValueToBeNamedOnce(RuleLayout());
    ExpectEachValueToBeNamedOnce(SignerGroupLayout());
}

TEST(RegistryLayout, NamesTheValuesOfTheProgramKeyInTheirOrder) {
    EXPECT_EQ(Names(WindowLayout()),
              (std::vector<std::wstring>{L"Window_top", L"Window_bottom", L"Window_left", L"Window_right"}));
    EXPECT_EQ(Names(SettingsLayout()),
              (std::vector<std::wstring>{L"SigExt", L"DsigExt", L"EncExt", L"B64Ext", L"HashExt",
                                         L"VerifyFileExt", L"ZIPArchiveExt", L"GZIPArchiveExt", L"ExtExt",
                                         L"LogPath", L"Log filesize"}));
    EXPECT_EQ(LoadFlags(WindowLayout()), (std::vector<std::uint32_t>{1, 1, 1, 1}));
    EXPECT_EQ(SaveFlags(WindowLayout()), (std::vector<std::uint32_t>{1, 1, 1, 1}));
    EXPECT_EQ(LoadFlags(SettingsLayout()), (std::vector<std::uint32_t>{1, 1, 1, 1, 1, 1, 1, 1, 0, 3, 1}));
    EXPECT_EQ(SaveFlags(SettingsLayout()), (std::vector<std::uint32_t>{1, 1, 1, 1, 1, 1, 1, 1, 0, 1, 1}));
}

TEST(RegistryLayout, NamesTheValuesOfAProfileKeyInTheirOrder) {
    EXPECT_EQ(Names(ProfileLayout()),
              (std::vector<std::wstring>{L"ServerTSP", L"ZCSProfile", L"NotUseLDAP", L"NotCopyToLocal",
                                         L"AutoUseTSP", L"AutoVerifyTSP", L"NoTSPisError", L"UseAIA",
                                         L"NotAddCert", L"NotLoadCrl", L"CrlUpdatePeriod", L"Verify File",
                                         L"Verify x file", L"Verify det file", L"Verify resign file",
                                         L"Handler timeout", L"Rename conf files"}));
    EXPECT_EQ(LoadFlags(ProfileLayout()),
              (std::vector<std::uint32_t>{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 3, 3, 3, 1, 1}));
    EXPECT_EQ(SaveFlags(ProfileLayout()),
              (std::vector<std::uint32_t>{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 3, 3, 3, 3, 3}));
}

TEST(RegistryLayout, NamesTheValuesOfARuleKeyInTheirOrder) {
    EXPECT_EQ(Names(RuleLayout()), (std::vector<std::wstring>{L"Operation",
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
                                                              L"M",
                                                              L"Mask",
                                                              L"Ext num",
                                                              L"Is on",
                                                              L"ZCSProfile",
                                                              L"ResignProfile",
                                                              L"In format det",
                                                              L"Out format det",
                                                              L"Descryption",
                                                              L"ZipFile",
                                                              L"C"}));
    for (const std::uint32_t flags : LoadFlags(RuleLayout())) {
        EXPECT_EQ(flags, 3U);
    }
    for (const StoredValue<Rule>& row : RuleLayout()) {
        if (std::holds_alternative<StoredElements<Rule>>(row.kind)) {
            EXPECT_EQ(row.saveFlags, 1U);
        } else if (!std::holds_alternative<StoredOldElement<Rule>>(row.kind)) {
            EXPECT_EQ(row.saveFlags, 3U);
        }
    }
}

TEST(RegistryLayout, NamesTheValuesOfASignerListKey) {
    EXPECT_EQ(Names(SignerGroupLayout()), (std::vector<std::wstring>{L"Signer Num", L"S"}));
    EXPECT_EQ(LoadFlags(SignerGroupLayout()), (std::vector<std::uint32_t>{3, 3}));
    EXPECT_EQ(SaveFlags(SignerGroupLayout()), (std::vector<std::uint32_t>{1, 1}));
}

TEST(RegistryLayout, ReadsTheProvidersNamesAndNothingElseOfIts) {
    EXPECT_EQ(Names(ProviderProfileLayout()), std::vector<std::wstring>{L"ProfileName"});
    EXPECT_EQ(LoadFlags(ProviderProfileLayout()), std::vector<std::uint32_t>{1});
}

TEST(RegistryLayout, StoresTheFirstProfileInItsOwnOrder) {
    EXPECT_EQ(Names(FirstSettingsLayout()), (std::vector<std::wstring>{L"LogPath", L"Log filesize"}));
    EXPECT_EQ(SaveFlags(FirstSettingsLayout()), (std::vector<std::uint32_t>{3, 3}));
    EXPECT_EQ(Names(FirstProfileLayout()),
              (std::vector<std::wstring>{L"AutoUseTSP", L"AutoVerifyTSP", L"NotAddCert", L"NotCopyToLocal",
                                         L"NotLoadCrl", L"CrlUpdatePeriod", L"NoTSPisError", L"NotUseLDAP",
                                         L"ServerTSP", L"UseAIA", L"Verify File", L"Verify x file",
                                         L"Verify det file", L"Verify resign file", L"Handler timeout",
                                         L"Rename conf files", L"ZCSProfile"}));
}

TEST(RegistryLayout, BuildsTheKeyPaths) {
    EXPECT_EQ(std::wstring(kProviderProfilesKey), L"SOFTWARE\\HOLVAN\\tarn\\Profiles");
    EXPECT_EQ(std::wstring(kProgramKey), L"SOFTWARE\\HOLVAN\\tarntray");
    EXPECT_EQ(ProfileKey(L"Out"), L"SOFTWARE\\HOLVAN\\tarntray\\Out");
    EXPECT_EQ(RulesKey(L"Out"), L"SOFTWARE\\HOLVAN\\tarntray\\Out\\rules");
    EXPECT_EQ(KeyPath(RulesKey(L"Out"), RuleKeyName(12)), L"SOFTWARE\\HOLVAN\\tarntray\\Out\\rules\\Rule 12");
    EXPECT_EQ(ElementName(L"M", 0), L"M0");
    EXPECT_EQ(ElementName(L"S", 4711), L"S4711");
}

}  // namespace
}  // namespace corvane
