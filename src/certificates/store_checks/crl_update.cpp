#include "certificates/store_checks/crl_update.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "certificates/session/provider_call_message.h"
#include "store/registry/registry_access.h"
#include "store/registry/registry_layout.h"
#include "toolkit/system/input_gate.h"
#include "toolkit/text/format_text.h"

namespace corvane::certificates {

namespace {

constexpr std::wstring_view kSeparator = L";;";

// The second of the fields that ";;" separates, if the first one is the CS profile's name.
std::optional<std::wstring_view> FieldBehindName(std::wstring_view entry, std::wstring_view csProfileName) {
    const std::size_t end = entry.find(kSeparator);
    if (end == std::wstring_view::npos || entry.substr(0, end) != csProfileName) {
        return std::nullopt;
    }
    const std::wstring_view rest = entry.substr(end + kSeparator.size());
    return rest.substr(0, rest.find(kSeparator));
}

}  // namespace

RefreshState FindRefreshState(const store::TextList& entries, std::wstring_view csProfileName,
                              std::int32_t periodHours, std::int64_t nowSeconds) {
    RefreshState state;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::optional<std::wstring_view> seconds = FieldBehindName(entries[i], csProfileName);
        if (!seconds) {
            continue;
        }
        state.entry = i;
        // Deliberate: what does not fit 32 bits loses its higher bits. The stored times are read so by all
        // who share them, and a clock so far off makes a refresh due rather than never.
        const std::int64_t lastMinute = toolkit::ParseDecimal(*seconds, toolkit::Overflow::kLowBits) / 60;
        if (lastMinute + std::int64_t{periodHours} * 60 > nowSeconds / 60) {
            state.isDue = false;
        }
    }
    return state;
}

void RecordRefresh(store::TextList& entries, std::optional<std::size_t> entry,
                   const std::wstring& csProfileName, std::int64_t nowSeconds) {
    std::wstring text = toolkit::FormatText(L"%s;;%lld", {csProfileName, nowSeconds});
    if (entry) {
        entries[*entry] = std::move(text);
    } else {
        entries.push_back(std::move(text));
    }
}

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
    provider::XsigBlob blob{static_cast<std::uint32_t>(buffer.size()), buffer.data()};
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

bool UpdateCrlIfDue(toolkit::WindowHandle owner, const store::CsProfile& csProfile,
                    const Cryptocontext& context, const CertServices& services) {
    reporting::ErrorReporter& reporter = services.reporter;
    store::RegistryAccess access(services.registry, reporter);
    if (!store::ReportKeyResult(reporter, owner, access.OpenKey(store::kProgramKey), store::kOpenKeyOperation,
                                store::kProgramKey)) {
        return false;
    }
    const std::int64_t nowSeconds = services.clock.SecondsSince1970();
    store::TextList entries;
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

}  // namespace corvane::certificates
