#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "certificates/group_file/group_file.h"
#include "fuzz/code_pages.h"
#include "fuzz/require.h"

// Any bytes may stand in a group file. The owners are those that the format says, and owners that were read
// are written so that they are read again.

namespace corvane::fuzz {
namespace {

using fuzz::Require;

// The lines that count, told a second time and byte by byte, so that one can check the other.
store::TextList ExpectedOwners(std::string_view bytes, const toolkit::SystemText& systemText) {
    store::TextList owners;
    std::string line;
    for (const char byte : bytes) {
        if (byte == '\0') {
            break;
        }
        line += byte;
        if (!line.ends_with("\r\n")) {
            continue;
        }
        line.resize(line.size() - 2);
        if (line.find('=') != std::string::npos) {
            owners.push_back(systemText.Widen(line));
        }
        line.clear();
    }
    return owners;
}

void CheckBytes(std::string_view bytes, const toolkit::SystemText& systemText) {
    const store::TextList owners = certificates::ParseGroupFile(bytes, systemText);
    Require(owners == ExpectedOwners(bytes, systemText), "the lines that count are taken, and no others");
    Require(
        certificates::ParseGroupFile(certificates::FormatGroupFile(owners, systemText), systemText) == owners,
        "owners that were written are read back");
}

}  // namespace
}  // namespace corvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t sizeBytes) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), sizeBytes);
    corvane::fuzz::CheckBytes(bytes, corvane::fuzz::SingleByteText());
    corvane::fuzz::CheckBytes(bytes, corvane::fuzz::DoubleByteText());
    return 0;
}
