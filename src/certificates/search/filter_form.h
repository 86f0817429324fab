#pragma once

#include <string>
#include <string_view>

#include "reporting/error_reporter.h"
#include "store/records.h"
#include "toolkit/system/window_handle.h"

namespace corvane::certificates {

/// The texts of the search filter dialog.
inline constexpr wchar_t kFilterTitle[] = L"Filter";
inline constexpr wchar_t kFilterFieldLabel[] = L"Search field:";
inline constexpr wchar_t kFilterSampleLabel[] =
    L"Type sample for certificate owner search\r\n(* represents any symbol):";
/// The last choice: the sample is the pattern for the whole name.
inline constexpr wchar_t kEntireNameChoice[] = L"<Search by entire name>";

/// What the search filter dialog edits and decides. The dialog copies the two public members from and to its
/// controls and asks the form what to do.
class FilterForm {
  public:
    /// The choices of the field combo box, in order.
    [[nodiscard]] static store::TextList FieldChoices();

    /// Whether OK is enabled with this text in the sample field.
    [[nodiscard]] static bool IsOkEnabled(std::wstring_view sampleText);

    /// The user pressed OK. Returns whether the dialog may end, and the sample is then trimmed. Otherwise no
    /// field is chosen, which has been said in a message owned by `dialog`; the list of the fields is then to
    /// be dropped down.
    [[nodiscard]] bool Confirm(reporting::ErrorReporter& reporter, toolkit::WindowHandle dialog);

    /// The owner pattern that the confirmed choice asks for.
    [[nodiscard]] std::wstring Pattern(const toolkit::SystemText& systemText) const;

    int fieldIndex = -1;  ///< The chosen one of FieldChoices, -1 for none.
    std::wstring sample;
};

}  // namespace corvane::certificates
