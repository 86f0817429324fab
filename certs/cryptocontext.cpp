#include "certs/cryptocontext.h"

#include <utility>

namespace corvane {

Cryptocontext::Cryptocontext(const ProviderFunctions& provider, ProviderContext context,
                             ErrorReporter& reporter, toolkit::WindowHandle owner)
    : provider_(provider), context_(context), reporter_(reporter), owner_(owner) {}

Cryptocontext::Cryptocontext(Cryptocontext&& other) noexcept
    : provider_(other.provider_),
      context_(std::exchange(other.context_, 0)),
      reporter_(other.reporter_),
      owner_(other.owner_) {}

void Cryptocontext::Close() {
    // Cleared first: while the report is shown, nobody may find a context that is gone.
    const ProviderContext context = std::exchange(context_, 0);
    if (context == 0) {
        return;
    }
    if (const std::uint32_t status = provider_.uninitialize(context); status != 0) {
        reporter_.ReportError(owner_, ProviderContext{}, kShowReport, status,
                              "Cryptocontext uninitialization", nullptr, nullptr);
    }
}

}  // namespace corvane
