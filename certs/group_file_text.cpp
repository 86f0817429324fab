#include "certs/group_file_text.h"

namespace corvane {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

TextList ParseGroupFile(std::string_view bytes, const toolkit::SystemText& systemText) {
    TextList owners;
    // The marks that are looked for are never the second byte of a character in a Windows code page.
    bytes = bytes.substr(0, bytes.find('\0'));
    for (std::size_t end = bytes.find(kLineEnd); end != std::string_view::npos; end = bytes.find(kLineEnd)) {
        const std::string_view line = bytes.substr(0, end);
        if (line.find('=') != std::string_view::npos) {
            owners.push_back(systemText.Widen(line));
        }
        bytes.remove_prefix(end + kLineEnd.size());
    }
    return owners;
}

std::string FormatGroupFile(const TextList& owners, const toolkit::SystemText& systemText) {
    std::string bytes;
    for (const std::wstring& owner : owners) {
        bytes += systemText.Narrow(owner);
        bytes += kLineEnd;
    }
    return bytes;
}

}  // namespace corvane
