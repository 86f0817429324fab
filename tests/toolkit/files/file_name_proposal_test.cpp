#include "toolkit/files/paths.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

TEST(ProposedFileName, ANameThatAFileCanHaveStays) {
    for (const wchar_t* name : {L"", L"rules", L"Правила (2) & more; 100%.cfg", L" a.b ", L"\x7F~_"}) {
        EXPECT_EQ(toolkit::ProposedFileName(name), name);
    }
}

TEST(ProposedFileName, EachCharacterThatNoFileNameCanHoldBecomesAnUnderscore) {
    for (const wchar_t character : std::wstring(L"\"*/:<>?\\|")) {
        EXPECT_EQ(toolkit::ProposedFileName(std::wstring(L"a") + character + character + L"b"), L"a__b")
            << "character " << static_cast<int>(character);
    }
    for (wchar_t character = 0; character < L' '; ++character) {
        EXPECT_EQ(toolkit::ProposedFileName(std::wstring(1, character)), L"_")
            << "character " << static_cast<int>(character);
    }
}

TEST(ProposedFileName, AWholePathBecomesOneName) {
    EXPECT_EQ(toolkit::ProposedFileName(L"C:\\in\\out/new"), L"C__in_out_new");
}

}  // namespace
}  // namespace corvane::test
