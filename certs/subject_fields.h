#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "config/records.h"
#include "toolkit/system_text.h"

namespace corvane {

/// The attributes of a subject distinguished name that certificates are filtered and sorted by, one line for
/// each. Those that users know stand first, the others are not offered to them.
inline constexpr wchar_t kSubjectFieldList[] =
    L"Common name (CN)\nCountry (C)\nState (ST)\nLocality (L)\nStreet (STREET)\nOrganization (O)\n"
    L"Organization unit (OU)\nDomain constrain (DC)\nAddress RFC822 (EMAIL)\n(UNSTRUCTUREDNAME)\n"
    L"(UNSTRUCTUREDADDRESS)";

/// The lines of the list, blanks trimmed.
[[nodiscard]] TextList SubjectFields();

/// The lines that are offered to the user: those that do not begin with "(", in their order.
[[nodiscard]] TextList OfferedSubjectFields();

/// The attribute that a line stands for, in upper case: what is between its last "(" and the ")" at its end;
/// empty where the line does not end so.
[[nodiscard]] std::wstring SubjectFieldKey(std::wstring_view line, const toolkit::SystemText& systemText);

/// The text without the blanks at both ends; tabs and other white space stay.
[[nodiscard]] std::wstring_view TrimBlanks(std::wstring_view text);

}  // namespace corvane
