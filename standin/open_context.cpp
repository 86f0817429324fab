#include "standin/open_context.h"

#include <optional>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "standin/name_pattern.h"

namespace corvane::standin {
namespace {

/// The bytes of a certificate as a key; the certificate must outlive it.
std::string_view KeyOf(const Bytes& encoded) {
    return {reinterpret_cast<const char*>(encoded.data()), encoded.size()};
}

class OwnerTest {
  public:
    OwnerTest(const provider::CertQuery& query, const SearchPlan& plan, const StandInSystem& system)
        : use_(plan.patternUse),
          text_(use_ == PatternUse::kNone ? std::wstring() : system.WidenUpper(query.ownerPattern)),
          pattern_(text_) {}

    [[nodiscard]] bool Passes(const ComparableName& name) const {
        switch (use_) {
            case PatternUse::kVerbatim:
                return name.text == text_;
            case PatternUse::kWildcard:
                return pattern_.Matches(name);
            case PatternUse::kNone:
                break;
        }
        return true;
    }

  private:
    PatternUse use_;
    std::wstring text_;
    NamePattern pattern_;
};

}  // namespace

bool OpenContext::IsLoaded(CertificateStore store) const {
    return store == CertificateStore::kLocal ? isLocalLoaded_ : isNetworkLoaded_;
}

bool OpenContext::Load(CertificateStore store, const StandInSystem& system) {
    if (IsLoaded(store)) {
        return true;
    }
    const std::optional<std::vector<DecodedCertificate>> decoded = system.Certificates(store);
    if (!decoded) {
        return false;
    }
    std::unordered_set<std::string_view> known;
    for (const ServedCertificate& certificate : local_) {
        known.insert(KeyOf(certificate.encoded));
    }
    std::vector<ServedCertificate> loaded;
    for (const DecodedCertificate& certificate : *decoded) {
        if (certificate.isValidNow && known.insert(KeyOf(certificate.encoded)).second) {
            loaded.push_back(PrepareCertificate(certificate, system));
        }
    }
    if (store == CertificateStore::kLocal) {
        local_ = std::move(loaded);
        isLocalLoaded_ = true;
    } else {
        network_ = std::move(loaded);
        isNetworkLoaded_ = true;
    }
    return true;
}

std::vector<const ServedCertificate*> OpenContext::Find(const provider::CertQuery& query,
                                                        const SearchPlan& plan,
                                                        const StandInSystem& system) const {
    const OwnerTest test(query, plan, system);
    std::vector<const ServedCertificate*> found;
    const auto collect = [&](const std::vector<ServedCertificate>& store) {
        for (const ServedCertificate& certificate : store) {
            if (test.Passes(certificate.name)) {
                found.push_back(&certificate);
            }
        }
    };
    collect(local_);
    if (plan.includesNetwork) {
        collect(network_);
    }
    return found;
}

}  // namespace corvane::standin
