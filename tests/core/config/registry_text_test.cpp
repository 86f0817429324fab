#include "config/registry_text.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "config/registry_calls.h"
#include "tests/core/config/memory_limit.h"
#include "tests/support/registry_snapshot.h"

namespace corvane {
namespace {

using testing::CharacterBytes;
using testing::Printable;

RegistryBytes Span(const std::vector<std::uint8_t>& bytes) {
    return std::as_bytes(std::span(bytes));
}

std::vector<std::uint8_t> Copy(const RegistryData& data) {
    std::vector<std::uint8_t> bytes(data.sizeBytes);
    std::memcpy(bytes.data(), data.bytes.get(), data.sizeBytes);
    return bytes;
}

struct TextCase {
    const char* what;
    std::uint32_t type;
    std::vector<std::uint8_t> bytes;
    std::uint32_t code;
    std::wstring text;
};

TEST(DecodeText, GivesForEveryShapeOfBytesItsTextOrInvalidData) {
    const TextCase cases[] = {
        {"no bytes at all", kTypeText, {}, 0, L""},
        {"one NUL", kTypeText, {0, 0}, 0, L""},
        {"one character and its NUL", kTypeText, {'a', 0, 0, 0}, 0, L"a"},
        {"two NULs behind the text", kTypeText, {'a', 0, 0, 0, 0, 0}, 0, L"a"},
        {"a NUL inside cuts", kTypeText, {'a', 0, 0, 0, 'b', 0, 0, 0}, 0, L"a"},
        {"expandable text is not expanded", kTypeExpandableText, {'%', 0, 'x', 0, '%', 0, 0, 0}, 0, L"%x%"},
        {"low byte first", kTypeText, {0x42, 0x04, 0, 0}, 0, L"\x0442"},
        {"half a surrogate pair stays", kTypeText, {0x3D, 0xD8, 0, 0}, 0, std::wstring(1, wchar_t{0xD83D})},
        {"no terminator", kTypeText, {'a', 0}, kCodeInvalidData, L""},
        {"only the low byte of the last character is 0", kTypeText, {'a', 0, 0, 4}, kCodeInvalidData, L""},
        {"one byte", kTypeText, {0}, kCodeInvalidData, L""},
        {"odd size behind a terminator", kTypeText, {'a', 0, 0, 0, 0}, kCodeInvalidData, L""},
        {"a list", kTypeTextList, {'a', 0, 0, 0, 0, 0}, kCodeInvalidData, L""},
        {"a number", kTypeNumber, {1, 0, 0, 0}, kCodeInvalidData, L""},
        {"binary that looks like text", kTypeBinary, {'a', 0, 0, 0}, kCodeInvalidData, L""},
        {"no type", 0, {}, kCodeInvalidData, L""},
        {"a type nobody knows", 0xFFFFFFFF, {'a', 0, 0, 0}, kCodeInvalidData, L""},
    };
    for (const TextCase& item : cases) {
        std::wstring text = L"before";
        EXPECT_EQ(DecodeText(item.type, Span(item.bytes), text), item.code) << item.what;
        EXPECT_EQ(text, item.code == 0 ? item.text : L"before") << item.what;
    }
}

struct ListCase {
    const char* what;
    std::uint32_t type;
    std::vector<std::uint8_t> bytes;
    std::uint32_t code;
    TextList list;
};

TEST(DecodeTextList, GivesForEveryShapeOfBytesItsElementsOrInvalidData) {
    const ListCase cases[] = {
        {"one NUL is the empty list", kTypeTextList, {0, 0}, 0, {}},
        {"two NULs are the empty list", kTypeTextList, {0, 0, 0, 0}, 0, {}},
        {"one element", kTypeTextList, {'a', 0, 0, 0, 0, 0}, 0, {L"a"}},
        {"two elements", kTypeTextList, {'a', 0, 0, 0, 'b', 0, 'c', 0, 0, 0, 0, 0}, 0, {L"a", L"bc"}},
        {"three NULs behind", kTypeTextList, {'a', 0, 0, 0, 0, 0, 0, 0}, 0, {L"a"}},
        {"reading stops at the first empty element",
         kTypeTextList,
         {'A', 0, 0, 0, 0, 0, 'B', 0, 0, 0, 0, 0},
         0,
         {L"A"}},
        {"an empty element in front ends it at once", kTypeTextList, {0, 0, 'B', 0, 0, 0, 0, 0}, 0, {}},
        {"no bytes at all", kTypeTextList, {}, kCodeInvalidData, {}},
        {"one byte", kTypeTextList, {0}, kCodeInvalidData, {}},
        {"odd size", kTypeTextList, {'a', 0, 0, 0, 0, 0, 0}, kCodeInvalidData, {}},
        {"no terminator", kTypeTextList, {'a', 0}, kCodeInvalidData, {}},
        {"one terminator only", kTypeTextList, {'a', 0, 0, 0}, kCodeInvalidData, {}},
        {"NUL then a character", kTypeTextList, {0, 0, 'a', 0}, kCodeInvalidData, {}},
        {"a text is a list of one", kTypeText, {'a', 0, 'b', 0, 0, 0}, 0, {L"ab"}},
        {"an expandable text too", kTypeExpandableText, {'%', 0, 0, 0}, 0, {L"%"}},
        {"a text is cut at its first NUL", kTypeText, {'a', 0, 0, 0, 'b', 0, 0, 0}, 0, {L"a"}},
        {"an empty text is an empty list", kTypeText, {0, 0}, 0, {}},
        {"a text of no bytes", kTypeText, {}, kCodeInvalidData, {}},
        {"a text of odd size", kTypeText, {'a', 0, 0, 0, 0}, kCodeInvalidData, {}},
        {"a text without terminator", kTypeText, {'a', 0}, kCodeInvalidData, {}},
        {"a number", kTypeNumber, {0, 0, 0, 0}, kCodeInvalidData, {}},
        {"binary that looks like a list", kTypeBinary, {'a', 0, 0, 0, 0, 0}, kCodeInvalidData, {}},
    };
    for (const ListCase& item : cases) {
        TextList list = {L"before"};
        EXPECT_EQ(DecodeTextList(item.type, Span(item.bytes), list), item.code) << item.what;
        TextList expected = {L"before"};
        expected.insert(expected.end(), item.list.begin(), item.list.end());
        EXPECT_EQ(list, expected) << item.what;
    }
}

TEST(DecodeNumber, TakesFourBytesOfDwordOnly) {
    struct NumberCase {
        const char* what;
        std::uint32_t type;
        std::vector<std::uint8_t> bytes;
        std::uint32_t code;
        std::int32_t number;
    };
    const NumberCase cases[] = {
        {"low byte first", kTypeNumber, {0x78, 0x56, 0x34, 0x12}, 0, 0x12345678},
        {"the sign is the highest bit", kTypeNumber, {0xFE, 0xFF, 0xFF, 0xFF}, 0, -2},
        {"three bytes", kTypeNumber, {1, 2, 3}, kCodeInvalidData, 77},
        {"no bytes", kTypeNumber, {}, kCodeInvalidData, 77},
        {"five bytes", kTypeNumber, {1, 2, 3, 4, 5}, kCodeInvalidData, 77},
        {"binary", kTypeBinary, {1, 0, 0, 0}, kCodeInvalidData, 77},
        {"a text of two characters", kTypeText, {'1', 0, 0, 0}, kCodeInvalidData, 77},
        {"eight bytes", testing::kTypeQuadNumber, {1, 0, 0, 0, 0, 0, 0, 0}, kCodeInvalidData, 77},
    };
    for (const NumberCase& item : cases) {
        std::int32_t number = 77;
        EXPECT_EQ(DecodeNumber(item.type, Span(item.bytes), number), item.code) << item.what;
        EXPECT_EQ(number, item.number) << item.what;
    }
}

TEST(EncodeText, IsTheCharactersAndOneNul) {
    EXPECT_EQ(Copy(EncodeText(L"")), (std::vector<std::uint8_t>{0, 0}));
    EXPECT_EQ(Copy(EncodeText(L"a\x0442")), (std::vector<std::uint8_t>{'a', 0, 0x42, 0x04, 0, 0}));
}

TEST(EncodeTextList, IsEachElementWithItsNulAndOneMore) {
    EXPECT_EQ(Copy(EncodeTextList({})), (std::vector<std::uint8_t>{0, 0}));
    const TextList list = {L"a", L"", L"bc"};
    EXPECT_EQ(Copy(EncodeTextList(list)),
              (std::vector<std::uint8_t>{'a', 0, 0, 0, 0, 0, 'b', 0, 'c', 0, 0, 0, 0, 0}));
}

TEST(EncodeText, ComesBackAsItWasForEveryCodeUnit) {
    std::wstring text;
    for (std::uint32_t unit = 1; unit <= 0xFFFF; ++unit) {
        text += static_cast<wchar_t>(unit);
    }
    const std::vector<std::uint8_t> bytes = Copy(EncodeText(text));
    std::vector<std::uint8_t> expected = CharacterBytes(text);
    expected.resize(expected.size() + 2);
    ASSERT_EQ(bytes, expected);
    std::wstring back;
    ASSERT_EQ(DecodeText(kTypeText, Span(bytes), back), 0U);
    EXPECT_EQ(back, text);
}

TEST(EncodeTextList, WithoutMemoryHasNoBytes) {
    const TextList list = {std::wstring(100, L'x')};
    const testing::MemoryLimit limit(100);
    EXPECT_EQ(EncodeTextList(list).bytes, nullptr);
    EXPECT_EQ(EncodeText(list[0]).bytes, nullptr);
    EXPECT_NE(EncodeText(L"short").bytes, nullptr);
}

}  // namespace
}  // namespace corvane
