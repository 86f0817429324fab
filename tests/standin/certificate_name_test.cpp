#include "standin/certificate_name.h"

#include <gtest/gtest.h>

#include "standin/served_certificate.h"
#include "tests/standin/fake_system.h"

namespace corvane::standin {
namespace {

std::string OwnerText(std::vector<NameAttribute> subject) {
    DecodedCertificate certificate;
    certificate.subject = std::move(subject);
    return PrepareCertificate(certificate, FakeSystem()).owner;
}

TEST(CertificateName, ANameEncodedFromTheCountryDownReadsFromTheCommonName) {
    EXPECT_EQ(OwnerText({{"2.5.4.6", L"GB"}, {"2.5.4.10", L"Northgate"}, {"2.5.4.3", L"Helen Marsh"}}),
              "CN=Helen Marsh,O=Northgate,C=GB");
}

TEST(CertificateName, ANameEncodedWithItsCommonNameFirstKeepsItsOrder) {
    EXPECT_EQ(OwnerText({{"2.5.4.3", L"Helen Marsh"}, {"2.5.4.10", L"Northgate"}, {"2.5.4.6", L"GB"}}),
              "CN=Helen Marsh,O=Northgate,C=GB");
}

TEST(CertificateName, TheCommonNameComesBeforeAnAddressThatIsMoreSpecific) {
    EXPECT_EQ(
        OwnerText({{"2.5.4.6", L"US"}, {"2.5.4.3", L"Daniel"}, {"1.2.840.113549.1.9.1", L"d@f.example"}}),
        "CN=Daniel,EMAIL=d@f.example,C=US");
}

TEST(CertificateName, EveryFieldThatCanBeSearchedHasItsKey) {
    EXPECT_EQ(AttributeKey("2.5.4.3"), "CN");
    EXPECT_EQ(AttributeKey("2.5.4.6"), "C");
    EXPECT_EQ(AttributeKey("2.5.4.8"), "ST");
    EXPECT_EQ(AttributeKey("2.5.4.7"), "L");
    EXPECT_EQ(AttributeKey("2.5.4.9"), "STREET");
    EXPECT_EQ(AttributeKey("2.5.4.10"), "O");
    EXPECT_EQ(AttributeKey("2.5.4.11"), "OU");
    EXPECT_EQ(AttributeKey("0.9.2342.19200300.100.1.25"), "DC");
    EXPECT_EQ(AttributeKey("1.2.840.113549.1.9.1"), "EMAIL");
    EXPECT_EQ(AttributeKey("1.2.840.113549.1.9.2"), "UNSTRUCTUREDNAME");
    EXPECT_EQ(AttributeKey("1.2.840.113549.1.9.8"), "UNSTRUCTUREDADDRESS");
}

TEST(CertificateName, AnAttributeWithoutAUsualKeyKeepsItsObjectId) {
    EXPECT_EQ(OwnerText({{"1.2.3.4", L"value"}}), "1.2.3.4=value");
}

TEST(CertificateName, AnEmptyNameIsAnEmptyText) {
    EXPECT_EQ(OwnerText({}), "");
}

TEST(CertificateName, ControlCharactersBecomeBlanksAndCommasStay) {
    EXPECT_EQ(OwnerText({{"2.5.4.10", std::wstring(L"Vale,\0Son\r\n\x7F"
                                                   L"and",
                                                   15)}}),
              "O=Vale, Son   and");
}

TEST(SerialInReadingOrder, TheHighestByteComesFirst) {
    EXPECT_EQ(SerialInReadingOrder({0xFF, 0x1B, 0x0A}), (Bytes{0x0A, 0x1B, 0xFF}));
}

TEST(SerialInReadingOrder, TheZeroByteThatKeepsTheNumberPositiveIsLeftOut) {
    EXPECT_EQ(SerialInReadingOrder({0x01, 0x80, 0x00}), (Bytes{0x80, 0x01}));
}

TEST(SerialInReadingOrder, ASerialOfZeroIsOneByte) {
    EXPECT_EQ(SerialInReadingOrder({0x00}), (Bytes{0x00}));
    EXPECT_EQ(SerialInReadingOrder({}), Bytes());
}

}  // namespace
}  // namespace corvane::standin
