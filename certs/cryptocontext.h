#pragma once

#include "app/reporting/error_reporter.h"
#include "certs/provider/provider_functions.h"
#include "toolkit/input_gate.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// Owns an open cryptocontext and closes it, also on every early way out. A close that fails is reported to
/// `owner`, and the context counts as closed all the same.
///
/// The functions, the reporter, the gate and what they refer to must outlive it.
class Cryptocontext {
  public:
    /// Takes over `context`, just opened; 0 stands for none, and then there is nothing to close.
    Cryptocontext(const ProviderFunctions& provider, ProviderContext context, ErrorReporter& reporter,
                  toolkit::WindowHandle owner, toolkit::InputGate& input);
    ~Cryptocontext() { Close(); }
    Cryptocontext(const Cryptocontext&) = delete;
    Cryptocontext& operator=(const Cryptocontext&) = delete;
    Cryptocontext(Cryptocontext&& other) noexcept;
    Cryptocontext& operator=(Cryptocontext&&) = delete;

    [[nodiscard]] ProviderContext Get() const { return context_; }
    [[nodiscard]] const ProviderFunctions& Provider() const { return provider_; }
    /// The gate to be shut while a call with this context may take long.
    [[nodiscard]] toolkit::InputGate& Input() const { return input_; }

    /// Closes the cryptocontext (XSIG_Uninitialize).
    void Close();

    /// Lets go of the cryptocontext without closing it.
    void Drop() { context_ = 0; }

  private:
    [[nodiscard]] std::uint32_t Uninitialize(ProviderContext context) const;

    const ProviderFunctions& provider_;
    ProviderContext context_;
    ErrorReporter& reporter_;
    toolkit::WindowHandle owner_;
    toolkit::InputGate& input_;
};

}  // namespace corvane
