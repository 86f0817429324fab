#include "tests/kit/fakes/reg_file.h"

#include <cstdint>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>
#include <vector>

#include "store/registry/registry_calls.h"

namespace corvane::test {

namespace {

[[noreturn]] void Refuse(std::wstring_view line) {
    throw std::runtime_error("registry file: cannot read the line: " + Printable(line));
}

unsigned ByteAt(std::string_view bytes, std::size_t position) {
    return static_cast<unsigned char>(bytes[position]);
}

std::wstring FromUtf16(std::string_view bytes) {
    std::wstring text;
    for (std::size_t position = 0; position + 1 < bytes.size(); position += 2) {
        text += static_cast<wchar_t>(ByteAt(bytes, position) | (ByteAt(bytes, position + 1) << 8U));
    }
    return text;
}

std::wstring FromUtf8(std::string_view bytes) {
    std::wstring text;
    for (std::size_t position = 0; position < bytes.size();) {
        const unsigned first = ByteAt(bytes, position++);
        unsigned following = 0;
        unsigned character = first;
        if (first >= 0xF0) {
            following = 3;
            character = first & 0x07U;
        } else if (first >= 0xE0) {
            following = 2;
            character = first & 0x0FU;
        } else if (first >= 0xC0) {
            following = 1;
            character = first & 0x1FU;
        }
        for (; following > 0 && position < bytes.size(); --following) {
            character = (character << 6U) | (ByteAt(bytes, position++) & 0x3FU);
        }
        if (character > 0xFFFF) {
            character -= 0x10000;
            text += static_cast<wchar_t>(0xD800U + (character >> 10U));
            character = 0xDC00U + (character & 0x3FFU);
        }
        text += static_cast<wchar_t>(character);
    }
    return text;
}

std::wstring Decode(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE")) {
        return FromUtf16(bytes.substr(2));
    }
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        bytes.remove_prefix(3);
    }
    return FromUtf8(bytes);
}

// The lines without their ends, continued ones joined.
std::vector<std::wstring> SplitLines(const std::wstring& text) {
    std::vector<std::wstring> lines;
    bool isContinued = false;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(L'\n', start), text.size());
        std::wstring line = text.substr(start, end - start);
        start = end + 1;
        if (line.ends_with(L'\r')) {
            line.pop_back();
        }
        if (isContinued) {
            line = lines.back() + line.substr(std::min(line.find_first_not_of(L' '), line.size()));
            lines.pop_back();
        }
        isContinued = line.ends_with(L'\\') && line.find(L"=hex") != std::wstring::npos;
        if (isContinued) {
            line.pop_back();
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

std::uint32_t ParseHexadecimal(std::wstring_view digits, std::wstring_view line) {
    std::uint32_t number = 0;
    if (digits.empty() || digits.size() > 8) {
        Refuse(line);
    }
    for (const wchar_t digit : digits) {
        constexpr std::wstring_view kDigits = L"0123456789abcdefABCDEF";
        const std::size_t value = kDigits.find(digit);
        if (value == std::wstring_view::npos) {
            Refuse(line);
        }
        number = number * 16 + static_cast<std::uint32_t>(value < 16 ? value : value - 6);
    }
    return number;
}

// Takes a text in quotes from the front of `rest`, with \\ and \" for a backslash and a quote.
std::wstring TakeQuoted(std::wstring_view& rest, std::wstring_view line) {
    std::wstring text;
    if (!rest.starts_with(L'"')) {
        Refuse(line);
    }
    rest.remove_prefix(1);
    while (!rest.empty() && rest.front() != L'"') {
        if (rest.front() == L'\\' && rest.size() > 1) {
            rest.remove_prefix(1);
        }
        text += rest.front();
        rest.remove_prefix(1);
    }
    if (rest.empty()) {
        Refuse(line);
    }
    rest.remove_prefix(1);
    return text;
}

StoredData ParseHexadecimalBytes(std::uint32_t type, std::wstring_view list, std::wstring_view line) {
    StoredData data{type, {}};
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(L','), list.size());
        data.bytes.push_back(static_cast<std::uint8_t>(ParseHexadecimal(list.substr(0, end), line)));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return data;
}

StoredData ParseData(std::wstring_view rest, std::wstring_view line) {
    constexpr std::wstring_view kNumber = L"dword:";
    constexpr std::wstring_view kBytes = L"hex:";
    constexpr std::wstring_view kTypedBytes = L"hex(";
    if (rest.starts_with(L'"')) {
        const std::wstring text = TakeQuoted(rest, line);
        return Text(text);
    }
    if (rest.starts_with(kNumber)) {
        return Number(ParseHexadecimal(rest.substr(kNumber.size()), line));
    }
    if (rest.starts_with(kBytes)) {
        return ParseHexadecimalBytes(store::kTypeBinary, rest.substr(kBytes.size()), line);
    }
    const std::size_t end = rest.find(L"):");
    if (!rest.starts_with(kTypedBytes) || end == std::wstring_view::npos) {
        Refuse(line);
    }
    const std::wstring_view type = rest.substr(kTypedBytes.size(), end - kTypedBytes.size());
    return ParseHexadecimalBytes(ParseHexadecimal(type, line), rest.substr(end + 2), line);
}

}  // namespace

RegistrySnapshot ParseRegFile(std::string_view fileBytes) {
    constexpr std::wstring_view kRoot = L"[HKEY_CURRENT_USER\\";
    const std::vector<std::wstring> lines = SplitLines(Decode(fileBytes));
    if (lines.empty() || lines.front() != L"Windows Registry Editor Version 5.00") {
        throw std::runtime_error("registry file: the first line is not that of such a file");
    }
    RegistrySnapshot snapshot;
    std::map<std::wstring, StoredData>* values = nullptr;
    for (std::size_t index = 1; index < lines.size(); ++index) {
        const std::wstring& line = lines[index];
        if (line.empty() || line.starts_with(L';')) {
            continue;
        }
        if (line.starts_with(kRoot) && line.ends_with(L']')) {
            values = &snapshot[line.substr(kRoot.size(), line.size() - kRoot.size() - 1)];
            continue;
        }
        std::wstring_view rest = line;
        const std::wstring name = TakeQuoted(rest, line);
        if (values == nullptr || !rest.starts_with(L'=')) {
            Refuse(line);
        }
        (*values)[name] = ParseData(rest.substr(1), line);
    }
    return snapshot;
}

std::string ReadWholeFile(const char* path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error(std::string("cannot open ") + path);
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace corvane::test
