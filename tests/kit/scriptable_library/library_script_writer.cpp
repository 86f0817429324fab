#include "tests/kit/scriptable_library/library_script_writer.h"

namespace corvane::test {

void LibraryScriptWriter::Status(const std::string& function, unsigned number, std::uint32_t status) {
    script_.statuses[{function, number}] = status;
}

void LibraryScriptWriter::Hold(const std::string& function, unsigned number, const std::string& eventName) {
    script_.holds[{function, number}] = {.eventName = eventName, .handlesMessages = false};
}

void LibraryScriptWriter::Pump(const std::string& function, unsigned number, const std::string& eventName) {
    script_.holds[{function, number}] = {.eventName = eventName, .handlesMessages = true};
}

void LibraryScriptWriter::ErrorText(std::uint32_t status, const std::string& text) {
    script_.errorTexts[status] = text;
}

void LibraryScriptWriter::Error(unsigned number, const Text& text, const Text& file, std::uint32_t line,
                                const Text& data) {
    script_.errorStacks[number].push_back({text, file, line, data});
}

void LibraryScriptWriter::ControlText(const std::string& text) {
    script_.controlText = text;
}

void LibraryScriptWriter::Certificate(unsigned number, const Text& owner, std::uint8_t usage,
                                      const Text& issuer, const Text& serial) {
    script_.searches[std::to_string(number)].push_back({owner, usage, issuer, serial});
}

void LibraryScriptWriter::CertificateFor(const std::string& pattern, const Text& owner, std::uint8_t usage,
                                         const Text& issuer, const Text& serial) {
    script_.searches["=" + pattern].push_back({owner, usage, issuer, serial});
}

void LibraryScriptWriter::Nothing(unsigned number) {
    script_.searches[std::to_string(number)].clear();
}

void LibraryScriptWriter::NothingFor(const std::string& pattern) {
    script_.searches["=" + pattern].clear();
}

}  // namespace corvane::test
