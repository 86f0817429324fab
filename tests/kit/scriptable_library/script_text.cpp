#include "tests/kit/scriptable_library/script_text.h"

#include <cstdio>

namespace corvane::test {
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

}  // namespace corvane::test
