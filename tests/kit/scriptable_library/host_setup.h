#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "store/records.h"

namespace corvane::test {

/// What certificate_host.exe shows when its button is pressed.
struct HostSetup {
    enum class Dialog {
        kRecipients,
        kSignerLists,
        kWaitWindow,  ///< Nothing but the wait window; it stays until the button is pressed again.
    };

    Dialog dialog = Dialog::kRecipients;
    /// The CS profile that the choice is made under; the profile has another one before it.
    store::CsProfile csProfile;
    /// What the recipients dialog starts with.
    store::TextList recipients;
    /// What the signer lists dialog starts with.
    std::vector<store::SignerGroup> lists;
};

/// The file beside certificate_host.exe that a setup is written to and read from, one JSON object. None is a
/// setup as it stands above; reading throws std::exception for another member or value than those that are
/// written.
inline constexpr wchar_t kHostSetupFile[] = L"host_setup.json";
void WriteHostSetup(const HostSetup& setup, const std::filesystem::path& file);
[[nodiscard]] HostSetup ReadHostSetup(const std::filesystem::path& file);

/// What the host shows in kHostResultEdit after the dialog has closed: a line "run <n>: ok" or "run <n>:
/// cancelled" and, after OK, a line for each recipient, or for each list "list <name>" with its signers in
/// the lines after it, each after a tab. It is empty while the dialog runs.
[[nodiscard]] std::wstring HostResult(int run, const store::TextList& recipients);
[[nodiscard]] std::wstring HostResult(int run, const std::vector<store::SignerGroup>& lists);
[[nodiscard]] std::wstring HostCancelled(int run);

inline constexpr int kHostOpenButton = 10;
inline constexpr int kHostResultEdit = 11;
inline constexpr wchar_t kHostTitle[] = L"Certificate host";

}  // namespace corvane::test
