#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <string>

#include "tests/standin/loaded/loaded_standin.h"

namespace corvane::standin {
namespace {

struct Loading {
    std::uint32_t status = 0;
    std::string text;
};

Loading LoadLists(const LoadedStandIn& library, provider::ProviderContext context) {
    std::array<char, 1024> text = {};
    provider::XsigBlob buffer = {text.size(), text.data()};
    const std::uint32_t status = library.Functions().control(context, 4, &buffer);
    return {status, text.data()};
}

TEST(RevocationLists, TheRevokedCertificateIsNotFoundAfterwards) {
    LoadedStandIn library;
    provider::ProviderContext context = library.Open();
    std::vector<FoundCertificate> found;
    EXPECT_EQ(library.Search(context, 0, "CN=Peter Vale", found), 0U);
    const Loading loading = LoadLists(library, context);
    EXPECT_EQ(loading.status, 0U);
    EXPECT_EQ(loading.text, "authority.crl: loaded, 1 revoked\r\n");
    EXPECT_EQ(library.Search(context, 0, "CN=Peter Vale", found), provider::kStatusNothingFound);
    EXPECT_EQ(library.Search(context, 0, "CN=Daniel Okafor", found), 0U);
    ASSERT_EQ(library.Functions().uninitialize(context), 0U);
    context = library.Open();
    EXPECT_EQ(library.Search(context, 0, "CN=Peter Vale", found), provider::kStatusNothingFound);
}

TEST(RevocationLists, AFileThatIsNoListFailsTheLoadingAndIsNamed) {
    LoadedStandIn library;
    std::ofstream(ToCodePage(library.Certificates() + L"crl\\broken.crl")) << "no list";
    const provider::ProviderContext context = library.Open();
    const Loading loading = LoadLists(library, context);
    EXPECT_NE(loading.status & 0x20000000U, 0U);
    EXPECT_EQ(loading.text,
              "broken.crl: not a certificate revocation list\r\nauthority.crl: loaded, 1 revoked\r\n");
    const std::vector<FoundError> errors = library.PopErrors(context);
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(errors[0].data, "broken.crl");
}

TEST(RevocationLists, AListWhoseIssuerIsNotKnownIsRefused) {
    LoadedStandIn library;
    ASSERT_NE(DeleteFileW((library.Certificates() + L"crl\\authority.crt").c_str()), FALSE);
    const provider::ProviderContext context = library.Open();
    const Loading loading = LoadLists(library, context);
    EXPECT_NE(loading.status, 0U);
    EXPECT_EQ(loading.text, "authority.crl: no issuer certificate beside it verifies its signature\r\n");
}

TEST(RevocationLists, AListThatWasChangedIsRefused) {
    LoadedStandIn library;
    std::fstream file(ToCodePage(library.Certificates() + L"crl\\authority.crl"),
                      std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(-1, std::ios::end);
    const int last = file.peek();
    file.seekp(-1, std::ios::end);
    file.put(static_cast<char>(last ^ 1));
    file.close();
    const provider::ProviderContext context = library.Open();
    EXPECT_EQ(LoadLists(library, context).text,
              "authority.crl: no issuer certificate beside it verifies its signature\r\n");
    std::vector<FoundCertificate> found;
    EXPECT_EQ(library.Search(context, 0, "CN=Peter Vale", found), 0U);
}

TEST(RevocationLists, WithoutAnyTheDistributionPointDoesNotAnswer) {
    LoadedStandIn library;
    ASSERT_NE(DeleteFileW((library.Certificates() + L"crl\\authority.crl").c_str()), FALSE);
    const provider::ProviderContext context = library.Open();
    const Loading loading = LoadLists(library, context);
    EXPECT_NE(loading.status, 0U);
    EXPECT_EQ(loading.text.find("No certificate revocation list in "), 0U) << loading.text;
}

}  // namespace
}  // namespace corvane::standin
