#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "provider/provider_functions.h"
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
                                           provider::ProviderContext* context);
    [[nodiscard]] std::uint32_t Uninitialize(provider::ProviderContext context);

    /// Code 4: loads the CRL files and writes a line about each into the buffer. Certificates that they
    /// revoke are served no more, neither in this context nor in later ones.
    [[nodiscard]] std::uint32_t Control(provider::ProviderContext context, std::uint32_t code,
                                        provider::XsigBlob* buffer);

    /// `result` is empty after any status but 0.
    [[nodiscard]] std::uint32_t FindCert(provider::ProviderContext context, const provider::CertQuery* query,
                                         provider::CertFindResult* result);
    [[nodiscard]] std::uint32_t FreeFindResult(provider::ProviderContext context,
                                               provider::CertFindResult* result);

    /// Non-zero on success. A description that is too long for the buffer is cut.
    [[nodiscard]] static std::uint32_t GetErrorText(std::uint32_t status, char* buffer,
                                                    std::uint32_t capacity);
    [[nodiscard]] std::uint32_t GetErrorLine(provider::ProviderContext context, provider::XsigBlob* text,
                                             provider::XsigBlob* file, std::uint32_t* line,
                                             provider::XsigBlob* data);
    [[nodiscard]] std::uint32_t FreeMem(provider::ProviderContext context, void* memory);

    /// How much callers hold that they have not released: texts and search results.
    [[nodiscard]] std::size_t HandedOutCount() const { return texts_.Count() + results_.Count(); }

  private:
    [[nodiscard]] OpenContext* Find(provider::ProviderContext context);
    [[nodiscard]] std::uint32_t LoadRevocations(OpenContext& open, provider::XsigBlob& buffer);

    const StandInSystem& system_;
    std::map<provider::ProviderContext, std::unique_ptr<OpenContext>> contexts_;
    /// Handles need more than 32 bits, so that a caller that keeps only half of one is found out.
    provider::ProviderContext lastContext_ = 0x5A1000000000;
    ErrorStack initializeErrors_;
    Revocations revocations_;
    HandedOutTexts texts_;
    HandedOutResults results_;
};

}  // namespace corvane::standin
