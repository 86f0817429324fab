#include <gtest/gtest.h>

#include <array>
#include <cstring>

#include "tests/standin/loaded/loaded_standin.h"

namespace corvane::standin {
namespace {

TEST(ExportedFunctions, EightAreExportedAndNothingElse) {
    const LoadedStandIn library;
    const auto* base = reinterpret_cast<const std::uint8_t*>(library.Module());
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    IMAGE_NT_HEADERS headers = {};
    std::memcpy(&headers, base + dos->e_lfanew, sizeof headers);
    const DWORD place = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress;
    IMAGE_EXPORT_DIRECTORY exports = {};
    std::memcpy(&exports, base + place, sizeof exports);
    EXPECT_EQ(exports.NumberOfNames, 8U);
    EXPECT_EQ(exports.NumberOfFunctions, 8U);
}

TEST(ExportedFunctions, AnUnknownCsProfileIsRefusedWithAText) {
    LoadedStandIn library;
    provider::ProviderContext context = 1;
    const std::uint32_t status = library.Functions().initialize("Nobody", 0x80000040, &context);
    EXPECT_NE(status & 0x20000000U, 0U) << "a code of the provider";
    EXPECT_EQ(context, 0U);
    std::array<char, 1024> text = {};
    EXPECT_NE(library.Functions().getErrorText(status, text.data(), text.size()), 0U);
    EXPECT_STREQ(text.data(), "The CS profile does not exist");
    const std::vector<FoundError> errors = library.PopErrors(0);
    ASSERT_EQ(errors.size(), 2U);
    EXPECT_EQ(errors[0].data, "Nobody");
}

TEST(ExportedFunctions, EveryCsProfileOfTheCatalogueOpens) {
    LoadedStandIn library;
    library.AddCsProfile(L"Profile02", L"Partner exchange");
    library.AddCsProfile(L"Profile03", L"\u0410\u0440\u0445\u0438\u0432");
    for (const std::string& name : {std::string("Clearing"), std::string("Partner exchange"),
                                    ToCodePage(L"\u0410\u0440\u0445\u0438\u0432")}) {
        provider::ProviderContext context = 0;
        EXPECT_EQ(library.Functions().initialize(name.c_str(), 0x80000040, &context), 0U) << name;
        EXPECT_EQ(library.Functions().uninitialize(context), 0U);
    }
}

TEST(ExportedFunctions, WithoutACatalogueNoCsProfileOpens) {
    LoadedStandIn library;
    RegDeleteTreeW(HKEY_CURRENT_USER, L"SOFTWARE\\HOLVAN");
    provider::ProviderContext context = 1;
    EXPECT_NE(library.Functions().initialize("Clearing", 0x80000040, &context), 0U);
    EXPECT_NE(library.Functions().initialize("", 0x80000040, &context), 0U);
}

TEST(ExportedFunctions, ADoubleReleaseIsRefusedInsteadOfCrashing) {
    LoadedStandIn library;
    const provider::ProviderFunctions& provider = library.Functions();
    const provider::ProviderContext context = library.Open();
    provider::CertQuery query;
    query.fieldsWanted = 0x84;
    provider::CertFindResult result;
    ASSERT_EQ(provider.findCert(context, &query, &result), 0U);
    provider::CertFindResult copy = result;
    EXPECT_EQ(provider.freeFindResult(context, &result), 0U);
    EXPECT_NE(provider.freeFindResult(context, &copy), 0U);
    std::array<char, 8> foreign = {};
    EXPECT_NE(provider.freeMem(0, foreign.data()), 0U);
    EXPECT_EQ(provider.uninitialize(context), 0U);
    EXPECT_NE(provider.uninitialize(context), 0U);
}

}  // namespace
}  // namespace corvane::standin
