#pragma once

#include <optional>
#include <string>

#include "editors/rule_form.h"

namespace corvane {

/// The user changed the text of a number field. Takes the number and returns the text that has to be put
/// into the field at once instead, or none where it may stand. A negative number becomes 0, one that does
/// not fit 32 bits the largest that does; pasted text is cut down to the number that it begins with. An
/// empty field counts as 0 and may stand, so that another number can be typed.
[[nodiscard]] std::optional<std::wstring> OnNumberTextChanged(NumberField& field, const std::wstring& text);

}  // namespace corvane
