#include "certs/cert_search_settings.h"

namespace corvane {

CertSearchSettings SearchSettingsOf(const CsProfile& csProfile, CertificateUse use) {
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

}  // namespace corvane
