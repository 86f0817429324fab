#pragma once

#include <string>

#include "app/reporting/error_reporter.h"
#include "config/records.h"
#include "toolkit/window_handle.h"

namespace corvane {

/// The texts of the mask dialog.
inline constexpr wchar_t kMaskTitle[] = L"Mask";
inline constexpr wchar_t kMaskExitText[] = L"Exit";

/// What the mask dialog edits and decides: one mask, picked from suggestions or typed.
struct MaskForm {
    TextList suggestions;
    std::wstring text;  ///< Of the combo box: first the mask to edit, after OK the result.

    /// The user pressed OK. Returns whether the dialog may end; a refusal has been shown, owned by `dialog`.
    /// A mask is whatever was typed, blanks at its ends included: only the client reads it.
    [[nodiscard]] bool Confirm(ErrorReporter& reporter, toolkit::WindowHandle dialog) const;
};

}  // namespace corvane
