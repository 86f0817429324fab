#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/certificate_name.h"
#include "standin/pem_text.h"

namespace corvane::standin {

enum class CertificateStore {
    kLocal,    ///< The current user's stores and the folder certificates\local.
    kNetwork,  ///< The folder certificates\network.
};

/// A certificate as the system decodes it.
struct DecodedCertificate {
    Bytes encoded;                       ///< The whole certificate; the same bytes are the same certificate.
    std::vector<NameAttribute> subject;  ///< In encoded order.
    std::vector<NameAttribute> issuer;   ///< In encoded order.
    Bytes encodedIssuer;                 ///< The issuer's name as encoded, by which CRLs refer to it.
    Bytes serial;                        ///< Lowest byte first, as the system keeps it.
    std::optional<std::uint8_t> keyUsage;  ///< First byte of the key usage extension, if there is one.
    bool isValidNow = false;               ///< Today lies in its validity period.
};

/// A certificate revocation list file.
struct RevocationFile {
    std::string fileName;
    std::string refusal;                ///< Why it was refused; empty when it was loaded.
    Bytes encodedIssuer;                ///< Whose certificates it revokes.
    std::vector<Bytes> revokedSerials;  ///< Lowest byte first.
};

/// What the stand-in needs of the system.
class StandInSystem {
  public:
    virtual ~StandInSystem() = default;

    /// True when the registry's catalogue of CS profiles has one with exactly this name (ANSI code page).
    [[nodiscard]] virtual bool HasCsProfile(std::string_view name) const = 0;

    /// The certificates of a store. Files that are no certificates are passed over. Nothing when the store
    /// cannot be reached, as when its folder does not exist.
    [[nodiscard]] virtual std::optional<std::vector<DecodedCertificate>> Certificates(
        CertificateStore store) const = 0;

    /// The CRL files; nothing when their folder does not exist.
    [[nodiscard]] virtual std::optional<std::vector<RevocationFile>> RevocationFiles() const = 0;

    /// The folder of a store or of the CRL files, for messages (ANSI code page).
    [[nodiscard]] virtual std::string NetworkFolder() const = 0;
    [[nodiscard]] virtual std::string RevocationFolder() const = 0;

    /// Converts to the system's ANSI code page.
    [[nodiscard]] virtual std::string Narrow(std::wstring_view text) const = 0;

    /// Converts from the system's ANSI code page and to upper case.
    [[nodiscard]] virtual std::wstring WidenUpper(std::string_view text) const = 0;

  protected:
    StandInSystem() = default;
    StandInSystem(const StandInSystem&) = default;
    StandInSystem& operator=(const StandInSystem&) = default;
    StandInSystem(StandInSystem&&) = default;
    StandInSystem& operator=(StandInSystem&&) = default;
};

}  // namespace corvane::standin
