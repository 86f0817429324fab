#pragma once

#include <cstddef>
#include <string>

namespace corvane {

/// Shown by "Delete profile", after the confirmation, where the list has no other profile (refusal).
inline constexpr wchar_t kLastProfileText[] = L"Last profile cannot be deleted.";

/// The question of "Delete profile"; `currentProfileName` as it is before the deletion (confirmation).
[[nodiscard]] std::wstring DeleteProfileQuestion(const std::wstring& currentProfileName);

/// The question of "Delete rule", with the number of selected rows (confirmation).
[[nodiscard]] std::wstring DeleteRulesQuestion(std::size_t selectedCount);

}  // namespace corvane
