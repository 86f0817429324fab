#include "certificates/search/owner_texts.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

TEST(OwnerLines, EveryAttributeHasALine) {
    EXPECT_EQ(certificates::OwnerLines(L"CN=Ann,O=North,C=RU"), L"CN=Ann,\r\nO=North,\r\nC=RU");
}

TEST(OwnerLines, ACommaInAValueBreaksNoLine) {
    EXPECT_EQ(certificates::OwnerLines(L"CN=Ann,O=North, South, West,C=RU"),
              L"CN=Ann,\r\nO=North, South, West,\r\nC=RU");
}

TEST(OwnerLines, BetweenCommaAndEqualsThereMustBeACharacter) {
    EXPECT_EQ(certificates::OwnerLines(L"CN=A,=B,C=D"), L"CN=A,=B,\r\nC=D");
    EXPECT_EQ(certificates::OwnerLines(L"CN=A,==B"), L"CN=A,==B");
}

TEST(OwnerLines, TextsWithoutAttributesStayWhole) {
    for (const wchar_t* text : {L"", L",", L",,,", L"plain", L"a,b,c", L"CN=A,"}) {
        EXPECT_EQ(certificates::OwnerLines(text), text);
    }
}

TEST(OwnerLines, BlanksAfterTheCommaStayOnTheNewLine) {
    EXPECT_EQ(certificates::OwnerLines(L"CN=A, O=B"), L"CN=A,\r\n O=B");
}

TEST(OwnerLines, AMillionCommasAreReadOnce) {
    const std::wstring commas(1'000'000, L',');
    EXPECT_EQ(certificates::OwnerLines(commas), commas);
    EXPECT_EQ(certificates::OwnerLines(commas + L"C=R"), commas + L"\r\nC=R");
}

}  // namespace
}  // namespace corvane::test
