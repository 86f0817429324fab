#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/records.h"
#include "toolkit/text/system_text.h"

namespace corvane::certificates {

enum class SortDirection { kAscending, kDescending };

/// What an owner is sorted by: the text behind the attribute `fieldKey` and its "=", to the end of the owner
/// text, where the owner begins with the attribute or has it behind a comma. None where it has it nowhere.
[[nodiscard]] std::optional<std::wstring_view> OwnerSortKey(std::wstring_view owner,
                                                            std::wstring_view fieldKey);

/// Sorts rows, each the index of an owner of `owners`, by that key, letter case included. Owners without the
/// attribute come after all others, in both directions, and are sorted by their whole text. Equal ones keep
/// their order.
void SortOwnerRows(std::vector<std::size_t>& rows, const std::vector<std::wstring_view>& owners,
                   std::wstring_view fieldKey, SortDirection direction);

/// The owner's distinguished name with every attribute on a line of its own, broken by CR LF. The commas
/// stay. A comma inside a value breaks no line: only where the next "=" comes before the next comma, with
/// something in between, does an attribute begin.
[[nodiscard]] std::wstring OwnerLines(std::wstring_view owner);

/// The attributes of a subject distinguished name that certificates are filtered and sorted by, one line for
/// each. Those that users know stand first, the others are not offered to them.
inline constexpr wchar_t kSubjectFieldList[] =
    L"Common name (CN)\nCountry (C)\nState (ST)\nLocality (L)\nStreet (STREET)\nOrganization (O)\n"
    L"Organization unit (OU)\nDomain constrain (DC)\nAddress RFC822 (EMAIL)\n(UNSTRUCTUREDNAME)\n"
    L"(UNSTRUCTUREDADDRESS)";

/// The lines of the list, blanks trimmed.
[[nodiscard]] store::TextList SubjectFields();

/// The lines that are offered to the user: those that do not begin with "(", in their order.
[[nodiscard]] store::TextList OfferedSubjectFields();

/// The attribute that a line stands for, in upper case: what is between its last "(" and the ")" at its end;
/// empty where the line does not end so.
[[nodiscard]] std::wstring SubjectFieldKey(std::wstring_view line, const toolkit::SystemText& systemText);

/// The text without the blanks at both ends; tabs and other white space stay.
[[nodiscard]] std::wstring_view TrimBlanks(std::wstring_view text);

}  // namespace corvane::certificates
