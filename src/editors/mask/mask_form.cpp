#include "editors/mask/mask_form.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

#include "res/ids.h"

namespace corvane::editors {

std::optional<reporting::Refusal> MaskForm::Check() const {
    return text.empty() ? std::optional(reporting::Refuse(L"No Mask selected.", IDC_MASK_COMBO))
                        : std::nullopt;
}

namespace {

using KnownMasks = std::unordered_set<std::wstring_view>;

/// The masks of the rules, last one first, each once.
store::TextList RuleMasksFromTheEnd(const std::vector<store::Rule>& rules, KnownMasks& known) {
    store::TextList masks;
    for (auto rule = rules.rbegin(); rule != rules.rend(); ++rule) {
        for (auto mask = rule->masks.rbegin(); mask != rule->masks.rend(); ++mask) {
            if (known.insert(*mask).second) {
                masks.push_back(*mask);
            }
        }
    }
    return masks;
}

store::TextList ExtensionMasks(const store::AppSettings& settings) {
    store::TextList masks;
    for (const std::wstring* extension :
         {&settings.signedExtension, &settings.detachedSignatureExtension, &settings.encryptedExtension,
          &settings.base64Extension, &settings.hashExtension, &settings.verificationExtension}) {
        masks.push_back(L"*." + *extension);
    }
    for (const std::wstring& extension : settings.additionalExtensions) {
        masks.push_back(L"*." + extension);
    }
    return masks;
}

}  // namespace

store::TextList BuildMaskSuggestions(const store::AppSettings& settings,
                                     const std::vector<store::Rule>& rules) {
    const store::TextList extensionMasks = ExtensionMasks(settings);
    KnownMasks known;
    store::TextList suggestions = RuleMasksFromTheEnd(rules, known);
    std::reverse(suggestions.begin(), suggestions.end());
    for (const std::wstring& mask : extensionMasks) {
        if (known.insert(mask).second) {
            suggestions.push_back(mask);
        }
    }
    return suggestions;
}

}  // namespace corvane::editors
