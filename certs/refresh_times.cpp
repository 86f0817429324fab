#include "certs/refresh_times.h"

#include "toolkit/format_text.h"

namespace corvane {

namespace {

constexpr std::wstring_view kSeparator = L";;";

// The number at the start of a text, 0 where there is none. Deliberate: what does not fit 32 bits loses its
// higher bits. The stored times are read so by all who share them, and a clock so far off makes a refresh due
// rather than never.
std::int32_t ParseWrappingSeconds(std::wstring_view text) {
    const auto isSpace = [](wchar_t c) { return c == L' ' || (c >= L'\t' && c <= L'\r'); };
    while (!text.empty() && isSpace(text.front())) {
        text.remove_prefix(1);
    }
    const bool isNegative = text.starts_with(L'-');
    if (isNegative || text.starts_with(L'+')) {
        text.remove_prefix(1);
    }
    std::uint32_t number = 0;
    while (!text.empty() && text.front() >= L'0' && text.front() <= L'9') {
        number = number * 10 + static_cast<std::uint32_t>(text.front() - L'0');
        text.remove_prefix(1);
    }
    return static_cast<std::int32_t>(isNegative ? 0 - number : number);
}

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

RefreshState FindRefreshState(const TextList& entries, std::wstring_view csProfileName,
                              std::int32_t periodHours, std::int64_t nowSeconds) {
    RefreshState state;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::optional<std::wstring_view> seconds = FieldBehindName(entries[i], csProfileName);
        if (!seconds) {
            continue;
        }
        state.entry = i;
        const std::int64_t lastMinute = ParseWrappingSeconds(*seconds) / 60;
        if (lastMinute + std::int64_t{periodHours} * 60 > nowSeconds / 60) {
            state.isDue = false;
        }
    }
    return state;
}

void RecordRefresh(TextList& entries, std::optional<std::size_t> entry, const std::wstring& csProfileName,
                   std::int64_t nowSeconds) {
    std::wstring text = toolkit::FormatText(L"%s;;%lld", {csProfileName, nowSeconds});
    if (entry) {
        entries[*entry] = std::move(text);
    } else {
        entries.push_back(std::move(text));
    }
}

}  // namespace corvane
