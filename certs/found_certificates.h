#pragma once

#include <cstdint>
#include <span>

#include "certs/provider/provider_functions.h"

namespace corvane {

/// One search, and what it found. What the library hands out goes back to it with the end of this object,
/// after a failed search too (XSIG_FindCert, XSIG_FreeFindResult).
class FoundCertificates {
  public:
    FoundCertificates(const ProviderFunctions& provider, ProviderContext context, CertQuery query)
        : provider_(provider), context_(context), status_(provider.findCert(context, &query, &result_)) {}
    ~FoundCertificates() { provider_.freeFindResult(context_, &result_); }
    FoundCertificates(const FoundCertificates&) = delete;
    FoundCertificates& operator=(const FoundCertificates&) = delete;
    FoundCertificates(FoundCertificates&&) = delete;
    FoundCertificates& operator=(FoundCertificates&&) = delete;

    [[nodiscard]] std::uint32_t Status() const { return status_; }

    /// The certificates of a search that succeeded; none where the library gives no array.
    [[nodiscard]] std::span<const CertEntry> Entries() const {
        return status_ == 0 && result_.entries != nullptr
                   ? std::span<const CertEntry>(result_.entries, result_.count)
                   : std::span<const CertEntry>();
    }

  private:
    const ProviderFunctions& provider_;
    ProviderContext context_;
    CertFindResult result_;
    std::uint32_t status_;
};

}  // namespace corvane
