#include "tests/kit/fakes/registry_snapshot.h"

#include <iomanip>
#include <sstream>
#include <utility>

#include "store/registry/registry_calls.h"

namespace corvane::test {

StoredData Bytes(std::uint32_t type, std::vector<std::uint8_t> bytes) {
    return {type, std::move(bytes)};
}

StoredData Number(std::uint32_t number) {
    return {store::kTypeNumber,
            {static_cast<std::uint8_t>(number & 0xFFU), static_cast<std::uint8_t>((number >> 8U) & 0xFFU),
             static_cast<std::uint8_t>((number >> 16U) & 0xFFU), static_cast<std::uint8_t>(number >> 24U)}};
}

StoredData Text(std::wstring_view text) {
    StoredData data{store::kTypeText, CharacterBytes(text)};
    data.bytes.resize(data.bytes.size() + 2);
    return data;
}

StoredData MultiText(const std::vector<std::wstring>& list) {
    StoredData data{store::kTypeTextList, {}};
    for (const std::wstring& element : list) {
        const std::vector<std::uint8_t> bytes = CharacterBytes(element);
        data.bytes.insert(data.bytes.end(), bytes.begin(), bytes.end());
        data.bytes.resize(data.bytes.size() + 2);
    }
    data.bytes.resize(data.bytes.size() + 2);
    return data;
}

std::vector<std::uint8_t> CharacterBytes(std::wstring_view text) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(text.size() * 2);
    for (const wchar_t character : text) {
        const auto unit = static_cast<char16_t>(character);
        bytes.push_back(static_cast<std::uint8_t>(unit & 0xFFU));
        bytes.push_back(static_cast<std::uint8_t>(unit >> 8U));
    }
    return bytes;
}

void PrintTo(const StoredData& data, std::ostream* out) {
    *out << "type " << data.type << ", " << data.bytes.size() << " bytes" << std::hex << std::setfill('0');
    for (const std::uint8_t byte : data.bytes) {
        *out << ' ' << std::setw(2) << static_cast<unsigned>(byte);
    }
    *out << std::dec;
}

std::string Differences(const RegistrySnapshot& expected, const RegistrySnapshot& found) {
    if (expected == found) {
        return {};
    }
    std::ostringstream text;
    for (const auto& [path, values] : expected) {
        const auto foundKey = found.find(path);
        if (foundKey == found.end()) {
            text << "missing key " << Printable(path) << '\n';
            continue;
        }
        for (const auto& [name, data] : values) {
            const auto foundValue = foundKey->second.find(name);
            if (foundValue == foundKey->second.end()) {
                text << "missing value " << Printable(name) << " in " << Printable(path) << '\n';
            } else if (foundValue->second != data) {
                text << "value " << Printable(name) << " in " << Printable(path) << ": expected ";
                PrintTo(data, &text);
                text << ", found ";
                PrintTo(foundValue->second, &text);
                text << '\n';
            }
        }
        for (const auto& [name, data] : foundKey->second) {
            if (!values.contains(name)) {
                text << "unexpected value " << Printable(name) << " in " << Printable(path) << '\n';
            }
        }
    }
    for (const auto& [path, values] : found) {
        if (!expected.contains(path)) {
            text << "unexpected key " << Printable(path) << '\n';
        }
    }
    return text.str();
}

std::string Printable(std::wstring_view text) {
    std::string printable;
    for (const wchar_t character : text) {
        const auto unit = static_cast<unsigned>(static_cast<char16_t>(character));
        if (unit >= 0x20 && unit < 0x7F) {
            printable += static_cast<char>(unit);
            continue;
        }
        printable += "\\u";
        for (const unsigned shift : {12U, 8U, 4U, 0U}) {
            printable += "0123456789abcdef"[(unit >> shift) & 0xFU];
        }
    }
    return printable;
}

}  // namespace corvane::test
