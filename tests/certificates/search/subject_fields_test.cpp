#include "certificates/search/owner_texts.h"

#include <gmock/gmock.h>

#include "tests/kit/fakes/test_system_text.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

TEST(SubjectFields, StandInTheirOrder) {
    EXPECT_THAT(
        certificates::SubjectFields(),
        ElementsAre(L"Common name (CN)", L"Country (C)", L"State (ST)", L"Locality (L)", L"Street (STREET)",
                    L"Organization (O)", L"Organization unit (OU)", L"Domain constrain (DC)",
                    L"Address RFC822 (EMAIL)", L"(UNSTRUCTUREDNAME)", L"(UNSTRUCTUREDADDRESS)"));
}

TEST(SubjectFields, NineAreOffered) {
    const store::TextList offered = certificates::OfferedSubjectFields();
    ASSERT_EQ(offered.size(), 9U);
    EXPECT_EQ(offered.front(), L"Common name (CN)");
    EXPECT_EQ(offered.back(), L"Address RFC822 (EMAIL)");
}

TEST(SubjectFields, TheKeyIsWhatTheLastBracketsHoldInUpperCase) {
    const TestSystemText text(CodePage::kCyrillic);
    store::TextList keys;
    for (const std::wstring& field : certificates::SubjectFields()) {
        keys.push_back(certificates::SubjectFieldKey(field, text));
    }
    EXPECT_THAT(keys, ElementsAre(L"CN", L"C", L"ST", L"L", L"STREET", L"O", L"OU", L"DC", L"EMAIL",
                                  L"UNSTRUCTUREDNAME", L"UNSTRUCTUREDADDRESS"));
    EXPECT_EQ(certificates::SubjectFieldKey(L"A (x) b (mail)", text), L"MAIL");
    EXPECT_EQ(certificates::SubjectFieldKey(L"()", text), L"");
}

TEST(SubjectFields, ALineThatDoesNotEndInABracketHasNoKey) {
    const TestSystemText text(CodePage::kCyrillic);
    for (const wchar_t* line : {L"", L"Name", L"Name (CN) ", L"(CN", L"CN)"}) {
        EXPECT_EQ(certificates::SubjectFieldKey(line, text), L"");
    }
}

TEST(TrimBlanks, TakesBlanksOnlyAndOnlyAtTheEnds) {
    EXPECT_EQ(certificates::TrimBlanks(L"  a b "), L"a b");
    EXPECT_EQ(certificates::TrimBlanks(L"\t a"), L"\t a");
    EXPECT_EQ(certificates::TrimBlanks(L"   "), L"");
    EXPECT_EQ(certificates::TrimBlanks(L""), L"");
}

}  // namespace
}  // namespace corvane::test
