#include "tests/kit/scriptable_library/library_script_writer.h"

#include <cstdio>

namespace corvane::test {

using scriptable::Quoted;

namespace {

std::string Hex(std::uint32_t number) {
    char digits[16];
    std::snprintf(digits, sizeof digits, "%X", static_cast<unsigned>(number));
    return digits;
}

std::string HexBytes(const LibraryScriptWriter::Text& bytes) {
    if (!bytes) {
        return "null";
    }
    std::string digits = "\"";
    for (const char byte : *bytes) {
        char pair[4];
        std::snprintf(pair, sizeof pair, "%02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        digits += pair;
    }
    return digits + "\"";
}

}  // namespace

void LibraryScriptWriter::Line(const std::vector<std::string>& words) {
    for (const std::string& word : words) {
        lines_ += word + " ";
    }
    lines_.back() = '\n';
}

void LibraryScriptWriter::Status(const std::string& function, unsigned number, std::uint32_t status) {
    Line({"status", function, std::to_string(number), Hex(status)});
}

void LibraryScriptWriter::Hold(const std::string& function, unsigned number, const std::string& eventName) {
    Line({"hold", function, std::to_string(number), Quoted(eventName)});
}

void LibraryScriptWriter::Pump(const std::string& function, unsigned number, const std::string& eventName) {
    Line({"pump", function, std::to_string(number), Quoted(eventName)});
}

void LibraryScriptWriter::ErrorText(std::uint32_t status, const std::string& text) {
    Line({"errortext", Hex(status), Quoted(text)});
}

void LibraryScriptWriter::Error(unsigned number, const Text& text, const Text& file, std::uint32_t line,
                                const Text& data) {
    Line({"error", std::to_string(number), Quoted(text), Quoted(file), std::to_string(line), Quoted(data)});
}

void LibraryScriptWriter::ControlText(const std::string& text) {
    Line({"control", Quoted(text)});
}

void LibraryScriptWriter::AddCertificate(const std::string& search, const Text& owner, std::uint8_t usage,
                                         const Text& issuer, const Text& serial) {
    Line({"certificate", Quoted(search), Quoted(owner), Hex(usage), Quoted(issuer), HexBytes(serial)});
}

void LibraryScriptWriter::Certificate(unsigned number, const Text& owner, std::uint8_t usage,
                                      const Text& issuer, const Text& serial) {
    AddCertificate(std::to_string(number), owner, usage, issuer, serial);
}

void LibraryScriptWriter::CertificateFor(const std::string& pattern, const Text& owner, std::uint8_t usage,
                                         const Text& issuer, const Text& serial) {
    AddCertificate("=" + pattern, owner, usage, issuer, serial);
}

void LibraryScriptWriter::Nothing(unsigned number) {
    Line({"nothing", std::to_string(number)});
}

void LibraryScriptWriter::NothingFor(const std::string& pattern) {
    Line({"nothing", Quoted("=" + pattern)});
}

}  // namespace corvane::test
