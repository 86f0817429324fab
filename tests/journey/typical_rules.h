#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/kit/driver/registry.h"
#include "tests/kit/fixtures/certificate_steps.h"

namespace corvane::test {

inline constexpr wchar_t kFirstCsProfile[] = L"Clearing";
inline constexpr wchar_t kSecondCsProfile[] = L"Partner exchange";

/// A rule as a user makes it, and what must come of it.
struct TypicalRule {
    std::wstring code;
    std::wstring operation;
    /// Empty where the operation has none.
    std::wstring csProfile;
    Texts masks;
    Texts recipients;
    std::vector<NamedSigners> signerLists;
    /// What is typed and chosen in the fields of the operation, by control.
    std::vector<std::pair<int, std::wstring>> typed;
    std::vector<std::pair<int, std::wstring>> chosen;
    /// The cells "Masks" and "Extra" of its row.
    std::wstring masksCell;
    std::wstring extraCell;
    /// What it stores beyond folders, masks, recipients and signer lists.
    RegistryValues ownValues;
};

/// A rule for each operation that asks for recipients, for signer lists, and for neither.
[[nodiscard]] std::vector<TypicalRule> RulesWithRecipients();
[[nodiscard]] std::vector<TypicalRule> RulesWithSigners();
[[nodiscard]] std::vector<TypicalRule> RulesWithoutCertificates();

}  // namespace corvane::test
