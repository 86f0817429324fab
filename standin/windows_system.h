#pragma once

#include <string>

#include "standin/standin_system.h"

namespace corvane::standin {

/// Windows as the stand-in uses it: certificates through the system's certificate interfaces (crypt32), from
/// the current user's stores and from the folders beside the library:
///   certificates\local    *.cer, *.crt, *.pem: added to the current user's stores "MY" and "AddressBook"
///   certificates\network  the same kinds of files, the network store
///   certificates\crl      *.crl, and the certificates of their issuers
class WindowsSystem final : public StandInSystem {
  public:
    WindowsSystem();

    [[nodiscard]] bool HasCsProfile(std::string_view name) const override;
    [[nodiscard]] std::optional<std::vector<DecodedCertificate>> Certificates(
        CertificateStore store) const override;

    /// A list is refused when it is no list, when its period is over, or when no issuer certificate beside it
    /// verifies its signature.
    [[nodiscard]] std::optional<std::vector<RevocationFile>> RevocationFiles() const override;
    [[nodiscard]] std::string NetworkFolder() const override;
    [[nodiscard]] std::string RevocationFolder() const override;
    [[nodiscard]] std::string Narrow(std::wstring_view text) const override;
    [[nodiscard]] std::wstring WidenUpper(std::string_view text) const override;

  private:
    std::wstring folder_;  ///< "certificates" beside the library, with a trailing backslash.
};

}  // namespace corvane::standin
