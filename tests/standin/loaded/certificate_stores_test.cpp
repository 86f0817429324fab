#include <gmock/gmock.h>
#include <windows.h>
// wincrypt.h needs windows.h before it.
#include <wincrypt.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "tests/standin/loaded/loaded_standin.h"

namespace corvane::standin {
namespace {

using ::testing::Each;
using ::testing::Field;
using ::testing::IsSupersetOf;
using ::testing::Not;
using ::testing::StrEq;
using ::testing::UnorderedElementsAre;
using ::testing::UnorderedElementsAreArray;

constexpr unsigned kEncryptionMask = 0x1C;

std::vector<std::string> OwnersOf(const std::vector<FoundCertificate>& found) {
    std::vector<std::string> owners;
    std::transform(found.begin(), found.end(), std::back_inserter(owners),
                   [](const FoundCertificate& certificate) { return certificate.owner; });
    return owners;
}

std::vector<std::string> LocalOwners() {
    return {"CN=Helen Marsh,OU=Settlement,O=Northgate Clearing,C=GB",
            "CN=Helen Marsh,OU=Settlement,O=Northgate Clearing,C=GB",
            "CN=Oliver Trent,OU=Settlement,O=Northgate Clearing,C=GB",
            "CN=Astrid Lindholm,O=Lindholm Freight,C=SE",
            "CN=Erik Sandberg,O=Lindholm Freight,C=SE",
            ToCodePage(L"CN=\u0418\u0432\u0430\u043D\u043E\u0432\u0430 \u041C\u0430\u0440\u0438\u044F "
                       L"\u041F\u0435\u0442\u0440\u043E\u0432\u043D\u0430,O=\u0422\u043E\u0440\u0433\u043E"
                       L"\u0432\u044B\u0439 \u0434\u043E\u043C \u0421\u043E\u0441\u043D\u043E\u0432\u044B"
                       L"\u0439 \u0431\u043E\u0440,C=RU"),
            ToCodePage(L"CN=\u041A\u0443\u0437\u043D\u0435\u0446\u043E\u0432 \u0410\u043D\u0434\u0440\u0435"
                       L"\u0439,O=\u0422\u043E\u0440\u0433\u043E\u0432\u044B\u0439 \u0434\u043E\u043C "
                       L"\u0421\u043E\u0441\u043D\u043E\u0432\u044B\u0439 \u0431\u043E\u0440,C=RU"),
            "CN=Daniel Okafor,EMAIL=daniel.okafor@ferrow.example,OU=Claims,O=Ferrow Insurance,C=US",
            "CN=Peter Vale,O=Ferrow Insurance,C=US"};
}

std::vector<std::uint8_t> ReadFileBytes(const std::wstring& path) {
    std::ifstream file(ToCodePage(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(LocalStore, AllValidCertificatesOfTheFolderAreFoundTheExpiredOneIsNot) {
    LoadedStandIn library;
    const provider::ProviderContext context = library.Open();
    std::vector<FoundCertificate> found;
    ASSERT_EQ(library.Search(context, 0, nullptr, found), 0U);
    EXPECT_THAT(OwnersOf(found), UnorderedElementsAreArray(LocalOwners()));
    EXPECT_THAT(found, Each(Field(&FoundCertificate::issuer,
                                  StrEq("CN=Exchange Test CA,O=Exchange Test Authority,C=GB"))));
    EXPECT_EQ(library.Functions().uninitialize(context), 0U);
}

TEST(LocalStore, TheUsageByteTellsEncryptionFromSigning) {
    LoadedStandIn library;
    const provider::ProviderContext context = library.Open();
    std::vector<FoundCertificate> found;
    ASSERT_EQ(library.Search(context, 0x100, "CN=Erik Sandberg", found), 0U);
    EXPECT_EQ(found[0].usage & kEncryptionMask, 0U) << "signatures only";
    ASSERT_EQ(library.Search(context, 0, "CN=Astrid Lindholm", found), 0U);
    EXPECT_EQ(found[0].usage & kEncryptionMask, 0x10U) << "key agreement";
    ASSERT_EQ(library.Search(context, 0, "CN=Oliver Trent", found), 0U);
    EXPECT_EQ(found[0].usage, 0x05U) << "digital signature and key encipherment";
    ASSERT_EQ(library.Search(context, 0xE04, "CN=Ruth Vale", found), 0U);
    EXPECT_EQ(found[0].usage, 0xFFU) << "no key usage extension";
}

TEST(LocalStore, TwoCertificatesOfOneOwnerHaveTheirOwnSerials) {
    LoadedStandIn library;
    const provider::ProviderContext context = library.Open();
    std::vector<FoundCertificate> found;
    ASSERT_EQ(library.Search(context, 4, "CN=Helen Marsh,OU=Settlement,O=Northgate Clearing,C=GB", found),
              0U);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_NE(found[0].serial, found[1].serial);
}

TEST(LocalStore, ASerialReadsAsTheCertificateHoldsIt) {
    LoadedStandIn library;
    const provider::ProviderContext context = library.Open();
    std::vector<FoundCertificate> found;
    ASSERT_EQ(library.Search(context, 0, "CN=Oliver Trent", found), 0U);
    std::vector<std::uint8_t> encoded = found[0].serial;
    if (encoded.front() >= 0x80) {
        encoded.insert(encoded.begin(), 0);
    }
    encoded.insert(encoded.begin(), {0x02, static_cast<std::uint8_t>(encoded.size())});
    const std::vector<std::uint8_t> file = ReadFileBytes(library.Certificates() + L"local\\oliver_trent.cer");
    EXPECT_NE(std::search(file.begin(), file.end(), encoded.begin(), encoded.end()), file.end());
}

TEST(LocalStore, FilesThatAreNoCertificatesArePassedOver) {
    LoadedStandIn library;
    std::ofstream(ToCodePage(library.Certificates() + L"local\\broken.cer")) << "no certificate";
    std::ofstream(ToCodePage(library.Certificates() + L"local\\empty.pem")) << "";
    std::ofstream(ToCodePage(library.Certificates() + L"local\\notes.txt")) << "notes";
    const provider::ProviderContext context = library.Open();
    std::vector<FoundCertificate> found;
    ASSERT_EQ(library.Search(context, 0, nullptr, found), 0U);
    EXPECT_EQ(found.size(), LocalOwners().size());
}

TEST(LocalStore, CertificatesOfTheUsersStoresAreFoundAndThoseOfTheFolderNotDoubled) {
    LoadedStandIn library;
    for (const auto& [name, file] : {std::pair(L"MY", L"network\\maja_nyberg.cer"),
                                     std::pair(L"AddressBook", L"local\\erik_sandberg.cer")}) {
        const std::vector<std::uint8_t> encoded = ReadFileBytes(library.Certificates() + file);
        void* store = CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, CERT_SYSTEM_STORE_CURRENT_USER, name);
        ASSERT_NE(store, nullptr) << "error " << GetLastError();
        EXPECT_NE(CertAddEncodedCertificateToStore(store, X509_ASN_ENCODING, encoded.data(),
                                                   static_cast<DWORD>(encoded.size()), CERT_STORE_ADD_ALWAYS,
                                                   nullptr),
                  FALSE);
        CertCloseStore(store, 0);
    }
    const provider::ProviderContext context = library.Open();
    std::vector<FoundCertificate> found;
    ASSERT_EQ(library.Search(context, 0, "O=Lindholm Freight", found), 0U);
    EXPECT_THAT(OwnersOf(found), UnorderedElementsAre("CN=Maja Nyberg,O=Lindholm Freight,C=SE",
                                                      "CN=Erik Sandberg,O=Lindholm Freight,C=SE",
                                                      "CN=Astrid Lindholm,O=Lindholm Freight,C=SE"));
}

TEST(NetworkStore, OnlySearchesWithItsFlagFindItsCertificates) {
    LoadedStandIn library;
    const provider::ProviderContext context = library.Open();
    std::vector<FoundCertificate> found;
    for (const std::uint32_t flags : {0U, 0x100U}) {
        EXPECT_EQ(library.Search(context, flags, "CN=Maja*", found), provider::kStatusNothingFound);
    }
    for (const std::uint32_t flags : {0x4U, 0x104U, 0xE04U, 0xF04U}) {
        EXPECT_EQ(library.Search(context, flags, "CN=Maja*", found), 0U);
        EXPECT_THAT(OwnersOf(found), UnorderedElementsAre("CN=Maja Nyberg,O=Lindholm Freight,C=SE"));
    }
    EXPECT_EQ(library.Search(context, 0xE04, "*=*", found), 0U);
    EXPECT_EQ(found.size(), LocalOwners().size() + 4);
    EXPECT_THAT(OwnersOf(found), IsSupersetOf(LocalOwners()));
}

TEST(NetworkStore, LettersOfEitherCaseMatchCyrillicOnesToo) {
    LoadedStandIn library;
    const provider::ProviderContext context = library.Open();
    std::vector<FoundCertificate> found;
    const std::string sample = ToCodePage(L"cn=\u0441\u043E\u043A\u043E\u043B*");
    EXPECT_EQ(library.Search(context, 0xE04, sample.c_str(), found), 0U);
    const std::size_t cyrillicOwners = 3;
    EXPECT_EQ(found.size(), GetACP() == 1251 ? 1 : cyrillicOwners)
        << "a code page without Cyrillic letters has the same question marks for all of them";
}

TEST(NetworkStore, AMissingFolderIsANetworkStoreThatDoesNotAnswer) {
    LoadedStandIn library;
    const std::wstring folder = library.Certificates() + L"network";
    ASSERT_NE(MoveFileW(folder.c_str(), (folder + L"_away").c_str()), FALSE);
    const provider::ProviderContext context = library.Open();
    std::vector<FoundCertificate> found;
    const std::uint32_t status = library.Search(context, 0xE04, "CN=QQQ,C=RU", found);
    EXPECT_NE(status, 0U);
    EXPECT_NE(status, provider::kStatusNothingFound);
    const std::vector<FoundError> errors = library.PopErrors(context);
    ASSERT_EQ(errors.size(), 2U);
    EXPECT_EQ(errors[1].data, ToCodePage(folder));
    ASSERT_NE(MoveFileW((folder + L"_away").c_str(), folder.c_str()), FALSE);
    EXPECT_EQ(library.Search(context, 0xE04, "CN=QQQ,C=RU", found), provider::kStatusNothingFound);
}

}  // namespace
}  // namespace corvane::standin
