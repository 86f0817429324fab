#include "editors/rule_number_entry.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "toolkit/format_text.h"

namespace corvane {

std::optional<std::wstring> OnNumberTextChanged(NumberField& field, const std::wstring& text) {
    constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
    field.number = std::max(toolkit::ParseDecimal(text), 0);
    const bool isDigits =
        std::all_of(text.begin(), text.end(), [](wchar_t unit) { return unit >= L'0' && unit <= L'9'; });
    std::wstring shown = std::to_wstring(field.number);
    // The largest number may stand for one that is larger still; the field must not show what is not kept.
    const bool isTooLarge = field.number == kLargest && text != shown;
    return isDigits && !isTooLarge ? std::nullopt : std::optional(std::move(shown));
}

}  // namespace corvane
