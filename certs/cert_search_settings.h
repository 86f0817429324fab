#pragma once

#include <cstdint>
#include <string>

#include "config/records.h"

namespace corvane {

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
[[nodiscard]] CertSearchSettings SearchSettingsOf(const CsProfile& csProfile, CertificateUse use);

/// The flags with which XSIG_Initialize opens a cryptocontext of these settings.
[[nodiscard]] std::uint32_t InitialisationFlags(const CertSearchSettings& settings);

}  // namespace corvane
