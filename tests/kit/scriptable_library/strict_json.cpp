#include "tests/kit/scriptable_library/strict_json.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace corvane::test {

namespace {

constexpr unsigned kContinuationBits = 6;
constexpr unsigned kContinuationMask = 0x3F;

}  // namespace

void RequireMembers(const nlohmann::json& value, std::initializer_list<const char*> members) {
    if (!value.is_object()) {
        throw std::invalid_argument("This is no JSON object: " + value.dump());
    }
    for (const auto& [name, member] : value.items()) {
        if (std::find(members.begin(), members.end(), name) == members.end()) {
            throw std::invalid_argument("\"" + name + "\" is no member that is known here: " + value.dump());
        }
    }
    for (const char* name : members) {
        if (!value.contains(name)) {
            throw std::invalid_argument("\"" + std::string(name) + "\" is missing: " + value.dump());
        }
    }
}

nlohmann::json ReadJson(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw std::invalid_argument("The file cannot be opened: " + file.string());
    }
    return nlohmann::json::parse(stream);
}

void WriteJson(const nlohmann::json& value, const std::filesystem::path& file) {
    std::ofstream(file, std::ios::binary) << value.dump(2) << '\n';
}

nlohmann::json BytesToJson(const ScriptText& bytes) {
    if (!bytes) {
        return nullptr;
    }
    std::string text;
    for (const char byte : *bytes) {
        const unsigned point = static_cast<unsigned char>(byte);
        if (point < 0x80) {
            text += byte;
        } else {
            text += static_cast<char>(0xC0U | (point >> kContinuationBits));
            text += static_cast<char>(0x80U | (point & kContinuationMask));
        }
    }
    return text;
}

ScriptText BytesFromJson(const nlohmann::json& value) {
    if (value.is_null()) {
        return std::nullopt;
    }
    std::string bytes;
    const auto text = value.get<std::string>();
    for (std::size_t i = 0; i < text.size(); ++i) {
        const unsigned first = static_cast<unsigned char>(text[i]);
        if (first < 0x80) {
            bytes += text[i];
            continue;
        }
        // JSON holds well-formed UTF-8 only, so another byte follows.
        constexpr unsigned kLastLeadOfAByte = 0xC3;
        if (first > kLastLeadOfAByte) {
            throw std::invalid_argument("A code point that is no byte: " + value.dump());
        }
        ++i;
        bytes += static_cast<char>(((first << kContinuationBits) & 0xC0U) |
                                   (static_cast<unsigned char>(text[i]) & kContinuationMask));
    }
    return bytes;
}

}  // namespace corvane::test
