#include "tests/kit/scriptable_library/handed_out.h"

#include <algorithm>
#include <cstring>

namespace corvane::test {
namespace {

// Shows up in whatever reads past the end of a text.
constexpr char kNoTerminator[] = "<past the end>";

const char* PointerTo(const ScriptText& text) {
    return text ? text->c_str() : nullptr;
}

}  // namespace

provider::XsigBlob HandedOut::Text(const ScriptText& text) {
    if (!text) {
        return {};
    }
    const std::string bytes = *text + kNoTerminator;
    auto memory = std::make_unique<char[]>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), memory.get());
    const provider::XsigBlob blob{static_cast<std::uint32_t>(text->size()), memory.get()};
    texts_[blob.data] = std::move(memory);
    return blob;
}

provider::CertFindResult HandedOut::Result(const std::vector<ScriptCertificate>& certificates) {
    if (certificates.empty()) {
        return {};
    }
    auto found = std::make_unique<FoundCertificates>();
    found->certificates = certificates;
    found->entries.resize(certificates.size());
    for (std::size_t i = 0; i < certificates.size(); ++i) {
        const ScriptCertificate& certificate = found->certificates[i];
        provider::CertEntry& entry = found->entries[i];
        // Whatever has no name in the contract is the library's own, and anything but zero.
        std::memset(static_cast<void*>(&entry), 0xA5, sizeof entry);
        entry.owner = PointerTo(certificate.owner);
        entry.usage = certificate.usage;
        entry.issuer = PointerTo(certificate.issuer);
        entry.serialLength = certificate.serial ? static_cast<std::uint32_t>(certificate.serial->size()) : 0;
        entry.serial = reinterpret_cast<const std::uint8_t*>(PointerTo(certificate.serial));
    }
    const provider::CertFindResult result{static_cast<std::uint32_t>(certificates.size()),
                                          found->entries.data()};
    results_[result.entries] = std::move(found);
    return result;
}

}  // namespace corvane::test
