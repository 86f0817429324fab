#include "standin/crypt_decoding.h"

#include <algorithm>
#include <cwchar>

namespace corvane::standin {
namespace {

struct RevocationListFreer {
    void operator()(const CRL_CONTEXT* list) const { CertFreeCRLContext(list); }
};
using RevocationListHandle = std::unique_ptr<const CRL_CONTEXT, RevocationListFreer>;

struct LocalFreer {
    void operator()(void* memory) const { LocalFree(memory); }
};

Bytes BytesOf(const CRYPT_INTEGER_BLOB& blob) {
    return {blob.pbData, blob.pbData + blob.cbData};
}

std::wstring ValueOf(const CERT_RDN_ATTR& attribute) {
    if (attribute.dwValueType == CERT_RDN_ENCODED_BLOB || attribute.dwValueType == CERT_RDN_OCTET_STRING) {
        constexpr std::wstring_view kDigits = L"0123456789ABCDEF";
        std::wstring digits = L"#";
        for (DWORD index = 0; index < attribute.Value.cbData; ++index) {
            digits += kDigits[attribute.Value.pbData[index] >> 4];
            digits += kDigits[attribute.Value.pbData[index] & 0xF];
        }
        return digits;
    }
    std::wstring text(attribute.Value.cbData / sizeof(wchar_t), L'\0');
    std::copy_n(attribute.Value.pbData, text.size() * sizeof(wchar_t), reinterpret_cast<BYTE*>(text.data()));
    // Wine 8 counts the ending NUL of a UTF8String into the size, Windows does not.
    if (text.ends_with(L'\0')) {
        text.pop_back();
    }
    return text;
}

std::vector<NameAttribute> AttributesOf(const CERT_NAME_BLOB& name) {
    CERT_NAME_INFO* info = nullptr;
    DWORD size = 0;
    if (CryptDecodeObjectEx(X509_ASN_ENCODING, X509_UNICODE_NAME, name.pbData, name.cbData,
                            CRYPT_DECODE_ALLOC_FLAG, nullptr, static_cast<void*>(&info), &size) == FALSE) {
        return {};
    }
    const std::unique_ptr<CERT_NAME_INFO, LocalFreer> owned(info);
    std::vector<NameAttribute> attributes;
    for (DWORD index = 0; index < info->cRDN; ++index) {
        const CERT_RDN& group = info->rgRDN[index];
        for (DWORD member = 0; member < group.cRDNAttr; ++member) {
            attributes.push_back({group.rgRDNAttr[member].pszObjId, ValueOf(group.rgRDNAttr[member])});
        }
    }
    return attributes;
}

std::optional<std::uint8_t> KeyUsageOf(CERT_INFO& info) {
    BYTE usage = 0;
    if (CertGetIntendedKeyUsage(X509_ASN_ENCODING, &info, &usage, sizeof usage) == FALSE) {
        return std::nullopt;
    }
    return usage;
}

bool IsSignedBy(const CRL_CONTEXT& list, const CERT_CONTEXT& issuer) {
    return CertCompareCertificateName(X509_ASN_ENCODING, &list.pCrlInfo->Issuer,
                                      &issuer.pCertInfo->Subject) != FALSE &&
           CryptVerifyCertificateSignatureEx(
               0, X509_ASN_ENCODING, CRYPT_VERIFY_CERT_SIGN_SUBJECT_CRL, const_cast<CRL_CONTEXT*>(&list),
               CRYPT_VERIFY_CERT_SIGN_ISSUER_CERT, const_cast<CERT_CONTEXT*>(&issuer), 0, nullptr) != FALSE;
}

}  // namespace

CertificateHandle OpenCertificate(const Bytes& encoded) {
    return CertificateHandle(
        CertCreateCertificateContext(X509_ASN_ENCODING, encoded.data(), static_cast<DWORD>(encoded.size())));
}

DecodedCertificate DecodeCertificate(const CERT_CONTEXT& certificate) {
    CERT_INFO& info = *certificate.pCertInfo;
    DecodedCertificate decoded;
    decoded.encoded = {certificate.pbCertEncoded, certificate.pbCertEncoded + certificate.cbCertEncoded};
    decoded.subject = AttributesOf(info.Subject);
    decoded.issuer = AttributesOf(info.Issuer);
    decoded.encodedIssuer = BytesOf(info.Issuer);
    decoded.serial = BytesOf(info.SerialNumber);
    decoded.keyUsage = KeyUsageOf(info);
    decoded.isValidNow = CertVerifyTimeValidity(nullptr, &info) == 0;
    return decoded;
}

void DecodeRevocationList(const Bytes& encoded, const std::vector<CertificateHandle>& issuers,
                          RevocationFile& file) {
    const RevocationListHandle list(
        CertCreateCRLContext(X509_ASN_ENCODING, encoded.data(), static_cast<DWORD>(encoded.size())));
    if (list == nullptr) {
        file.refusal = "not a certificate revocation list";
        return;
    }
    if (CertVerifyCRLTimeValidity(nullptr, list->pCrlInfo) != 0) {
        file.refusal = "its period is over or has not begun";
        return;
    }
    const bool isSigned = std::any_of(issuers.begin(), issuers.end(), [&](const CertificateHandle& issuer) {
        return IsSignedBy(*list, *issuer);
    });
    if (!isSigned) {
        file.refusal = "no issuer certificate beside it verifies its signature";
        return;
    }
    file.encodedIssuer = BytesOf(list->pCrlInfo->Issuer);
    for (DWORD index = 0; index < list->pCrlInfo->cCRLEntry; ++index) {
        file.revokedSerials.push_back(BytesOf(list->pCrlInfo->rgCRLEntry[index].SerialNumber));
    }
}

}  // namespace corvane::standin
