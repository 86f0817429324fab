#include "certs/subject_fields.h"

#include <gmock/gmock.h>

#include "tests/support/test_system_text.h"

namespace corvane {
namespace {

using ::testing::ElementsAre;

TEST(SubjectFields, StandInTheirOrder) {
    EXPECT_THAT(
        SubjectFields(),
        ElementsAre(L"Common name (CN)", L"Country (C)", L"State (ST)", L"Locality (L)", L"Street (STREET)",
                    L"Organization (O)", L"Organization unit (OU)", L"Domain constrain (DC)",
                    L"Address RFC822 (EMAIL)", L"(UNSTRUCTUREDNAME)", L"(UNSTRUCTUREDADDRESS)"));
}

TEST(SubjectFields, NineAreOffered) {
    const TextList offered = OfferedSubjectFields();
    ASSERT_EQ(offered.size(), 9U);
    EXPECT_EQ(offered.front(), L"Common name (CN)");
    EXPECT_EQ(offered.back(), L"Address RFC822 (EMAIL)");
}

TEST(SubjectFields, TheKeyIsWhatTheLastBracketsHoldInUpperCase) {
    const testing::TestSystemText text(testing::CodePage::kCyrillic);
    TextList keys;
    for (const std::wstring& field : SubjectFields()) {
        keys.push_back(SubjectFieldKey(field, text));
    }
    EXPECT_THAT(keys, ElementsAre(L"CN", L"C", L"ST", L"L", L"STREET", L"O", L"OU", L"DC", L"EMAIL",
                                  L"UNSTRUCTUREDNAME", L"UNSTRUCTUREDADDRESS"));
    EXPECT_EQ(SubjectFieldKey(L"A (x) b (mail)", text), L"MAIL");
    EXPECT_EQ(SubjectFieldKey(L"()", text), L"");
}

TEST(SubjectFields, ALineThatDoesNotEndInABracketHasNoKey) {
    const testing::TestSystemText text(testing::CodePage::kCyrillic);
    for (const wchar_t* line : {L"", L"Name", L"Name (CN) ", L"(CN", L"CN)"}) {
        EXPECT_EQ(SubjectFieldKey(line, text), L"");
    }
}

TEST(TrimBlanks, TakesBlanksOnlyAndOnlyAtTheEnds) {
    EXPECT_EQ(TrimBlanks(L"  a b "), L"a b");
    EXPECT_EQ(TrimBlanks(L"\t a"), L"\t a");
    EXPECT_EQ(TrimBlanks(L"   "), L"");
    EXPECT_EQ(TrimBlanks(L""), L"");
}

}  // namespace
}  // namespace corvane
