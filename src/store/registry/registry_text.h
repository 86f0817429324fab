#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "store/records.h"

// Registry data is bytes from a stranger: any type, any size, with or without the terminators that its type
// promises. Everything that turns such bytes into numbers and texts, and texts into bytes, stands here, as
// pure functions. A character is two bytes, the low one first, on every system.

namespace corvane::store {

using RegistryBytes = std::span<const std::byte>;

/// Bytes on their way to the registry. `bytes` is null where there was not enough memory.
struct RegistryData {
    std::unique_ptr<std::byte[]> bytes;
    std::size_t sizeBytes = 0;
};

/// Memory of `sizeBytes` bytes with no particular content; null where there is not enough.
[[nodiscard]] std::unique_ptr<std::byte[]> AllocateBytes(std::size_t sizeBytes);

/// The number that a value of `type` with the data `bytes` holds. Anything but a DWORD of four bytes is
/// invalid data; `number` is then untouched. Returns 0 or kCodeInvalidData.
[[nodiscard]] std::uint32_t DecodeNumber(std::uint32_t type, RegistryBytes bytes, std::int32_t& number);

/// The text of an SZ or EXPAND_SZ value (nothing is expanded). No bytes at all are the empty text; an odd
/// size, a last character that is not NUL and every other type are invalid data, and `text` is then
/// untouched. The text ends at its first NUL. Returns 0 or kCodeInvalidData.
[[nodiscard]] std::uint32_t DecodeText(std::uint32_t type, RegistryBytes bytes, std::wstring& text);

/// Appends the elements of a MULTI_SZ value, or the text of an SZ or EXPAND_SZ value as the one element, to
/// `list`. MULTI_SZ data has an even size of at least two bytes and ends in two NULs, or is one NUL; the
/// data of the others has an even size and ends in a NUL. Every other type or shape, no bytes at all
/// included, is invalid data, and `list` is then untouched. Reading stops at the first empty element.
/// Returns 0 or kCodeInvalidData.
[[nodiscard]] std::uint32_t DecodeTextList(std::uint32_t type, RegistryBytes bytes, TextList& list);

/// The data of an SZ value: the text and its terminating NUL.
[[nodiscard]] RegistryData EncodeText(std::wstring_view text);

/// The data of a MULTI_SZ value: each element with a NUL behind it, then one further NUL. The elements are
/// stored as they are, so an empty one ends the list for whoever reads it.
[[nodiscard]] RegistryData EncodeTextList(std::span<const std::wstring> list);

}  // namespace corvane::store
