#pragma once

#include <optional>
#include <string>

#include "reporting/refusal.h"
#include "toolkit/text/system_text.h"

namespace corvane::editors {

/// The texts of the extension dialog. The title and the label are the same.
inline constexpr wchar_t kExtensionTitle[] = L"Add additional extension:";
inline constexpr wchar_t kExtensionExitText[] = L"Exit";

/// What the extension dialog edits and decides: one file name extension.
struct ExtensionForm {
    std::wstring text;  ///< Of the edit; after OK the result.

    /// The user pressed OK. Takes white space off both ends and turns the rest into lower case. Where nothing
    /// is left, it is refused without a word, and the text stays as it was; else none.
    [[nodiscard]] std::optional<reporting::Refusal> Confirm(const toolkit::SystemText& systemText);
};

}  // namespace corvane::editors
