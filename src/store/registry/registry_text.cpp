#include "store/registry/registry_text.h"

#include <algorithm>
#include <new>
#include <optional>

#include "store/registry/registry_calls.h"

namespace corvane::store {

namespace {

constexpr std::size_t kCharacterBytes = 2;

std::uint32_t ByteAt(RegistryBytes bytes, std::size_t position) {
    return std::to_integer<std::uint32_t>(bytes[position]);
}

wchar_t CharacterAt(RegistryBytes bytes, std::size_t index) {
    const std::size_t position = index * kCharacterBytes;
    return static_cast<wchar_t>(ByteAt(bytes, position) | (ByteAt(bytes, position + 1) << 8U));
}

/// The position of the first NUL from `start` on, or the end of the data.
std::size_t FindEnd(RegistryBytes bytes, std::size_t start) {
    const std::size_t lengthChars = bytes.size() / kCharacterBytes;
    std::size_t end = start;
    while (end < lengthChars && CharacterAt(bytes, end) != L'\0') {
        ++end;
    }
    return end;
}

void AssignText(RegistryBytes bytes, std::size_t start, std::size_t end, std::wstring& text) {
    text.resize(end - start);
    for (std::size_t index = start; index < end; ++index) {
        text[index - start] = CharacterAt(bytes, index);
    }
}

/// Whole characters, the last of them NUL.
bool IsTerminated(RegistryBytes bytes) {
    return bytes.size() >= kCharacterBytes && bytes.size() % kCharacterBytes == 0 &&
           CharacterAt(bytes, bytes.size() / kCharacterBytes - 1) == L'\0';
}

bool IsTerminatedList(RegistryBytes bytes) {
    const std::size_t lengthChars = bytes.size() / kCharacterBytes;
    return IsTerminated(bytes) && (lengthChars < 2 || CharacterAt(bytes, lengthChars - 2) == L'\0');
}

bool IsTextType(std::uint32_t type) {
    return type == kTypeText || type == kTypeExpandableText;
}

/// Writes the text and a NUL; returns where the next one goes.
std::byte* PutText(std::wstring_view text, std::byte* place) {
    for (const wchar_t character : text) {
        const std::uint32_t unit = static_cast<char16_t>(character);
        *place++ = static_cast<std::byte>(unit & 0xFFU);
        *place++ = static_cast<std::byte>((unit >> 8U) & 0xFFU);
    }
    return std::fill_n(place, kCharacterBytes, std::byte{0});
}

}  // namespace

std::unique_ptr<std::byte[]> AllocateBytes(std::size_t sizeBytes) {
    return std::unique_ptr<std::byte[]>(new (std::nothrow) std::byte[sizeBytes]);
}

std::uint32_t DecodeNumber(std::uint32_t type, RegistryBytes bytes, std::int32_t& number) {
    if (type != kTypeNumber || bytes.size() != sizeof(std::int32_t)) {
        return kCodeInvalidData;
    }
    number = static_cast<std::int32_t>(ByteAt(bytes, 0) | (ByteAt(bytes, 1) << 8U) |
                                       (ByteAt(bytes, 2) << 16U) | (ByteAt(bytes, 3) << 24U));
    return 0;
}

std::uint32_t DecodeText(std::uint32_t type, RegistryBytes bytes, std::wstring& text) {
    if (!IsTextType(type) || (!bytes.empty() && !IsTerminated(bytes))) {
        return kCodeInvalidData;
    }
    AssignText(bytes, 0, FindEnd(bytes, 0), text);
    return 0;
}

std::uint32_t DecodeTextList(std::uint32_t type, RegistryBytes bytes, TextList& list) {
    const bool isText = IsTextType(type) && IsTerminated(bytes);
    const bool isList = type == kTypeTextList && IsTerminatedList(bytes);
    if (!isText && !isList) {
        return kCodeInvalidData;
    }
    // The data ends in a NUL, so the walk meets an empty element, or the end behind the one text.
    std::size_t start = 0;
    for (std::size_t end = FindEnd(bytes, start); end > start; end = FindEnd(bytes, start)) {
        AssignText(bytes, start, end, list.emplace_back());
        if (isText) {
            break;
        }
        start = end + 1;
    }
    return 0;
}

RegistryData EncodeText(std::wstring_view text) {
    RegistryData data;
    data.sizeBytes = (text.size() + 1) * kCharacterBytes;
    data.bytes = AllocateBytes(data.sizeBytes);
    if (data.bytes) {
        PutText(text, data.bytes.get());
    }
    return data;
}

RegistryData EncodeTextList(std::span<const std::wstring> list) {
    std::size_t lengthChars = 1;
    for (const std::wstring& element : list) {
        lengthChars += element.size() + 1;
    }
    RegistryData data;
    data.sizeBytes = lengthChars * kCharacterBytes;
    data.bytes = AllocateBytes(data.sizeBytes);
    if (data.bytes) {
        std::byte* place = data.bytes.get();
        for (const std::wstring& element : list) {
            place = PutText(element, place);
        }
        PutText({}, place);
    }
    return data;
}

}  // namespace corvane::store
