#include <gtest/gtest.h>
#include <windows.h>

#include <optional>
#include <string>

#include "toolkit/text/system_text.h"

namespace corvane::test {
namespace {

// A text and its bytes in the code page that the tests run with.
struct Sample {
    std::wstring wide;
    std::string narrow;
};

std::optional<Sample> SampleOfThisSystem() {
    switch (GetACP()) {
        case 932:
            return Sample{L"表a", "\x95\x5C\x61"};
        case 1251:
            return Sample{L"Жук №5", "\xC6\xF3\xEA \xB9\x35"};
        case 1252:
            return Sample{L"Grüße €", "Gr\xFC\xDF\x65 \x80"};
        case 65001:
            return Sample{L"Жук €", "\xD0\x96\xD1\x83\xD0\xBA \xE2\x82\xAC"};
        default:
            return std::nullopt;
    }
}

TEST(WindowsSystemText, NarrowsToTheSystemsCodePage) {
    const std::optional<Sample> sample = SampleOfThisSystem();
    ASSERT_TRUE(sample.has_value()) << "No sample for code page " << GetACP();
    EXPECT_EQ(toolkit::WindowsSystemText().Narrow(sample->wide), sample->narrow);
}

TEST(WindowsSystemText, WidensFromTheSystemsCodePage) {
    const std::optional<Sample> sample = SampleOfThisSystem();
    ASSERT_TRUE(sample.has_value()) << "No sample for code page " << GetACP();
    EXPECT_EQ(toolkit::WindowsSystemText().Widen(sample->narrow), sample->wide);
}

TEST(WindowsSystemText, ALongTextLosesNothing) {
    const std::optional<Sample> sample = SampleOfThisSystem();
    ASSERT_TRUE(sample.has_value()) << "No sample for code page " << GetACP();
    std::wstring wide;
    std::string narrow;
    for (int i = 0; i < 20000; ++i) {
        wide += sample->wide;
        narrow += sample->narrow;
    }
    EXPECT_EQ(toolkit::WindowsSystemText().Narrow(wide), narrow);
    EXPECT_EQ(toolkit::WindowsSystemText().Widen(narrow), wide);
}

TEST(WindowsSystemText, NulsAndEmptyTextsAreOrdinary) {
    const toolkit::WindowsSystemText text;
    EXPECT_EQ(text.Narrow(L""), "");
    EXPECT_EQ(text.Widen(""), L"");
    EXPECT_EQ(text.UpperCase(L""), L"");
    EXPECT_EQ(text.Narrow(std::wstring(L"a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(text.Widen(std::string("a\0b", 3)), std::wstring(L"a\0b", 3));
}

TEST(WindowsSystemText, WhatTheCodePageLacksBecomesTheSystemsReplacement) {
    if (GetACP() == 65001) {
        EXPECT_EQ(toolkit::WindowsSystemText().Narrow(L"\x0E01"), "\xE0\xB8\x81");
    } else {
        EXPECT_EQ(toolkit::WindowsSystemText().Narrow(L"a\x0E01z"), "a?z");
    }
}

TEST(WindowsSystemText, UpperCaseIsThatOfAllOfUnicodeWhateverTheCodePage) {
    EXPECT_EQ(toolkit::WindowsSystemText().UpperCase(L"abc жук ёÿ ß ω 5 表"), L"ABC ЖУК ЁŸ ß Ω 5 表");
}

TEST(WindowsSystemText, LowerCaseIsThatOfAllOfUnicodeWhateverTheCodePage) {
    EXPECT_EQ(toolkit::WindowsSystemText().LowerCase(L"ABC ЖУК ЁŸ ß Ω 5 表"), L"abc жук ёÿ ß ω 5 表");
}

}  // namespace
}  // namespace corvane::test
