#include <gtest/gtest.h>

#include "tests/kit/fakes/test_system_text.h"

namespace corvane::test {
namespace {

// The native half and the one that calls Windows must agree, or a test would mean two things.

TEST(TestSystemText, CyrillicGoesOutAndInUnder1251) {
    const TestSystemText text(CodePage::kCyrillic);
    EXPECT_EQ(text.Narrow(L"Жук №5"), "\xC6\xF3\xEA \xB9\x35");
    EXPECT_EQ(text.Widen("\xC6\xF3\xEA \xB9\x35"), L"Жук №5");
}

TEST(TestSystemText, WesternGoesOutAndInUnder1252) {
    const TestSystemText text(CodePage::kLatin);
    EXPECT_EQ(text.Narrow(L"Grüße €"), "Gr\xFC\xDF\x65 \x80");
    EXPECT_EQ(text.Widen("Gr\xFC\xDF\x65 \x80"), L"Grüße €");
}

TEST(TestSystemText, OneCharacterTakesTwoBytesUnder932) {
    const TestSystemText text(CodePage::kShiftJis);
    EXPECT_EQ(text.Narrow(L"表a"), "\x95\x5C\x61");
    EXPECT_EQ(text.Widen("\x95\x5C\x61"), L"表a");
}

TEST(TestSystemText, Utf8TakesUpToFourBytes) {
    const TestSystemText text(CodePage::kUtf8);
    const std::wstring face =
        L"\xD83D"
        L"\xDE00";
    EXPECT_EQ(text.Narrow(L"Ж" + face), "\xD0\x96\xF0\x9F\x98\x80");
    EXPECT_EQ(text.Widen("\xD0\x96\xF0\x9F\x98\x80"), L"Ж" + face);
}

TEST(TestSystemText, WhatTheCodePageLacksBecomesQuestionMarks) {
    const TestSystemText text(CodePage::kCyrillic);
    EXPECT_EQ(text.Narrow(L"ü表"), "??");
    EXPECT_EQ(text.Narrow(L"\xD83D"
                          L"\xDE00"),
              "??");
    EXPECT_EQ(TestSystemText(CodePage::kLatin).Narrow(L"ĀЖ"), "??");
}

TEST(TestSystemText, ALoneSurrogateBecomesTheReplacementCharacterInUtf8) {
    const TestSystemText text(CodePage::kUtf8);
    EXPECT_EQ(text.Narrow(std::wstring(1, static_cast<wchar_t>(0xD83D)) + L"a"), "\xEF\xBF\xBD\x61");
}

TEST(TestSystemText, AByteWithoutAMeaningBecomesTheControlCharacterOfItsNumber) {
    EXPECT_EQ(TestSystemText(CodePage::kCyrillic).Widen("\x98"), L"\x0098");
    EXPECT_EQ(TestSystemText(CodePage::kLatin).Widen("\x81"), L"\x0081");
}

TEST(TestSystemText, EveryByteOfASingleByteCodePageComesBack) {
    for (const CodePage codePage : {CodePage::kCyrillic, CodePage::kLatin}) {
        const TestSystemText text(codePage);
        for (int byte = 0; byte < 256; ++byte) {
            const std::string one(1, static_cast<char>(byte));
            const std::wstring wide = text.Widen(one);
            ASSERT_EQ(wide.size(), 1U) << byte;
            if (wide[0] < 0x80 || wide[0] > 0x9F) {
                EXPECT_EQ(text.Narrow(wide), one) << byte;
            }
        }
    }
}

TEST(TestSystemText, NulsAndEmptyTextsAreOrdinary) {
    const TestSystemText text(CodePage::kCyrillic);
    EXPECT_EQ(text.Narrow(L""), "");
    EXPECT_EQ(text.Widen(""), L"");
    EXPECT_EQ(text.Narrow(std::wstring(L"a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(text.Widen(std::string("a\0b", 3)), std::wstring(L"a\0b", 3));
}

TEST(TestSystemText, UpperCaseCoversAllOfUnicodeAndKeepsTheLength) {
    const TestSystemText text(CodePage::kLatin);
    EXPECT_EQ(text.UpperCase(L"abc жук ёÿ ß ω 5 表"), L"ABC ЖУК ЁŸ ß Ω 5 表");
    const std::wstring face =
        L"\xD83D"
        L"\xDE00";
    EXPECT_EQ(text.UpperCase(face), face);
}

TEST(TestSystemText, LowerCaseCoversAllOfUnicodeAndKeepsTheLength) {
    const TestSystemText text(CodePage::kLatin);
    EXPECT_EQ(text.LowerCase(L"ABC ЖУК ЁŸ ß Ω 5 表"), L"abc жук ёÿ ß ω 5 表");
    const std::wstring face =
        L"\xD83D"
        L"\xDE00";
    EXPECT_EQ(text.LowerCase(face), face);
}

}  // namespace
}  // namespace corvane::test
