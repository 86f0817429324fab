#include "standin/handed_out_results.h"

#include <utility>

namespace corvane::standin {

void HandedOutResults::HandOut(const std::vector<const ServedCertificate*>& certificates,
                               const SearchPlan& plan, provider::CertFindResult& result) {
    auto handed = std::make_unique<Result>();
    handed->entries.resize(certificates.size());
    for (std::size_t index = 0; index < certificates.size(); ++index) {
        const ServedCertificate& certificate = *certificates[index];
        provider::CertEntry& entry = handed->entries[index];
        if (plan.wantsOwner) {
            entry.owner = handed->texts.emplace_back(certificate.owner).c_str();
        }
        if (plan.wantsUsage) {
            entry.usage = certificate.usage;
        }
        if (plan.wantsIssuer) {
            entry.issuer = handed->texts.emplace_back(certificate.issuer).c_str();
        }
        if (plan.wantsSerial) {
            entry.serial = handed->serials.emplace_back(certificate.serial).data();
            entry.serialLength = static_cast<std::uint32_t>(certificate.serial.size());
        }
    }
    result.count = static_cast<std::uint32_t>(handed->entries.size());
    result.entries = handed->entries.data();
    results_.emplace(result.entries, std::move(handed));
}

bool HandedOutResults::Release(provider::CertFindResult& result) {
    if (result.entries == nullptr) {
        result.count = 0;
        return true;
    }
    if (results_.erase(result.entries) == 0) {
        return false;
    }
    result = {};
    return true;
}

}  // namespace corvane::standin
