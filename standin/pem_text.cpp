#include "standin/pem_text.h"

#include <cstddef>
#include <optional>
#include <string>

namespace corvane::standin {
namespace {

std::optional<unsigned> Base64Value(char character) {
    constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const std::size_t value = kAlphabet.find(character);
    return value == std::string_view::npos ? std::nullopt : std::optional(static_cast<unsigned>(value));
}

std::optional<Bytes> DecodeBase64(std::string_view text) {
    constexpr std::string_view kSpace = " \t\r\n";
    Bytes bytes;
    bytes.reserve(text.size() / 4 * 3);
    unsigned held = 0;
    unsigned heldBits = 0;
    for (const char character : text) {
        if (kSpace.find(character) != std::string_view::npos) {
            continue;
        }
        if (character == '=') {
            break;
        }
        const std::optional<unsigned> value = Base64Value(character);
        if (!value) {
            return std::nullopt;
        }
        held = ((held << 6) | *value) & 0xFFFFU;
        heldBits += 6;
        if (heldBits >= 8) {
            heldBits -= 8;
            bytes.push_back(static_cast<std::uint8_t>((held >> heldBits) & 0xFFU));
        }
    }
    return bytes;
}

}  // namespace

std::vector<Bytes> ObjectsOfFile(std::string_view content, std::string_view label) {
    const std::string begin = "-----BEGIN " + std::string(label) + "-----";
    const std::string end = "-----END " + std::string(label) + "-----";
    std::vector<Bytes> objects;
    std::size_t at = content.find(begin);
    if (at == std::string_view::npos) {
        if (!content.empty()) {
            objects.emplace_back(content.begin(), content.end());
        }
        return objects;
    }
    while (at != std::string_view::npos) {
        at += begin.size();
        const std::size_t close = content.find(end, at);
        if (close == std::string_view::npos) {
            break;
        }
        if (std::optional<Bytes> bytes = DecodeBase64(content.substr(at, close - at));
            bytes && !bytes->empty()) {
            objects.push_back(std::move(*bytes));
        }
        at = content.find(begin, close);
    }
    return objects;
}

}  // namespace corvane::standin
