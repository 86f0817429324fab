#include "tests/kit/scriptable_library/script_text.h"

#include <cstdio>
#include <cstdlib>

namespace scriptable {
namespace {

constexpr std::size_t kHexDigits = 2;

// Takes the text up to the closing mark off `rest`, whose opening mark is gone already.
std::string TakeQuoted(std::string_view& rest) {
    std::string text;
    while (!rest.empty() && rest.front() != '"') {
        if (rest.front() != '\\' || rest.size() < kHexDigits) {
            text += rest.front();
            rest.remove_prefix(1);
        } else if (rest[1] == 'x') {
            const std::string digits(rest.substr(2, kHexDigits));
            text += static_cast<char>(std::strtoul(digits.c_str(), nullptr, 16));
            rest.remove_prefix(2 + digits.size());
        } else {
            text += rest[1];
            rest.remove_prefix(2);
        }
    }
    rest.remove_prefix(rest.empty() ? 0 : 1);
    return text;
}

}  // namespace

std::string Escaped(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        if (byte == '"' || byte == '\\') {
            text += '\\';
            text += byte;
        } else if (byte >= 0x20 && byte < 0x7F) {
            text += byte;
        } else {
            char code[8];
            std::snprintf(code, sizeof code, "\\x%02X",
                          static_cast<unsigned>(static_cast<unsigned char>(byte)));
            text += code;
        }
    }
    return text;
}

std::string Quoted(const ScriptText& text) {
    return text ? "\"" + Escaped(*text) + "\"" : "null";
}

std::vector<ScriptText> WordsOf(std::string_view line) {
    std::vector<ScriptText> words;
    while (true) {
        const std::size_t start = line.find_first_not_of(" \r");
        if (start == std::string_view::npos) {
            return words;
        }
        line.remove_prefix(start);
        if (line.front() == '"') {
            line.remove_prefix(1);
            words.emplace_back(TakeQuoted(line));
            continue;
        }
        const std::string_view word = line.substr(0, line.find_first_of(" \r"));
        words.push_back(word == "null" ? ScriptText() : ScriptText(word));
        line.remove_prefix(word.size());
    }
}

}  // namespace scriptable
