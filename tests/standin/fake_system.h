#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "standin/standin_system.h"

namespace corvane::standin {

inline constexpr std::uint8_t kKeyUsageSigning = 0xC0;
inline constexpr std::uint8_t kKeyUsageEncrypting = 0x30;

/// A system whose stores are what a test puts there. Its code page has ASCII and the Cyrillic letters from A
/// to YA, as 1251 places them; everything else becomes a question mark.
class FakeSystem final : public StandInSystem {
  public:
    [[nodiscard]] bool HasCsProfile(std::string_view name) const override { return name == "Clearing"; }

    [[nodiscard]] std::optional<std::vector<DecodedCertificate>> Certificates(
        CertificateStore store) const override {
        ++(store == CertificateStore::kLocal ? localReads : networkReads);
        return store == CertificateStore::kLocal ? local : network;
    }

    [[nodiscard]] std::optional<std::vector<RevocationFile>> RevocationFiles() const override {
        return revocationFiles;
    }
    [[nodiscard]] std::string NetworkFolder() const override { return "C:\\certificates\\network"; }
    [[nodiscard]] std::string RevocationFolder() const override { return "C:\\certificates\\crl"; }

    [[nodiscard]] std::string Narrow(std::wstring_view text) const override {
        std::string narrow;
        for (const wchar_t unit : text) {
            if (unit < 0x80) {
                narrow += static_cast<char>(unit);
            } else if (unit >= 0x410 && unit <= 0x44F) {
                narrow += static_cast<char>(unit - 0x410 + 0xC0);
            } else {
                narrow += '?';
            }
        }
        return narrow;
    }

    [[nodiscard]] std::wstring WidenUpper(std::string_view text) const override {
        ++conversions;
        std::wstring wide;
        for (const char character : text) {
            auto unit = static_cast<wchar_t>(static_cast<unsigned char>(character));
            if (unit >= 0xC0) {
                unit = unit - 0xC0 + 0x410;
            }
            const bool isLower = (unit >= L'a' && unit <= L'z') || (unit >= 0x430 && unit <= 0x44F);
            wide += isLower ? unit - 0x20 : unit;
        }
        return wide;
    }

    std::optional<std::vector<DecodedCertificate>> local = std::vector<DecodedCertificate>();
    std::optional<std::vector<DecodedCertificate>> network = std::vector<DecodedCertificate>();
    std::optional<std::vector<RevocationFile>> revocationFiles;
    mutable int localReads = 0;
    mutable int networkReads = 0;
    mutable int conversions = 0;
};

/// A certificate of `commonName` of `organization` that is valid today. Its bytes are its serial number.
inline DecodedCertificate CertificateOf(std::wstring commonName, std::wstring organization, Bytes serial,
                                        std::optional<std::uint8_t> keyUsage = kKeyUsageEncrypting) {
    DecodedCertificate certificate;
    certificate.encoded = serial;
    certificate.subject = {
        {"2.5.4.6", L"GB"}, {"2.5.4.10", std::move(organization)}, {"2.5.4.3", std::move(commonName)}};
    certificate.issuer = {{"2.5.4.3", L"Test CA"}};
    certificate.encodedIssuer = {1, 2, 3};
    certificate.serial = std::move(serial);
    certificate.keyUsage = keyUsage;
    certificate.isValidNow = true;
    return certificate;
}

}  // namespace corvane::standin
