#include "certs/crl_update.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "certs/provider_call_message.h"
#include "certs/refresh_times.h"
#include "config/registry_access.h"
#include "config/registry_layout.h"
#include "config/registry_reports.h"
#include "toolkit/input_gate.h"

namespace corvane {

namespace {

constexpr std::wstring_view kRefreshTimesValue = L"LastCrlUpdate";
constexpr std::uint32_t kLoadRevocationLists = 4;

// What loading came to. Nothing was loaded where `status` is not 0 and the provider says something about it.
struct Loading {
    std::uint32_t status = 0;
    std::wstring diagnosis;
};

Loading LoadRevocationLists(const Cryptocontext& context, const toolkit::SystemText& systemText) {
    std::array<char, 1024> buffer{};
    XsigBlob blob{static_cast<std::uint32_t>(buffer.size()), buffer.data()};
    Loading loading;
    {
        const toolkit::ShutInput shut(context.Input());
        loading.status = context.Provider().control(context.Get(), kLoadRevocationLists, &blob);
    }
    // A diagnosis that fills the buffer may have come without its terminator.
    const auto end = std::find(buffer.begin(), buffer.end(), '\0');
    loading.diagnosis =
        systemText.Widen(std::string_view(buffer.data(), static_cast<std::size_t>(end - buffer.begin())));
    return loading;
}

}  // namespace

bool UpdateCrlIfDue(toolkit::WindowHandle owner, const CsProfile& csProfile, const Cryptocontext& context,
                    const CertServices& services) {
    ErrorReporter& reporter = services.reporter;
    RegistryAccess access(services.registry, reporter);
    if (!ReportKeyResult(reporter, owner, access.OpenKey(kProgramKey), kOpenKeyOperation, kProgramKey)) {
        return false;
    }
    const std::int64_t nowSeconds = services.clock.SecondsSince1970();
    TextList entries;
    static_cast<void>(access.ReadStringList(kRefreshTimesValue, entries, owner));
    const RefreshState state =
        FindRefreshState(entries, csProfile.name, csProfile.crlUpdatePeriod, nowSeconds);
    if (!state.isDue) {
        return true;
    }
    const Loading loading = LoadRevocationLists(context, reporter.Text());
    // Deliberate, after a failure too: whoever works where the distribution points cannot be reached is asked
    // once in a period, not at every dialog.
    RecordRefresh(entries, state.entry, csProfile.name, nowSeconds);
    static_cast<void>(access.WriteStringArray(kRefreshTimesValue, entries, owner));
    static_cast<void>(access.Close());
    if (loading.status == 0 || loading.diagnosis.empty()) {
        return true;
    }
    const std::wstring description = DescribeStatus(reporter, loading.status);
    // Deliberate: "Connetion", and the provider's diagnosis instead of its error stack. Support knows the
    // message so.
    services.warnings.Show(nullptr,
                           ProviderCallMessage(L"Connetion to CRL distribution point", loading.status,
                                               description, loading.diagnosis),
                           {}, WarningMode::kWarning);
    return AskToContinue(reporter, owner, L"%s (0x%X).\r\nContinue without loading CRL?", description,
                         loading.status);
}

}  // namespace corvane
