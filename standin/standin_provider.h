#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "certs/provider/provider_records.h"
#include "standin/error_stack.h"
#include "standin/handed_out_results.h"
#include "standin/handed_out_texts.h"
#include "standin/open_context.h"
#include "standin/revocations.h"
#include "standin/standin_system.h"

namespace corvane::standin {

/// The crypto provider's contract, kept by a stand-in: its methods are the library's functions. Statuses and
/// texts are in status_texts.h. Calls must not overlap.
class StandInProvider {
  public:
    /// `system` must outlive the provider.
    explicit StandInProvider(const StandInSystem& system) : system_(system) {}

    /// Opens a context for a CS profile of the registry's catalogue and reads the local store.
    [[nodiscard]] std::uint32_t Initialize(const char* csProfileName, std::uint32_t flags,
                                           ProviderContext* context);
    [[nodiscard]] std::uint32_t Uninitialize(ProviderContext context);

    /// Code 4: loads the CRL files and writes a line about each into the buffer. Certificates that they
    /// revoke are served no more, neither in this context nor in later ones.
    [[nodiscard]] std::uint32_t Control(ProviderContext context, std::uint32_t code, XsigBlob* buffer);

    /// `result` is empty after any status but 0.
    [[nodiscard]] std::uint32_t FindCert(ProviderContext context, const CertQuery* query,
                                         CertFindResult* result);
    [[nodiscard]] std::uint32_t FreeFindResult(ProviderContext context, CertFindResult* result);

    /// Non-zero on success. A description that is too long for the buffer is cut.
    [[nodiscard]] static std::uint32_t GetErrorText(std::uint32_t status, char* buffer,
                                                    std::uint32_t capacity);
    [[nodiscard]] std::uint32_t GetErrorLine(ProviderContext context, XsigBlob* text, XsigBlob* file,
                                             std::uint32_t* line, XsigBlob* data);
    [[nodiscard]] std::uint32_t FreeMem(ProviderContext context, void* memory);

    /// How much callers hold that they have not released: texts and search results.
    [[nodiscard]] std::size_t HandedOutCount() const { return texts_.Count() + results_.Count(); }

  private:
    [[nodiscard]] OpenContext* Find(ProviderContext context);
    [[nodiscard]] std::uint32_t LoadRevocations(OpenContext& open, XsigBlob& buffer);

    const StandInSystem& system_;
    std::map<ProviderContext, std::unique_ptr<OpenContext>> contexts_;
    /// Handles need more than 32 bits, so that a caller that keeps only half of one is found out.
    ProviderContext lastContext_ = 0x5A1000000000;
    ErrorStack initializeErrors_;
    Revocations revocations_;
    HandedOutTexts texts_;
    HandedOutResults results_;
};

}  // namespace corvane::standin
