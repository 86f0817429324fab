#include <gtest/gtest.h>

#include "reporting/error_reporter.h"

namespace corvane::test {
namespace {

TEST(FormatStatus, ACodeWithTheCustomerBitIsTheProvidersOwn) {
    EXPECT_EQ(reporting::FormatStatus(0xE0000005), L"XSIG error 0xE0000005");
    EXPECT_EQ(reporting::FormatStatus(0x20000000), L"XSIG error 0x20000000");
}

TEST(FormatStatus, ACodeWithoutTheCustomerBitIsTheSystems) {
    EXPECT_EQ(reporting::FormatStatus(0x80070005), L"Error 0x80070005");
}

TEST(FormatStatus, AllBitsSetIsNotTheProvidersAlthoughItHasTheCustomerBit) {
    EXPECT_EQ(reporting::FormatStatus(0xFFFFFFFF), L"Error 0xFFFFFFFF");
}

TEST(FormatStatus, TheOtherParameterErrorsKeepTheProvidersPrefix) {
    EXPECT_EQ(reporting::FormatStatus(0xFFFFFFFE), L"XSIG error 0xFFFFFFFE");
    EXPECT_EQ(reporting::FormatStatus(0xFFFFFFF7), L"XSIG error 0xFFFFFFF7");
}

TEST(FormatStatus, DigitsAreUpperCaseWithoutLeadingZeros) {
    EXPECT_EQ(reporting::FormatStatus(0xAB), L"Error 0xAB");
    EXPECT_EQ(reporting::FormatStatus(0), L"Error 0x0");
}

}  // namespace
}  // namespace corvane::test
