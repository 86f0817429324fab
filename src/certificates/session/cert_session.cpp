#include "certificates/session/cert_session.h"

#include <string>
#include <utility>

#include "certificates/session/provider_call_message.h"
#include "certificates/store_checks/crl_update.h"
#include "certificates/store_checks/network_store_check.h"
#include "toolkit/system/input_gate.h"

namespace corvane::certificates {

namespace {

// The wait window as long as the call takes, whatever comes of it.
class ShownWaitWindow {
  public:
    ShownWaitWindow(WaitWindow& window, toolkit::WindowHandle parent) : window_(window) {
        window_.Show(parent, kWaitText);
    }
    ~ShownWaitWindow() { window_.Destroy(); }
    ShownWaitWindow(const ShownWaitWindow&) = delete;
    ShownWaitWindow& operator=(const ShownWaitWindow&) = delete;
    ShownWaitWindow(ShownWaitWindow&&) = delete;
    ShownWaitWindow& operator=(ShownWaitWindow&&) = delete;

  private:
    WaitWindow& window_;
};

// Says that an opening is under way, for as long as this object lives.
class UnderWay {
  public:
    explicit UnderWay(SessionOpening& opening) : opening_(opening) { opening_.isUnderWay = true; }
    ~UnderWay() { opening_.isUnderWay = false; }
    UnderWay(const UnderWay&) = delete;
    UnderWay& operator=(const UnderWay&) = delete;
    UnderWay(UnderWay&&) = delete;
    UnderWay& operator=(UnderWay&&) = delete;

  private:
    SessionOpening& opening_;
};

const provider::ProviderFunctions* BindProvider(toolkit::WindowHandle owner, const CertServices& services) {
    const provider::ProviderFunctions* const provider = services.provider.Functions();
    if (provider == nullptr) {
        const provider::ProviderBindFailure failure = services.provider.LastFailure();
        services.reporter.ReportError(owner, provider::ProviderContext{}, reporting::kShowReport,
                                      failure.code, "Loading crypto provider library (%s)", nullptr,
                                      failure.missing.c_str());
    }
    return provider;
}

std::uint32_t Initialize(const provider::ProviderFunctions& provider, const std::string& csProfileName,
                         std::uint32_t flags, WaitWindow& waitWindow, toolkit::WindowHandle owner,
                         toolkit::InputGate& input, provider::ProviderContext& context) {
    // Shut first: the wait window is not to be touched by it, and is gone before the others take input again.
    const toolkit::ShutInput shut(input);
    const ShownWaitWindow shown(waitWindow, owner);
    return provider.initialize(csProfileName.c_str(), flags, &context);
}

void ShowInitializationFailure(toolkit::WindowHandle owner, const provider::ProviderFunctions& provider,
                               std::uint32_t status, const CertServices& services) {
    const std::wstring description = DescribeStatus(services.reporter, status);
    const std::wstring stack =
        FormatErrorStack(provider, provider::ProviderContext{}, services.reporter.Text());
    services.warnings.Show(owner,
                           ProviderCallMessage(L"Cryptocontext initialization", status, description, stack),
                           {}, WarningMode::kError);
}

}  // namespace

std::optional<CertSession> OpenCertSession(toolkit::WindowHandle owner, const store::Profile& profile,
                                           std::size_t index, CertificateUse use, WaitWindow& waitWindow,
                                           const CertServices& services) {
    if (services.opening.isUnderWay) {
        return std::nullopt;
    }
    const UnderWay underWay(services.opening);
    const provider::ProviderFunctions* const provider = BindProvider(owner, services);
    if (provider == nullptr) {
        return std::nullopt;
    }
    const store::CsProfile csProfile = store::CsProfileAt(profile, index);
    CertSearchSettings settings = SearchSettingsOf(csProfile, use);
    provider::ProviderContext context = 0;
    const std::uint32_t status =
        Initialize(*provider, services.reporter.Text().Narrow(csProfile.name), InitialisationFlags(settings),
                   waitWindow, owner, services.input, context);
    if (status != 0) {
        ShowInitializationFailure(owner, *provider, status, services);
        return std::nullopt;
    }
    CertSession session{std::move(settings),
                        Cryptocontext(*provider, context, services.reporter, owner, services.input),
                        csProfile.notUseDirectory == 0};
    if (csProfile.notUseDirectory == 0) {
        const NetworkStoreCheck check =
            CheckNetworkStore(owner, session.context, services.reporter, services.warnings);
        if (check == NetworkStoreCheck::kStop) {
            return std::nullopt;
        }
        session.isNetworkStoreAvailable = check == NetworkStoreCheck::kAvailable;
    }
    if (csProfile.notLoadCrl == 0 && csProfile.crlUpdatePeriod >= 1 &&
        !UpdateCrlIfDue(owner, csProfile, session.context, services)) {
        return std::nullopt;
    }
    return session;
}

}  // namespace corvane::certificates
