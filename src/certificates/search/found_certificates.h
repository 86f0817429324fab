#pragma once

#include <cstdint>
#include <span>

#include "certificates/session/cryptocontext.h"
#include "provider/provider_functions.h"
#include "toolkit/system/input_gate.h"

namespace corvane::certificates {

/// One search, and what it found. What the library hands out goes back to it with the end of this object,
/// after a failed search too (XSIG_FindCert, XSIG_FreeFindResult). The user is kept out while it searches.
class FoundCertificates {
  public:
    FoundCertificates(const Cryptocontext& context, provider::CertQuery query)
        : provider_(context.Provider()), context_(context.Get()), status_(Find(query, context.Input())) {}
    ~FoundCertificates() { provider_.freeFindResult(context_, &result_); }
    FoundCertificates(const FoundCertificates&) = delete;
    FoundCertificates& operator=(const FoundCertificates&) = delete;
    FoundCertificates(FoundCertificates&&) = delete;
    FoundCertificates& operator=(FoundCertificates&&) = delete;

    [[nodiscard]] std::uint32_t Status() const { return status_; }

    /// The certificates of a search that succeeded; none where the library gives no array.
    [[nodiscard]] std::span<const provider::CertEntry> Entries() const {
        return status_ == 0 && result_.entries != nullptr
                   ? std::span<const provider::CertEntry>(result_.entries, result_.count)
                   : std::span<const provider::CertEntry>();
    }

  private:
    [[nodiscard]] std::uint32_t Find(provider::CertQuery& query, toolkit::InputGate& input) {
        const toolkit::ShutInput shut(input);
        return provider_.findCert(context_, &query, &result_);
    }

    const provider::ProviderFunctions& provider_;
    provider::ProviderContext context_;
    provider::CertFindResult result_;
    std::uint32_t status_;
};

}  // namespace corvane::certificates
