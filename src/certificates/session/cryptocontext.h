#pragma once

#include <cstdint>
#include <string>

#include "provider/provider_functions.h"
#include "reporting/error_reporter.h"
#include "store/records.h"
#include "toolkit/system/input_gate.h"
#include "toolkit/system/window_handle.h"

namespace corvane::certificates {

/// Whose certificates are looked for.
enum class CertificateUse { kRecipients, kSigners };

/// The settings with which a cryptocontext is opened and searched. A flag is set when it is not zero.
struct CertSearchSettings {
    std::wstring groupFolder;            ///< Where the choice of group files begins; empty where nobody says.
    std::int32_t reportWithContext = 0;  ///< Failed searches are reported with the provider's error stack.
    std::int32_t autoUseTimeStamp = 0;   ///< "AutoUseTSP"
    std::int32_t notAddCertificate = 0;  ///< "NotAddCert"
    std::int32_t notLoadCrl = 0;         ///< "NotLoadCrl"
    std::int32_t notCopyToLocal = 0;     ///< "NotCopyToLocal"
    std::int32_t notUseDirectory = 0;    ///< "NotUseLDAP"
    std::wstring timeStampServer;        ///< "ServerTSP"
    std::int32_t autoVerifyTimeStamp = 0;  ///< "AutoVerifyTSP"
    std::int32_t noTimeStampIsError = 0;   ///< "NoTSPisError"
    std::int32_t useAuthorityAccess = 0;   ///< "UseAIA"
    std::int32_t signerMode = 1;           ///< 1 for the certificates of signers, 0 for those of recipients.

    bool operator==(const CertSearchSettings&) const = default;
};

/// The settings of a CS profile, for looking for certificates of the given use.
[[nodiscard]] CertSearchSettings SearchSettingsOf(const store::CsProfile& csProfile, CertificateUse use);

/// The flags with which XSIG_Initialize opens a cryptocontext of these settings.
[[nodiscard]] std::uint32_t InitialisationFlags(const CertSearchSettings& settings);

/// Owns an open cryptocontext and closes it, also on every early way out. A close that fails is reported to
/// `owner`, and the context counts as closed all the same.
///
/// The functions, the reporter, the gate and what they refer to must outlive it.
class Cryptocontext {
  public:
    /// Takes over `context`, just opened; 0 stands for none, and then there is nothing to close.
    Cryptocontext(const provider::ProviderFunctions& provider, provider::ProviderContext context,
                  reporting::ErrorReporter& reporter, toolkit::WindowHandle owner, toolkit::InputGate& input);
    ~Cryptocontext() { Close(); }
    Cryptocontext(const Cryptocontext&) = delete;
    Cryptocontext& operator=(const Cryptocontext&) = delete;
    Cryptocontext(Cryptocontext&& other) noexcept;
    Cryptocontext& operator=(Cryptocontext&&) = delete;

    [[nodiscard]] provider::ProviderContext Get() const { return context_; }
    [[nodiscard]] const provider::ProviderFunctions& Provider() const { return provider_; }
    /// The gate to be shut while a call with this context may take long.
    [[nodiscard]] toolkit::InputGate& Input() const { return input_; }

    /// Closes the cryptocontext (XSIG_Uninitialize).
    void Close();

    /// Lets go of the cryptocontext without closing it.
    void Drop() { context_ = 0; }

  private:
    [[nodiscard]] std::uint32_t Uninitialize(provider::ProviderContext context) const;

    const provider::ProviderFunctions& provider_;
    provider::ProviderContext context_;
    reporting::ErrorReporter& reporter_;
    toolkit::WindowHandle owner_;
    toolkit::InputGate& input_;
};

}  // namespace corvane::certificates
