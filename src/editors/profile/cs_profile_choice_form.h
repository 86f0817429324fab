#pragma once

#include <optional>
#include <string>

#include "reporting/refusal.h"
#include "store/records.h"

namespace corvane::editors {

/// The texts of the choice of a CS profile.
inline constexpr wchar_t kCsProfileChoiceTitle[] = L"Add CS profile";
inline constexpr wchar_t kCsProfileChoiceLabelText[] = L"Choose CS profile";
inline constexpr wchar_t kCsProfileChoiceExitText[] = L"Exit";

/// Where the provider has no CS profile to choose from (refusal).
inline constexpr wchar_t kNoCsProfilesText[] = L"No CS profiles found.";

/// What the choice of a CS profile shows and decides.
struct CsProfileChoiceForm {
    store::TextList catalogue;  ///< The CS profiles to choose from.
    int index = 0;              ///< Of the list.

    /// What OK refuses; none where the dialog may end, with Name as its result.
    [[nodiscard]] std::optional<reporting::Refusal> Check() const;
    /// The chosen name; empty where nothing can be chosen.
    [[nodiscard]] std::wstring Name() const;
};

}  // namespace corvane::editors
