#include "toolkit/file_name_proposal.h"

#include <gtest/gtest.h>

namespace toolkit {
namespace {

TEST(ProposedFileName, ANameThatAFileCanHaveStays) {
    for (const wchar_t* name : {L"", L"rules", L"Правила (2) & more; 100%.cfg", L" a.b ", L"\x7F~_"}) {
        EXPECT_EQ(ProposedFileName(name), name);
    }
}

TEST(ProposedFileName, EachCharacterThatNoFileNameCanHoldBecomesAnUnderscore) {
    for (const wchar_t character : std::wstring(L"\"*/:<>?\\|")) {
        EXPECT_EQ(ProposedFileName(std::wstring(L"a") + character + character + L"b"), L"a__b")
            << "character " << static_cast<int>(character);
    }
    for (wchar_t character = 0; character < L' '; ++character) {
        EXPECT_EQ(ProposedFileName(std::wstring(1, character)), L"_")
            << "character " << static_cast<int>(character);
    }
}

TEST(ProposedFileName, AWholePathBecomesOneName) {
    EXPECT_EQ(ProposedFileName(L"C:\\in\\out/new"), L"C__in_out_new");
}

}  // namespace
}  // namespace toolkit
