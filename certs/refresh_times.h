#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "config/records.h"

// When the revocation lists of each CS profile were loaded last: one stored text per CS profile, its name,
// ";;" and the seconds since 1970.

namespace corvane {

/// What the stored texts say of one CS profile.
struct RefreshState {
    bool isDue = true;
    std::optional<std::size_t> entry;  ///< The CS profile's last entry, if it has one.
};

/// Looks for the CS profile among the stored texts. With a period of `periodHours` it is due when no entry of
/// it is younger, in whole minutes. An entry that is no number counts as time 0.
[[nodiscard]] RefreshState FindRefreshState(const TextList& entries, std::wstring_view csProfileName,
                                            std::int32_t periodHours, std::int64_t nowSeconds);

/// Puts the time of a refresh into the texts, in the place of the entry that was found, or at the end.
void RecordRefresh(TextList& entries, std::optional<std::size_t> entry, const std::wstring& csProfileName,
                   std::int64_t nowSeconds);

}  // namespace corvane
