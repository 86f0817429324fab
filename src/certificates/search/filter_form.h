#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "reporting/refusal.h"
#include "store/records.h"
#include "toolkit/text/system_text.h"

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

    /// What OK refuses: that no field is chosen, whose list is then to be dropped down; none where the choice
    /// may be taken.
    [[nodiscard]] std::optional<reporting::Refusal> Check() const;
    /// Takes the choice: the sample is trimmed.
    void Commit();

    /// The owner pattern that the confirmed choice asks for.
    [[nodiscard]] std::wstring Pattern(const toolkit::SystemText& systemText) const;

    int fieldIndex = -1;  ///< The chosen one of FieldChoices, -1 for none.
    std::wstring sample;
};

}  // namespace corvane::certificates
