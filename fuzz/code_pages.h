#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "toolkit/text/system_text.h"

// Code pages that cost a fuzzer next to nothing and lose nothing on the way there and back, so that whatever
// is lost was lost by the code under test.

namespace corvane::fuzz {

/// A code page of one byte for each character: the byte is the character's number.
class SingleByteText : public toolkit::SystemText {
  public:
    [[nodiscard]] std::string Narrow(std::wstring_view text) const override {
        std::string bytes;
        for (const wchar_t unit : text) {
            bytes += static_cast<char>(unit);
        }
        return bytes;
    }

    [[nodiscard]] std::wstring Widen(std::string_view text) const override {
        std::wstring wide;
        for (const char byte : text) {
            wide += static_cast<wchar_t>(static_cast<unsigned char>(byte));
        }
        return wide;
    }

    [[nodiscard]] std::wstring UpperCase(std::wstring_view text) const override { return std::wstring(text); }
    [[nodiscard]] std::wstring LowerCase(std::wstring_view text) const override { return std::wstring(text); }
};

/// A code page of one or two bytes for each character: a byte from 0x80 on takes the byte behind it along,
/// unless that one is below 0x40 (which is so in the code pages that are in use).
class DoubleByteText : public toolkit::SystemText {
  public:
    [[nodiscard]] std::string Narrow(std::wstring_view text) const override {
        std::string bytes;
        for (const wchar_t unit : text) {
            const std::uint32_t character = static_cast<std::uint16_t>(unit);
            if (character > 0xFF) {
                bytes += static_cast<char>(character >> 8U);
            }
            bytes += static_cast<char>(character & 0xFFU);
        }
        return bytes;
    }

    [[nodiscard]] std::wstring Widen(std::string_view text) const override {
        std::wstring wide;
        for (std::size_t index = 0; index < text.size(); ++index) {
            std::uint32_t character = Byte(text, index);
            if (character >= kFirstLead && index + 1 < text.size() && Byte(text, index + 1) >= kFirstTrail) {
                character = (character << 8U) | Byte(text, ++index);
            }
            wide += static_cast<wchar_t>(character);
        }
        return wide;
    }

    [[nodiscard]] std::wstring UpperCase(std::wstring_view text) const override { return std::wstring(text); }
    [[nodiscard]] std::wstring LowerCase(std::wstring_view text) const override { return std::wstring(text); }

  private:
    static constexpr std::uint32_t kFirstLead = 0x80;
    static constexpr std::uint32_t kFirstTrail = 0x40;

    static std::uint32_t Byte(std::string_view text, std::size_t index) {
        return static_cast<unsigned char>(text[index]);
    }
};

}  // namespace corvane::fuzz
