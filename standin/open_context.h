#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "provider/provider_functions.h"
#include "standin/error_stack.h"
#include "standin/search_plan.h"
#include "standin/served_certificate.h"
#include "standin/standin_system.h"

namespace corvane::standin {

/// One open cryptocontext: the certificates it searches and its error stack. A store is read once, the local
/// one when the context is opened and the network one when it is first searched.
class OpenContext {
  public:
    explicit OpenContext(std::uint32_t openFlags) : openFlags_(openFlags) {}

    [[nodiscard]] std::uint32_t OpenFlags() const { return openFlags_; }
    [[nodiscard]] ErrorStack& Errors() { return errors_; }

    /// Reads a store unless that was done before. False when it cannot be reached; the next call tries again.
    /// A certificate that is in both stores belongs to the local one. Certificates that are not valid today
    /// are left out.
    [[nodiscard]] bool Load(CertificateStore store, const StandInSystem& system);

    /// The certificates that answer a query, in the order of the stores; their addresses stay until the
    /// context is closed.
    [[nodiscard]] std::vector<const ServedCertificate*> Find(const provider::CertQuery& query,
                                                             const SearchPlan& plan,
                                                             const StandInSystem& system) const;

  private:
    [[nodiscard]] bool IsLoaded(CertificateStore store) const;

    std::uint32_t openFlags_;
    ErrorStack errors_;
    std::vector<ServedCertificate> local_;
    std::vector<ServedCertificate> network_;
    bool isLocalLoaded_ = false;
    bool isNetworkLoaded_ = false;
};

}  // namespace corvane::standin
