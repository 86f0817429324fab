#include "certificates/session/cryptocontext.h"

#include <utility>

namespace corvane::certificates {

CertSearchSettings SearchSettingsOf(const store::CsProfile& csProfile, CertificateUse use) {
    CertSearchSettings settings;
    settings.autoUseTimeStamp = csProfile.autoUseTimeStamp;
    settings.notAddCertificate = csProfile.notAddCertificate;
    settings.notLoadCrl = csProfile.notLoadCrl;
    settings.notCopyToLocal = csProfile.notCopyToLocal;
    settings.notUseDirectory = csProfile.notUseDirectory;
    settings.timeStampServer = csProfile.timeStampServer;
    settings.autoVerifyTimeStamp = csProfile.autoVerifyTimeStamp;
    settings.noTimeStampIsError = csProfile.noTimeStampIsError;
    settings.useAuthorityAccess = csProfile.useAuthorityAccess;
    settings.signerMode = use == CertificateUse::kSigners ? 1 : 0;
    return settings;
}

std::uint32_t InitialisationFlags(const CertSearchSettings& settings) {
    constexpr std::uint32_t kBase = 0x80000040;
    constexpr std::uint32_t kBaseNotCopyToLocal = 0x80000060;
    std::uint32_t flags = settings.notCopyToLocal != 0 ? kBaseNotCopyToLocal : kBase;
    if (settings.useAuthorityAccess != 0) {
        flags |= 0x400U;
    }
    if (settings.notUseDirectory != 0) {
        flags |= 0x4U;
    }
    if (settings.notLoadCrl != 0) {
        flags |= 0x1U;
    }
    return flags;
}

Cryptocontext::Cryptocontext(const provider::ProviderFunctions& provider, provider::ProviderContext context,
                             reporting::ErrorReporter& reporter, toolkit::WindowHandle owner,
                             toolkit::InputGate& input)
    : provider_(provider), context_(context), reporter_(reporter), owner_(owner), input_(input) {}

Cryptocontext::Cryptocontext(Cryptocontext&& other) noexcept
    : provider_(other.provider_),
      context_(std::exchange(other.context_, 0)),
      reporter_(other.reporter_),
      owner_(other.owner_),
      input_(other.input_) {}

void Cryptocontext::Close() {
    // Cleared first: while the report is shown, nobody may find a context that is gone.
    const provider::ProviderContext context = std::exchange(context_, 0);
    if (context == 0) {
        return;
    }
    if (const std::uint32_t status = Uninitialize(context); status != 0) {
        reporter_.ReportError(owner_, provider::ProviderContext{}, reporting::kShowReport, status,
                              "Cryptocontext uninitialization", nullptr, nullptr);
    }
}

std::uint32_t Cryptocontext::Uninitialize(provider::ProviderContext context) const {
    const toolkit::ShutInput shut(input_);
    return provider_.uninitialize(context);
}

}  // namespace corvane::certificates
