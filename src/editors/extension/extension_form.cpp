#include "editors/extension/extension_form.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace corvane::editors {

namespace {

/// White space as Unicode has it. The runtime's own test knows different characters on different systems.
bool IsWhiteSpace(wchar_t unit) {
    constexpr std::wstring_view kOthers = L" \x0085\x00A0\x1680\x2028\x2029\x202F\x205F\x3000";
    return (unit >= 0x0009 && unit <= 0x000D) || (unit >= 0x2000 && unit <= 0x200A) ||
           kOthers.find(unit) != std::wstring_view::npos;
}

std::wstring_view Trimmed(std::wstring_view text) {
    const auto first = std::find_if_not(text.begin(), text.end(), IsWhiteSpace);
    const auto last = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), IsWhiteSpace).base();
    return text.substr(static_cast<std::size_t>(first - text.begin()),
                       static_cast<std::size_t>(last - first));
}

}  // namespace

std::optional<reporting::Refusal> ExtensionForm::Confirm(const toolkit::SystemText& systemText) {
    const std::wstring_view extension = Trimmed(text);
    if (extension.empty()) {
        return reporting::Refusal{.wording = reporting::SilentRefusal()};
    }
    text = systemText.LowerCase(extension);
    return std::nullopt;
}

}  // namespace corvane::editors
