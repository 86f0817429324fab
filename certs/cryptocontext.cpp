#include "certs/cryptocontext.h"

#include <utility>

namespace corvane {

Cryptocontext::Cryptocontext(const ProviderFunctions& provider, ProviderContext context,
                             ErrorReporter& reporter, toolkit::WindowHandle owner, toolkit::InputGate& input)
    : provider_(provider), context_(context), reporter_(reporter), owner_(owner), input_(input) {}

Cryptocontext::Cryptocontext(Cryptocontext&& other) noexcept
    : provider_(other.provider_),
      context_(std::exchange(other.context_, 0)),
      reporter_(other.reporter_),
      owner_(other.owner_),
      input_(other.input_) {}

void Cryptocontext::Close() {
    // Cleared first: while the report is shown, nobody may find a context that is gone.
    const ProviderContext context = std::exchange(context_, 0);
    if (context == 0) {
        return;
    }
    if (const std::uint32_t status = Uninitialize(context); status != 0) {
        reporter_.ReportError(owner_, ProviderContext{}, kShowReport, status,
                              "Cryptocontext uninitialization", nullptr, nullptr);
    }
}

std::uint32_t Cryptocontext::Uninitialize(ProviderContext context) const {
    const toolkit::ShutInput shut(input_);
    return provider_.uninitialize(context);
}

}  // namespace corvane
