#pragma once

#include <windows.h>
// wincrypt.h needs windows.h before it.
#include <wincrypt.h>

#include <memory>
#include <string>
#include <vector>

#include "standin/standin_system.h"

namespace corvane::standin {

struct CertificateFreer {
    void operator()(const CERT_CONTEXT* certificate) const { CertFreeCertificateContext(certificate); }
};
using CertificateHandle = std::unique_ptr<const CERT_CONTEXT, CertificateFreer>;

/// The certificate that `encoded` holds, or null (CertCreateCertificateContext).
[[nodiscard]] CertificateHandle OpenCertificate(const Bytes& encoded);

/// Reads out what searches need of a certificate (CryptDecodeObject, CertGetIntendedKeyUsage,
/// CertVerifyTimeValidity).
[[nodiscard]] DecodedCertificate DecodeCertificate(const CERT_CONTEXT& certificate);

/// Reads a CRL into `file`, or says there why it is refused (CertCreateCRLContext, CertVerifyCRLTimeValidity,
/// CryptVerifyCertificateSignatureEx). `issuers` are the certificates that may have signed it.
void DecodeRevocationList(const Bytes& encoded, const std::vector<CertificateHandle>& issuers,
                          RevocationFile& file);

}  // namespace corvane::standin
