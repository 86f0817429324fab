#pragma once

#include <array>
#include <string>

#include "res/ids.h"
#include "tests/certificates/certificate_test.h"
#include "tests/driver/failure.h"
#include "tests/driver/waiting.h"
#include "tests/windows/editor_test.h"

namespace corvane::test {

inline constexpr wchar_t kRefreshTimesValue[] = L"LastCrlUpdate";
inline constexpr wchar_t kRefreshTimesKey[] = L"tarntray";
inline constexpr wchar_t kOpeningOperation[] = L"Cryptocontext initialization";
inline constexpr wchar_t kClosingOperation[] = L"Cryptocontext uninitialization";
inline constexpr char kLastSearchOfCheck[] =
    "FindCert context=1 flags=E04 mode=0 pattern=\"CN=QQQ,C=RU\" fields=4 rest=zero -> ";

/// A test of what happens between the press of a certificate button and the dialog that it leads to.
class SessionTest : public CertificateTest {
  protected:
    /// The CS profile uses neither the network store nor revocation lists, so nothing is checked.
    void CheckNothing() {
        setup.csProfile.notUseDirectory = 1;
        setup.csProfile.notLoadCrl = 1;
    }
    /// Only the network store is checked.
    void CheckNetworkStoreOnly() {
        setup.csProfile.notUseDirectory = 0;
        setup.csProfile.notLoadCrl = 1;
    }
    /// Only the revocation lists are refreshed, every 24 hours.
    void RefreshListsOnly() {
        setup.csProfile.notUseDirectory = 1;
        setup.csProfile.notLoadCrl = 0;
        setup.csProfile.crlUpdatePeriod = 24;
    }

    /// Leaves a dialog of the host by a button and waits until the host is back.
    std::wstring Leave(const driver::Window& dialog, int button) const {
        dialog.Control(button).PostClick();
        return Result();
    }

    /// Opens the dialog and leaves it by Cancel.
    void OpenAndCancel() const { EXPECT_EQ(Leave(OpenDialog(), IDCANCEL), HostCancelled(1)); }

    /// The report of a provider's status in the program's words.
    static std::wstring ProviderReport(const std::wstring& operation, const std::wstring& status,
                                       const std::wstring& description, const std::wstring& detail = L"") {
        return operation + L".\r\nXSIG error " + status + L" - " + description + L"." + detail;
    }
};

/// What the functions that open, check and close a cryptocontext are called with, in order; the calls for
/// error texts and freed memory are left out.
inline std::vector<std::string> MainCalls(const std::vector<std::string>& calls) {
    std::vector<std::string> main;
    for (const std::string& call : calls) {
        for (const char* function :
             {"Initialize ", "Uninitialize ", "Ctrl ", "FindCert ", "FreeFindResult "}) {
            if (call.starts_with(function)) {
                main.push_back(call);
            }
        }
    }
    return main;
}

}  // namespace corvane::test
