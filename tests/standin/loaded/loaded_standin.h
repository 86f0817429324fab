#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "provider/provider_functions.h"

namespace corvane::standin {

/// What an environment variable of the test names, as a path that Windows takes.
[[nodiscard]] std::wstring PathFromEnvironment(const wchar_t* variable);

[[nodiscard]] std::string ToCodePage(std::wstring_view text);

/// One found certificate, copied out of a result.
struct FoundCertificate {
    std::string owner;
    std::string issuer;
    std::uint8_t usage = 0;
    std::vector<std::uint8_t> serial;
};

/// One entry of an error stack.
struct FoundError {
    std::string text;
    std::string data;
};

/// The stand-in, loaded from a folder of its own with copies of the made certificates, in a process whose
/// HKEY_CURRENT_USER is a fresh key with one CS profile, "Clearing". Both are gone when it ends.
class LoadedStandIn {
  public:
    LoadedStandIn();
    ~LoadedStandIn();
    LoadedStandIn(const LoadedStandIn&) = delete;
    LoadedStandIn& operator=(const LoadedStandIn&) = delete;
    LoadedStandIn(LoadedStandIn&&) = delete;
    LoadedStandIn& operator=(LoadedStandIn&&) = delete;

    /// The folder "certificates" beside the library, with a trailing backslash.
    [[nodiscard]] const std::wstring& Certificates() const { return certificates_; }
    [[nodiscard]] HMODULE Module() const { return module_; }
    [[nodiscard]] const provider::ProviderFunctions& Functions() const { return functions_; }

    /// Adds a CS profile to the catalogue.
    void AddCsProfile(const wchar_t* subkey, const wchar_t* name);

    /// Opens a cryptocontext for "Clearing".
    [[nodiscard]] provider::ProviderContext Open(std::uint32_t flags = 0x80000040);

    /// The status of a search for all fields; match mode 4 where there is a pattern.
    std::uint32_t Search(provider::ProviderContext context, std::uint32_t flags, const char* pattern,
                         std::vector<FoundCertificate>& found);

    /// Pops and releases the whole error stack.
    [[nodiscard]] std::vector<FoundError> PopErrors(provider::ProviderContext context);

  private:
    std::wstring folder_;
    std::wstring certificates_;
    HMODULE module_ = nullptr;
    provider::ProviderFunctions functions_ = {};
    HKEY userKey_ = nullptr;
};

}  // namespace corvane::standin
