#include "toolkit/text/format_text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace corvane::test {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

TEST(FormatText, PutsTextsAndNumbersInTheirPlaces) {
    EXPECT_EQ(toolkit::FormatText(L"%s has %d", {L"list", 3}), L"list has 3");
    EXPECT_EQ(toolkit::FormatText(L"%s%s", {std::wstring(L"a"), std::wstring_view(L"b")}), L"ab");
}

TEST(FormatText, WithoutPlacesIsTheFormat) {
    EXPECT_EQ(toolkit::FormatText(L"plain", {}), L"plain");
    EXPECT_EQ(toolkit::FormatText(L"", {}), L"");
}

TEST(FormatText, WritesNumbersWithTheirSign) {
    EXPECT_EQ(toolkit::FormatText(L"%d %d %d", {0, kLowest, kHighest}), L"0 -2147483648 2147483647");
    EXPECT_EQ(toolkit::FormatText(L"%d", {std::uint32_t{4294967295U}}), L"4294967295");
    EXPECT_EQ(toolkit::FormatText(L"%lld", {std::numeric_limits<std::int64_t>::min()}),
              L"-9223372036854775808");
}

TEST(FormatText, WritesHexadecimalInUpperCaseWithoutLeadingZeros) {
    EXPECT_EQ(toolkit::FormatText(L"0x%X", {std::uint32_t{0xE0700046}}), L"0xE0700046");
    EXPECT_EQ(toolkit::FormatText(L"0x%X", {std::uint32_t{0xAB}}), L"0xAB");
    EXPECT_EQ(toolkit::FormatText(L"0x%X", {0}), L"0x0");
    EXPECT_EQ(toolkit::FormatText(L"0x%X", {-1}), L"0xFFFFFFFF");
}

TEST(FormatText, DoublePercentIsAPercentSign) {
    EXPECT_EQ(toolkit::FormatText(L"100%% of %s", {L"x"}), L"100% of x");
    EXPECT_EQ(toolkit::FormatText(L"%%s", {L"x"}), L"%s");
}

TEST(FormatText, APercentSignInAnArgumentStandsForItself) {
    EXPECT_EQ(toolkit::FormatText(L"<%s><%d>", {L"%d%s", 1}), L"<%d%s><1>");
}

TEST(FormatText, APlaceWithoutArgumentStaysAndAnArgumentWithoutPlaceIsIgnored) {
    EXPECT_EQ(toolkit::FormatText(L"%s and %s", {L"a"}), L"a and %s");
    EXPECT_EQ(toolkit::FormatText(L"%s", {L"a", L"b"}), L"a");
}

TEST(FormatText, AConversionThatIsNoneStaysAsItStands) {
    EXPECT_EQ(toolkit::FormatText(L"%q %", {L"a"}), L"%q %");
    EXPECT_EQ(toolkit::FormatText(L"%ld", {1}), L"%ld");
}

TEST(FormatText, AMismatchIsWrittenAsTheArgumentIs) {
    EXPECT_EQ(toolkit::FormatText(L"%s %d", {5, L"five"}), L"5 five");
}

TEST(ParseDecimal, ReadsDigitsAndSigns) {
    EXPECT_EQ(toolkit::ParseDecimal(L"0"), 0);
    EXPECT_EQ(toolkit::ParseDecimal(L"42"), 42);
    EXPECT_EQ(toolkit::ParseDecimal(L"-42"), -42);
    EXPECT_EQ(toolkit::ParseDecimal(L"+42"), 42);
    EXPECT_EQ(toolkit::ParseDecimal(L"007"), 7);
}

TEST(ParseDecimal, SkipsLeadingWhiteSpace) {
    EXPECT_EQ(toolkit::ParseDecimal(L" \t\r\n\v\f42"), 42);
    EXPECT_EQ(toolkit::ParseDecimal(L"  -7"), -7);
}

TEST(ParseDecimal, EndsAtTheFirstCharacterThatIsNoDigit) {
    EXPECT_EQ(toolkit::ParseDecimal(L"12abc"), 12);
    EXPECT_EQ(toolkit::ParseDecimal(L"12 34"), 12);
    EXPECT_EQ(toolkit::ParseDecimal(L"1.9"), 1);
    EXPECT_EQ(toolkit::ParseDecimal(L"0x10"), 0);
    EXPECT_EQ(toolkit::ParseDecimal(std::wstring(L"1\0"
                                                 L"2",
                                                 3)),
              1);
}

TEST(ParseDecimal, WithoutANumberIsZero) {
    for (const wchar_t* const text : {L"", L" ", L"abc", L"-", L"+", L"--1", L"+-1", L"- 1", L"\x0661"}) {
        EXPECT_EQ(toolkit::ParseDecimal(text), 0) << text;
    }
}

TEST(ParseDecimal, WhatDoesNotFitBecomesTheNearestNumber) {
    EXPECT_EQ(toolkit::ParseDecimal(L"2147483647"), kHighest);
    EXPECT_EQ(toolkit::ParseDecimal(L"2147483648"), kHighest);
    EXPECT_EQ(toolkit::ParseDecimal(L"4294967296"), kHighest);
    EXPECT_EQ(toolkit::ParseDecimal(L"-2147483648"), kLowest);
    EXPECT_EQ(toolkit::ParseDecimal(L"-2147483649"), kLowest);
    EXPECT_EQ(toolkit::ParseDecimal(std::wstring(1000, L'9')), kHighest);
    EXPECT_EQ(toolkit::ParseDecimal(L"-" + std::wstring(1000, L'9')), kLowest);
}

TEST(ParseDecimal, ReadsNarrowTextAlike) {
    EXPECT_EQ(toolkit::ParseDecimal(" -42x"), -42);
    EXPECT_EQ(toolkit::ParseDecimal("99999999999"), kHighest);
    EXPECT_EQ(toolkit::ParseDecimal("\xFF"
                                    "1"),
              0);
    EXPECT_EQ(toolkit::ParseDecimal(""), 0);
}

TEST(ParseDecimal, OnRequestKeepsTheLowBitsOfWhatDoesNotFit) {
    const auto lowBits = [](std::wstring_view text) {
        return toolkit::ParseDecimal(text, toolkit::Overflow::kLowBits);
    };
    EXPECT_EQ(lowBits(L"2147483647"), 2147483647);
    EXPECT_EQ(lowBits(L"2147483648"), -2147483647 - 1);
    EXPECT_EQ(lowBits(L"4294967295"), -1);
    EXPECT_EQ(lowBits(L"4294967301"), 5);
    EXPECT_EQ(lowBits(L"-4294967301"), -5);
    EXPECT_EQ(lowBits(L"99999999999999999999999"), -159383553);
    EXPECT_EQ(toolkit::ParseDecimal("-4294967301", toolkit::Overflow::kLowBits), -5);
}

}  // namespace
}  // namespace corvane::test
