#pragma once

#include <cstdint>
#include <optional>

namespace corvane::standin {

/// The usage byte of a found certificate, from the first byte of its key usage extension.
///
/// Bit n of the usage byte is the extension's named bit n: digital signature 0x01, non-repudiation 0x02, key
/// encipherment 0x04, data encipherment 0x08, key agreement 0x10, certificate signing 0x20, CRL signing 0x40,
/// encipher only 0x80. In the extension itself named bit 0 is the highest bit of the byte (key encipherment
/// 0x20, data encipherment 0x10, key agreement 0x08), so the byte is turned round; only that way does the
/// mask 0x1C, with which callers ask for encryption, select the three encryption bits.
///
/// A certificate without the extension is not restricted to any use and has all bits set.
[[nodiscard]] std::uint8_t UsageByte(std::optional<std::uint8_t> keyUsageExtension);

}  // namespace corvane::standin
