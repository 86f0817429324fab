#include "app/command_texts.h"

#include "toolkit/format_text.h"

namespace corvane {

std::wstring DeleteProfileQuestion(const std::wstring& currentProfileName) {
    return toolkit::FormatText(L"Delete profile '%s'?", {currentProfileName});
}

std::wstring DeleteRulesQuestion(std::size_t selectedCount) {
    return toolkit::FormatText(L"Delete %d rule(s)?", {static_cast<std::int64_t>(selectedCount)});
}

}  // namespace corvane
