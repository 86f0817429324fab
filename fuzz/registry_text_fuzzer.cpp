#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "fuzz/require.h"
#include "store/registry/registry_calls.h"
#include "store/registry/registry_text.h"

// The first byte of an input is the type of a registry value, the rest its data: whatever the registry
// holds, the bytes are read as laid down, never outside of them, and what is written is read back.

namespace corvane::fuzz {
namespace {

using fuzz::Require;

// The data as characters; none where they are not whole.
std::optional<std::wstring> Characters(store::RegistryBytes bytes) {
    if (bytes.size() % 2 != 0) {
        return std::nullopt;
    }
    std::wstring characters;
    for (std::size_t index = 0; index < bytes.size(); index += 2) {
        characters += static_cast<wchar_t>(std::to_integer<unsigned>(bytes[index]) |
                                           (std::to_integer<unsigned>(bytes[index + 1]) << 8U));
    }
    return characters;
}

bool IsText(std::uint32_t type) {
    return type == store::kTypeText || type == store::kTypeExpandableText;
}

// The elements of a list value, told a second time and differently, so that one can check the other.
std::optional<store::TextList> ExpectedList(std::uint32_t type, store::RegistryBytes bytes) {
    const std::optional<std::wstring> characters = Characters(bytes);
    if (!characters || !characters->ends_with(L'\0')) {
        return std::nullopt;
    }
    const bool isList = type == store::kTypeTextList &&
                        (characters->size() == 1 || (*characters)[characters->size() - 2] == L'\0');
    if (!isList && !IsText(type)) {
        return std::nullopt;
    }
    store::TextList list;
    for (const wchar_t* element = characters->c_str(); *element != L'\0'; element += list.back().size() + 1) {
        list.emplace_back(element);
        if (!isList) {
            break;
        }
    }
    return list;
}

// The same for a single text.
std::optional<std::wstring> ExpectedText(std::uint32_t type, store::RegistryBytes bytes) {
    const std::optional<std::wstring> characters = Characters(bytes);
    if (!IsText(type) || !characters || (!characters->empty() && !characters->ends_with(L'\0'))) {
        return std::nullopt;
    }
    return characters->c_str();
}

store::RegistryBytes BytesOf(const store::RegistryData& data) {
    return {data.bytes.get(), data.sizeBytes};
}

void CheckList(std::uint32_t type, store::RegistryBytes bytes) {
    const store::TextList before = {L"stays"};
    store::TextList list = before;
    const std::uint32_t code = store::DecodeTextList(type, bytes, list);
    const std::optional<store::TextList> expected = ExpectedList(type, bytes);
    Require(code == (expected ? 0 : store::kCodeInvalidData), "a list value is told from what is none");
    if (!expected) {
        Require(list == before, "invalid data leaves the list as it was");
        return;
    }
    Require(!list.empty() && list.front() == before.front(), "elements are appended");
    list.erase(list.begin());
    Require(list == *expected, "the elements are those that the data holds");

    const store::RegistryData encoded = store::EncodeTextList(list);
    store::TextList again;
    Require(store::DecodeTextList(store::kTypeTextList, BytesOf(encoded), again) == 0,
            "a written list can be read");
    Require(again == list, "a written list is read back");
}

void CheckText(std::uint32_t type, store::RegistryBytes bytes) {
    std::wstring text = L"stays";
    const std::uint32_t code = store::DecodeText(type, bytes, text);
    const std::optional<std::wstring> expected = ExpectedText(type, bytes);
    Require(code == (expected ? 0 : store::kCodeInvalidData), "a text value is told from what is none");
    Require(text == expected.value_or(L"stays"), "the text is that of the data, or as it was");

    const store::RegistryData encoded = store::EncodeText(text);
    std::wstring again;
    Require(encoded.sizeBytes == (text.size() + 1) * 2, "a text is stored with its terminator");
    Require(store::DecodeText(store::kTypeText, BytesOf(encoded), again) == 0 && again == text,
            "a written text is read back");
}

void CheckNumber(std::uint32_t type, store::RegistryBytes bytes) {
    constexpr std::int32_t kBefore = 77;
    std::int32_t number = kBefore;
    const std::uint32_t code = store::DecodeNumber(type, bytes, number);
    const bool isNumber = type == store::kTypeNumber && bytes.size() == sizeof(number);
    Require(code == (isNumber ? 0 : store::kCodeInvalidData), "a number is told from what is none");
    Require(isNumber || number == kBefore, "invalid data leaves the number as it was");
}

}  // namespace
}  // namespace corvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t sizeBytes) {
    if (sizeBytes == 0) {
        return 0;
    }
    // The input is memory of exactly its size, so a read past its end is seen.
    const std::uint32_t type = data[0];
    const corvane::store::RegistryBytes bytes = std::as_bytes(std::span(data + 1, sizeBytes - 1));
    corvane::fuzz::CheckNumber(type, bytes);
    corvane::fuzz::CheckText(type, bytes);
    corvane::fuzz::CheckList(type, bytes);
    return 0;
}
