#include "standin/usage_byte.h"

#include <gtest/gtest.h>

namespace corvane::standin {
namespace {

constexpr unsigned kEncryptionMask = 0x1C;

TEST(UsageByte, TheEncryptionMaskSelectsEncipherAndAgreementBitsAndNoOthers) {
    EXPECT_EQ(UsageByte(0x20), 0x04) << "key encipherment";
    EXPECT_EQ(UsageByte(0x10), 0x08) << "data encipherment";
    EXPECT_EQ(UsageByte(0x08), 0x10) << "key agreement";
    EXPECT_EQ(UsageByte(0x38), kEncryptionMask);
    EXPECT_EQ(UsageByte(0xC7) & kEncryptionMask, 0U) << "signatures, certificate and CRL signing";
}

TEST(UsageByte, EveryNamedBitHasItsPlace) {
    EXPECT_EQ(UsageByte(0x80), 0x01) << "digital signature";
    EXPECT_EQ(UsageByte(0x40), 0x02) << "non-repudiation";
    EXPECT_EQ(UsageByte(0x04), 0x20) << "certificate signing";
    EXPECT_EQ(UsageByte(0x02), 0x40) << "CRL signing";
    EXPECT_EQ(UsageByte(0x01), 0x80) << "encipher only";
}

TEST(UsageByte, ACertificateWithoutTheExtensionServesEveryUse) {
    EXPECT_EQ(UsageByte(std::nullopt), 0xFF);
}

TEST(UsageByte, AnEmptyExtensionAllowsNothing) {
    EXPECT_EQ(UsageByte(0x00), 0x00);
}

}  // namespace
}  // namespace corvane::standin
