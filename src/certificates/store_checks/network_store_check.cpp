#include "certificates/store_checks/network_store_check.h"

#include <string>

#include "certificates/search/found_certificates.h"
#include "certificates/session/provider_call_message.h"

namespace corvane::certificates {

namespace {

std::uint32_t ProbeNetworkStore(const Cryptocontext& context) {
    provider::CertQuery query;
    query.searchFlags = 0xE04;
    query.ownerPattern = "CN=QQQ,C=RU";
    query.fieldsWanted = 4;
    return FoundCertificates(context, query).Status();
}

}  // namespace

NetworkStoreCheck CheckNetworkStore(toolkit::WindowHandle owner, const Cryptocontext& context,
                                    reporting::ErrorReporter& reporter, WarningPresenter& warnings) {
    const std::uint32_t status = ProbeNetworkStore(context);
    if (status == 0 || status == provider::kStatusNothingFound) {
        return NetworkStoreCheck::kAvailable;
    }
    const std::wstring description = DescribeStatus(reporter, status);
    const std::wstring stack = FormatErrorStack(context.Provider(), context.Get(), reporter.Text());
    // Deliberate: "Conneting". Support knows the message so.
    warnings.Show(nullptr,
                  ProviderCallMessage(L"Conneting to network store (NCS)", status, description, stack), {},
                  WarningMode::kWarning);
    return AskToContinue(reporter, owner, L"%s (0x%X).\r\nContinue without NCS?", description, status)
               ? NetworkStoreCheck::kGoOnWithout
               : NetworkStoreCheck::kStop;
}

}  // namespace corvane::certificates
