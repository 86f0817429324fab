#include "editors/rule/rule_form.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/kit/fakes/registry_snapshot.h"

namespace corvane::test {
namespace {

struct Entry {
    const wchar_t* text = nullptr;
    std::int32_t number = 0;
    std::optional<std::wstring> correction;
};

void Expect(const Entry& entry) {
    editors::NumberField field{.number = 5, .isShown = true};
    EXPECT_EQ(editors::OnNumberTextChanged(field, entry.text), entry.correction) << Printable(entry.text);
    EXPECT_EQ(field.number, entry.number) << Printable(entry.text);
}

TEST(OnNumberTextChanged, ANumberStandsAsItIsTyped) {
    Expect({L"0", 0, std::nullopt});
    Expect({L"17", 17, std::nullopt});
    Expect({L"007", 7, std::nullopt});
    Expect({L"2147483647", 2147483647, std::nullopt});
}

TEST(OnNumberTextChanged, AnEmptyFieldIsZeroAndStaysEmpty) {
    Expect({L"", 0, std::nullopt});
}

TEST(OnNumberTextChanged, ANegativeNumberBecomesZeroAtOnce) {
    Expect({L"-1", 0, L"0"});
    Expect({L"-2147483648", 0, L"0"});
    Expect({L"-99999999999", 0, L"0"});
}

TEST(OnNumberTextChanged, ANumberThatDoesNotFitBecomesTheLargestThatDoes) {
    Expect({L"2147483648", 2147483647, L"2147483647"});
    Expect({L"4294967295", 2147483647, L"2147483647"});
    Expect({L"99999999999", 2147483647, L"2147483647"});
}

TEST(OnNumberTextChanged, PastedTextIsCutDownToItsNumber) {
    Expect({L"abc", 0, L"0"});
    Expect({L"12abc", 12, L"12"});
    Expect({L" 12", 12, L"12"});
    Expect({L"+12", 12, L"12"});
    Expect({L"12 ", 12, L"12"});
    Expect({L"   ", 0, L"0"});
    Expect({L"1.5", 1, L"1"});
}

TEST(OnNumberTextChanged, WhatIsPutBackStandsWhenItsOwnChangeIsToldOf) {
    for (const wchar_t* const text : {L"-1", L"99999999999", L"abc", L"12abc"}) {
        editors::NumberField field;
        const std::optional<std::wstring> correction = editors::OnNumberTextChanged(field, text);
        ASSERT_TRUE(correction.has_value());
        const std::int32_t number = field.number;
        EXPECT_EQ(editors::OnNumberTextChanged(field, *correction), std::nullopt);
        EXPECT_EQ(field.number, number);
    }
}

}  // namespace
}  // namespace corvane::test
