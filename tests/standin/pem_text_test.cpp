#include "standin/pem_text.h"

#include <gtest/gtest.h>

namespace corvane::standin {
namespace {

constexpr std::string_view kLabel = "CERTIFICATE";

TEST(ObjectsOfFile, AFileWithoutBlocksIsOneObject) {
    EXPECT_EQ(ObjectsOfFile(std::string_view("\x30\x00\xFF", 3), kLabel),
              (std::vector<Bytes>{{0x30, 0x00, 0xFF}}));
}

TEST(ObjectsOfFile, AnEmptyFileHoldsNothing) {
    EXPECT_TRUE(ObjectsOfFile("", kLabel).empty());
}

TEST(ObjectsOfFile, EveryBlockIsAnObject) {
    EXPECT_EQ(ObjectsOfFile("Subject: somebody\n"
                            "-----BEGIN CERTIFICATE-----\nAQID\nBA==\n-----END CERTIFICATE-----\n"
                            "-----BEGIN CERTIFICATE-----\r\n/+8=\r\n-----END CERTIFICATE-----\r\n",
                            kLabel),
              (std::vector<Bytes>{{1, 2, 3, 4}, {0xFF, 0xEF}}));
}

TEST(ObjectsOfFile, ABlockThatIsNotClosedIsLeftOut) {
    EXPECT_TRUE(ObjectsOfFile("-----BEGIN CERTIFICATE-----\nAQID\n", kLabel).empty());
}

TEST(ObjectsOfFile, ABlockThatIsNotBase64IsLeftOutAndTheNextIsRead) {
    EXPECT_EQ(ObjectsOfFile("-----BEGIN CERTIFICATE-----\nA!\n-----END CERTIFICATE-----\n"
                            "-----BEGIN CERTIFICATE-----\n\n-----END CERTIFICATE-----\n"
                            "-----BEGIN CERTIFICATE-----\nAQ==\n-----END CERTIFICATE-----\n",
                            kLabel),
              (std::vector<Bytes>{{1}}));
}

TEST(ObjectsOfFile, ABlockWithAnotherLabelIsNotTaken) {
    const std::string_view list = "-----BEGIN X509 CRL-----\nAQID\n-----END X509 CRL-----\n";
    EXPECT_EQ(ObjectsOfFile(list, "X509 CRL"), (std::vector<Bytes>{{1, 2, 3}}));
    EXPECT_EQ(ObjectsOfFile(list, kLabel), (std::vector<Bytes>{Bytes(list.begin(), list.end())}));
}

}  // namespace
}  // namespace corvane::standin
