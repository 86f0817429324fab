#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "provider/provider_functions.h"
#include "standin/search_plan.h"
#include "standin/served_certificate.h"

namespace corvane::standin {

/// The search results that callers hold, known by the address of their entries. Each has copies of its own,
/// so that it outlives its cryptocontext, and a use after its release is one that memory checkers see.
class HandedOutResults {
  public:
    /// Fills `result` with the wanted fields of the certificates.
    void HandOut(const std::vector<const ServedCertificate*>& certificates, const SearchPlan& plan,
                 provider::CertFindResult& result);

    /// Releases a result and empties it. An empty result is released any number of times. False when the
    /// entries are none of ours, which changes nothing.
    [[nodiscard]] bool Release(provider::CertFindResult& result);

    [[nodiscard]] std::size_t Count() const { return results_.size(); }

  private:
    struct Result {
        std::vector<provider::CertEntry> entries;
        std::deque<std::string> texts;
        std::deque<Bytes> serials;
    };

    std::unordered_map<const provider::CertEntry*, std::unique_ptr<Result>> results_;
};

}  // namespace corvane::standin
