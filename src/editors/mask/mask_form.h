#pragma once

#include <optional>
#include <string>
#include <vector>

#include "reporting/refusal.h"
#include "store/records.h"

namespace corvane::editors {

/// The texts of the mask dialog.
inline constexpr wchar_t kMaskTitle[] = L"Mask";
inline constexpr wchar_t kMaskExitText[] = L"Exit";

/// What the mask dialog edits and decides: one mask, picked from suggestions or typed.
struct MaskForm {
    store::TextList suggestions;
    std::wstring text;  ///< Of the combo box: first the mask to edit, after OK the result.

    /// What OK refuses; none where the dialog may end. A mask is whatever was typed, blanks at its ends
    /// included: only the client reads it.
    [[nodiscard]] std::optional<reporting::Refusal> Check() const;
};

/// The masks that the rule editor offers, none of them twice: those of the profile's rules, rule by rule,
/// each at the place of its last occurrence; then one for each extension of signed, detached, encrypted,
/// encoded, hash and verification files and for each additional extension. Archives are not offered.
[[nodiscard]] store::TextList BuildMaskSuggestions(const store::AppSettings& settings,
                                                   const std::vector<store::Rule>& rules);

}  // namespace corvane::editors
