#pragma once

#include <string>

#include "reporting/error_reporter.h"
#include "store/records.h"
#include "toolkit/system/window_handle.h"

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

    /// The user pressed OK. Returns whether the dialog may end, with Name as its result; a refusal has been
    /// shown, owned by `dialog`.
    [[nodiscard]] bool Confirm(reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog) const;
    /// The chosen name; empty where nothing can be chosen.
    [[nodiscard]] std::wstring Name() const;
};

}  // namespace corvane::editors
