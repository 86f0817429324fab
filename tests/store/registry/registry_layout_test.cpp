#include "store/registry/registry_layout.h"

#include <gtest/gtest.h>

#include <set>
#include <variant>
#include <vector>

namespace corvane::test {
namespace {

template <typename Record>
std::vector<std::wstring> Names(std::span<const store::StoredValue<Record>> layout) {
    std::vector<std::wstring> names;
    for (const store::StoredValue<Record>& row : layout) {
        names.emplace_back(row.name);
    }
    return names;
}

template <typename Record>
std::vector<std::uint32_t> LoadFlags(std::span<const store::StoredValue<Record>> layout) {
    std::vector<std::uint32_t> flags;
    for (const store::StoredValue<Record>& row : layout) {
        flags.push_back(row.loadFlags);
    }
    return flags;
}

template <typename Record>
std::vector<std::uint32_t> SaveFlags(std::span<const store::StoredValue<Record>> layout) {
    std::vector<std::uint32_t> flags;
    for (const store::StoredValue<Record>& row : layout) {
        flags.push_back(row.saveFlags);
    }
    return flags;
}

template <typename Record>
void ExpectEachValueToBeNamedOnce(std::span<const store::StoredValue<Record>> layout) {
    const std::vector<std::wstring> names = Names(layout);
    EXPECT_EQ(std::set<std::wstring>(names.begin(), names.end()).size(), names.size());
}

TEST(RegistryLayout, NamesEachValueOnce) {
    ExpectEachValueToBeNamedOnce(store::ProviderProfileLayout());
    ExpectEachValueToBeNamedOnce(store::WindowLayout());
    ExpectEachValueToBeNamedOnce(store::SettingsLayout());
    ExpectEachValueToBeNamedOnce(store::ProfileLayout());
    ExpectEachValueToBeNamedOnce(store::RuleLayout());
    ExpectEachValueToBeNamedOnce(store::SignerGroupLayout());
}

TEST(RegistryLayout, NamesTheValuesOfTheProgramKeyInTheirOrder) {
    EXPECT_EQ(Names(store::WindowLayout()),
              (std::vector<std::wstring>{L"Window_top", L"Window_bottom", L"Window_left", L"Window_right"}));
    EXPECT_EQ(Names(store::SettingsLayout()),
              (std::vector<std::wstring>{L"SigExt", L"DsigExt", L"EncExt", L"B64Ext", L"HashExt",
                                         L"VerifyFileExt", L"ZIPArchiveExt", L"GZIPArchiveExt", L"ExtExt",
                                         L"LogPath", L"Log filesize"}));
    EXPECT_EQ(LoadFlags(store::WindowLayout()), (std::vector<std::uint32_t>{1, 1, 1, 1}));
    EXPECT_EQ(SaveFlags(store::WindowLayout()), (std::vector<std::uint32_t>{1, 1, 1, 1}));
    EXPECT_EQ(LoadFlags(store::SettingsLayout()),
              (std::vector<std::uint32_t>{1, 1, 1, 1, 1, 1, 1, 1, 0, 3, 1}));
    EXPECT_EQ(SaveFlags(store::SettingsLayout()),
              (std::vector<std::uint32_t>{1, 1, 1, 1, 1, 1, 1, 1, 0, 1, 1}));
}

TEST(RegistryLayout, NamesTheValuesOfAProfileKeyInTheirOrder) {
    EXPECT_EQ(Names(store::ProfileLayout()),
              (std::vector<std::wstring>{L"ServerTSP", L"ZCSProfile", L"NotUseLDAP", L"NotCopyToLocal",
                                         L"AutoUseTSP", L"AutoVerifyTSP", L"NoTSPisError", L"UseAIA",
                                         L"NotAddCert", L"NotLoadCrl", L"CrlUpdatePeriod", L"Verify File",
                                         L"Verify x file", L"Verify det file", L"Verify resign file",
                                         L"Handler timeout", L"Rename conf files"}));
    EXPECT_EQ(LoadFlags(store::ProfileLayout()),
              (std::vector<std::uint32_t>{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 3, 3, 3, 1, 1}));
    EXPECT_EQ(SaveFlags(store::ProfileLayout()),
              (std::vector<std::uint32_t>{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 3, 3, 3, 3, 3}));
}

TEST(RegistryLayout, NamesTheValuesOfARuleKeyInTheirOrder) {
    EXPECT_EQ(Names(store::RuleLayout()), (std::vector<std::wstring>{L"Operation",
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
    for (const std::uint32_t flags : LoadFlags(store::RuleLayout())) {
        EXPECT_EQ(flags, 3U);
    }
    for (const store::StoredValue<store::Rule>& row : store::RuleLayout()) {
        if (std::holds_alternative<store::StoredElements<store::Rule>>(row.kind)) {
            EXPECT_EQ(row.saveFlags, 1U);
        } else if (!std::holds_alternative<store::StoredOldElement<store::Rule>>(row.kind)) {
            EXPECT_EQ(row.saveFlags, 3U);
        }
    }
}

TEST(RegistryLayout, NamesTheValuesOfASignerListKey) {
    EXPECT_EQ(Names(store::SignerGroupLayout()), (std::vector<std::wstring>{L"Signer Num", L"S"}));
    EXPECT_EQ(LoadFlags(store::SignerGroupLayout()), (std::vector<std::uint32_t>{3, 3}));
    EXPECT_EQ(SaveFlags(store::SignerGroupLayout()), (std::vector<std::uint32_t>{1, 1}));
}

TEST(RegistryLayout, ReadsTheProvidersNamesAndNothingElseOfIts) {
    EXPECT_EQ(Names(store::ProviderProfileLayout()), std::vector<std::wstring>{L"ProfileName"});
    EXPECT_EQ(LoadFlags(store::ProviderProfileLayout()), std::vector<std::uint32_t>{1});
}

TEST(RegistryLayout, StoresTheFirstProfileInItsOwnOrder) {
    EXPECT_EQ(Names(store::FirstSettingsLayout()), (std::vector<std::wstring>{L"LogPath", L"Log filesize"}));
    EXPECT_EQ(SaveFlags(store::FirstSettingsLayout()), (std::vector<std::uint32_t>{3, 3}));
    EXPECT_EQ(Names(store::FirstProfileLayout()),
              (std::vector<std::wstring>{L"AutoUseTSP", L"AutoVerifyTSP", L"NotAddCert", L"NotCopyToLocal",
                                         L"NotLoadCrl", L"CrlUpdatePeriod", L"NoTSPisError", L"NotUseLDAP",
                                         L"ServerTSP", L"UseAIA", L"Verify File", L"Verify x file",
                                         L"Verify det file", L"Verify resign file", L"Handler timeout",
                                         L"Rename conf files", L"ZCSProfile"}));
}

TEST(RegistryLayout, BuildsTheKeyPaths) {
    EXPECT_EQ(std::wstring(store::kProviderProfilesKey), L"SOFTWARE\\HOLVAN\\tarn\\Profiles");
    EXPECT_EQ(std::wstring(store::kProgramKey), L"SOFTWARE\\HOLVAN\\tarntray");
    EXPECT_EQ(store::ProfileKey(L"Out"), L"SOFTWARE\\HOLVAN\\tarntray\\Out");
    EXPECT_EQ(store::RulesKey(L"Out"), L"SOFTWARE\\HOLVAN\\tarntray\\Out\\rules");
    EXPECT_EQ(store::KeyPath(store::RulesKey(L"Out"), store::RuleKeyName(12)),
              L"SOFTWARE\\HOLVAN\\tarntray\\Out\\rules\\Rule 12");
    EXPECT_EQ(store::ElementName(L"M", 0), L"M0");
    EXPECT_EQ(store::ElementName(L"S", 4711), L"S4711");
}

}  // namespace
}  // namespace corvane::test
