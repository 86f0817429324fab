#include "standin/revocations.h"

#include <algorithm>

#include "standin/served_certificate.h"

namespace corvane::standin {

void Revocations::Take(const RevocationFile& file) {
    std::erase_if(revoked_, [&](const auto& entry) { return entry.first == file.encodedIssuer; });
    for (const Bytes& serial : file.revokedSerials) {
        revoked_.emplace(file.encodedIssuer, SerialInReadingOrder(serial));
    }
}

bool Revocations::Contains(const Bytes& encodedIssuer, const Bytes& serialHighestFirst) const {
    return revoked_.contains({encodedIssuer, serialHighestFirst});
}

std::string DescribeLoading(const std::vector<RevocationFile>& files) {
    std::string refused;
    std::string loaded;
    for (const RevocationFile& file : files) {
        if (file.refusal.empty()) {
            loaded +=
                file.fileName + ": loaded, " + std::to_string(file.revokedSerials.size()) + " revoked\r\n";
        } else {
            refused += file.fileName + ": " + file.refusal + "\r\n";
        }
    }
    return refused + loaded;
}

void WriteWholeLines(const std::string& text, char* buffer, std::size_t capacity) {
    if (buffer == nullptr || capacity == 0) {
        return;
    }
    std::size_t length = text.size();
    while (length >= capacity) {
        const std::size_t previousEnd = length < 2 ? std::string::npos : text.rfind('\n', length - 2);
        length = previousEnd == std::string::npos ? 0 : previousEnd + 1;
    }
    std::copy_n(text.begin(), length, buffer);
    buffer[length] = '\0';
}

}  // namespace corvane::standin
