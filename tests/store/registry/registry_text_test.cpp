#include "store/registry/registry_text.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "store/registry/registry_calls.h"
#include "tests/kit/fakes/registry_snapshot.h"
#include "tests/store/registry/memory_limit.h"

namespace corvane::test {
namespace {

store::RegistryBytes Span(const std::vector<std::uint8_t>& bytes) {
    return std::as_bytes(std::span(bytes));
}

std::vector<std::uint8_t> Copy(const store::RegistryData& data) {
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
        {"no bytes at all", store::kTypeText, {}, 0, L""},
        {"one NUL", store::kTypeText, {0, 0}, 0, L""},
        {"one character and its NUL", store::kTypeText, {'a', 0, 0, 0}, 0, L"a"},
        {"two NULs behind the text", store::kTypeText, {'a', 0, 0, 0, 0, 0}, 0, L"a"},
        {"a NUL inside cuts", store::kTypeText, {'a', 0, 0, 0, 'b', 0, 0, 0}, 0, L"a"},
        {"expandable text is not expanded",
         store::kTypeExpandableText,
         {'%', 0, 'x', 0, '%', 0, 0, 0},
         0,
         L"%x%"},
        {"low byte first", store::kTypeText, {0x42, 0x04, 0, 0}, 0, L"\x0442"},
        {"half a surrogate pair stays",
         store::kTypeText,
         {0x3D, 0xD8, 0, 0},
         0,
         std::wstring(1, wchar_t{0xD83D})},
        {"no terminator", store::kTypeText, {'a', 0}, store::kCodeInvalidData, L""},
        {"only the low byte of the last character is 0",
         store::kTypeText,
         {'a', 0, 0, 4},
         store::kCodeInvalidData,
         L""},
        {"one byte", store::kTypeText, {0}, store::kCodeInvalidData, L""},
        {"odd size behind a terminator", store::kTypeText, {'a', 0, 0, 0, 0}, store::kCodeInvalidData, L""},
        {"a list", store::kTypeTextList, {'a', 0, 0, 0, 0, 0}, store::kCodeInvalidData, L""},
        {"a number", store::kTypeNumber, {1, 0, 0, 0}, store::kCodeInvalidData, L""},
        {"binary that looks like text", store::kTypeBinary, {'a', 0, 0, 0}, store::kCodeInvalidData, L""},
        {"no type", 0, {}, store::kCodeInvalidData, L""},
        {"a type nobody knows", 0xFFFFFFFF, {'a', 0, 0, 0}, store::kCodeInvalidData, L""},
    };
    for (const TextCase& item : cases) {
        std::wstring text = L"before";
        EXPECT_EQ(store::DecodeText(item.type, Span(item.bytes), text), item.code) << item.what;
        EXPECT_EQ(text, item.code == 0 ? item.text : L"before") << item.what;
    }
}

struct ListCase {
    const char* what;
    std::uint32_t type;
    std::vector<std::uint8_t> bytes;
    std::uint32_t code;
    store::TextList list;
};

TEST(DecodeTextList, GivesForEveryShapeOfBytesItsElementsOrInvalidData) {
    const ListCase cases[] = {
        {"one NUL is the empty list", store::kTypeTextList, {0, 0}, 0, {}},
        {"two NULs are the empty list", store::kTypeTextList, {0, 0, 0, 0}, 0, {}},
        {"one element", store::kTypeTextList, {'a', 0, 0, 0, 0, 0}, 0, {L"a"}},
        {"two elements", store::kTypeTextList, {'a', 0, 0, 0, 'b', 0, 'c', 0, 0, 0, 0, 0}, 0, {L"a", L"bc"}},
        {"three NULs behind", store::kTypeTextList, {'a', 0, 0, 0, 0, 0, 0, 0}, 0, {L"a"}},
        {"reading stops at the first empty element",
         store::kTypeTextList,
         {'A', 0, 0, 0, 0, 0, 'B', 0, 0, 0, 0, 0},
         0,
         {L"A"}},
        {"an empty element in front ends it at once",
         store::kTypeTextList,
         {0, 0, 'B', 0, 0, 0, 0, 0},
         0,
         {}},
        {"no bytes at all", store::kTypeTextList, {}, store::kCodeInvalidData, {}},
        {"one byte", store::kTypeTextList, {0}, store::kCodeInvalidData, {}},
        {"odd size", store::kTypeTextList, {'a', 0, 0, 0, 0, 0, 0}, store::kCodeInvalidData, {}},
        {"no terminator", store::kTypeTextList, {'a', 0}, store::kCodeInvalidData, {}},
        {"one terminator only", store::kTypeTextList, {'a', 0, 0, 0}, store::kCodeInvalidData, {}},
        {"NUL then a character", store::kTypeTextList, {0, 0, 'a', 0}, store::kCodeInvalidData, {}},
        {"a text is a list of one", store::kTypeText, {'a', 0, 'b', 0, 0, 0}, 0, {L"ab"}},
        {"an expandable text too", store::kTypeExpandableText, {'%', 0, 0, 0}, 0, {L"%"}},
        {"a text is cut at its first NUL", store::kTypeText, {'a', 0, 0, 0, 'b', 0, 0, 0}, 0, {L"a"}},
        {"an empty text is an empty list", store::kTypeText, {0, 0}, 0, {}},
        {"a text of no bytes", store::kTypeText, {}, store::kCodeInvalidData, {}},
        {"a text of odd size", store::kTypeText, {'a', 0, 0, 0, 0}, store::kCodeInvalidData, {}},
        {"a text without terminator", store::kTypeText, {'a', 0}, store::kCodeInvalidData, {}},
        {"a number", store::kTypeNumber, {0, 0, 0, 0}, store::kCodeInvalidData, {}},
        {"binary that looks like a list",
         store::kTypeBinary,
         {'a', 0, 0, 0, 0, 0},
         store::kCodeInvalidData,
         {}},
    };
    for (const ListCase& item : cases) {
        store::TextList list = {L"before"};
        EXPECT_EQ(store::DecodeTextList(item.type, Span(item.bytes), list), item.code) << item.what;
        store::TextList expected = {L"before"};
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
        {"low byte first", store::kTypeNumber, {0x78, 0x56, 0x34, 0x12}, 0, 0x12345678},
        {"the sign is the highest bit", store::kTypeNumber, {0xFE, 0xFF, 0xFF, 0xFF}, 0, -2},
        {"three bytes", store::kTypeNumber, {1, 2, 3}, store::kCodeInvalidData, 77},
        {"no bytes", store::kTypeNumber, {}, store::kCodeInvalidData, 77},
        {"five bytes", store::kTypeNumber, {1, 2, 3, 4, 5}, store::kCodeInvalidData, 77},
        {"binary", store::kTypeBinary, {1, 0, 0, 0}, store::kCodeInvalidData, 77},
        {"a text of two characters", store::kTypeText, {'1', 0, 0, 0}, store::kCodeInvalidData, 77},
        {"eight bytes", kTypeQuadNumber, {1, 0, 0, 0, 0, 0, 0, 0}, store::kCodeInvalidData, 77},
    };
    for (const NumberCase& item : cases) {
        std::int32_t number = 77;
        EXPECT_EQ(store::DecodeNumber(item.type, Span(item.bytes), number), item.code) << item.what;
        EXPECT_EQ(number, item.number) << item.what;
    }
}

TEST(EncodeText, IsTheCharactersAndOneNul) {
    EXPECT_EQ(Copy(store::EncodeText(L"")), (std::vector<std::uint8_t>{0, 0}));
    EXPECT_EQ(Copy(store::EncodeText(L"a\x0442")), (std::vector<std::uint8_t>{'a', 0, 0x42, 0x04, 0, 0}));
}

TEST(EncodeTextList, IsEachElementWithItsNulAndOneMore) {
    EXPECT_EQ(Copy(store::EncodeTextList({})), (std::vector<std::uint8_t>{0, 0}));
    const store::TextList list = {L"a", L"", L"bc"};
    EXPECT_EQ(Copy(store::EncodeTextList(list)),
              (std::vector<std::uint8_t>{'a', 0, 0, 0, 0, 0, 'b', 0, 'c', 0, 0, 0, 0, 0}));
}

TEST(EncodeText, ComesBackAsItWasForEveryCodeUnit) {
    std::wstring text;
    for (std::uint32_t unit = 1; unit <= 0xFFFF; ++unit) {
        text += static_cast<wchar_t>(unit);
    }
    const std::vector<std::uint8_t> bytes = Copy(store::EncodeText(text));
    std::vector<std::uint8_t> expected = CharacterBytes(text);
    expected.resize(expected.size() + 2);
    ASSERT_EQ(bytes, expected);
    std::wstring back;
    ASSERT_EQ(store::DecodeText(store::kTypeText, Span(bytes), back), 0U);
    EXPECT_EQ(back, text);
}

TEST(EncodeTextList, WithoutMemoryHasNoBytes) {
    const store::TextList list = {std::wstring(100, L'x')};
    const MemoryLimit limit(100);
    EXPECT_EQ(store::EncodeTextList(list).bytes, nullptr);
    EXPECT_EQ(store::EncodeText(list[0]).bytes, nullptr);
    EXPECT_NE(store::EncodeText(L"short").bytes, nullptr);
}

}  // namespace
}  // namespace corvane::test
