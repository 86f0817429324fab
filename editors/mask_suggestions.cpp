#include "editors/mask_suggestions.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace corvane {

namespace {

using KnownMasks = std::unordered_set<std::wstring_view>;

/// The masks of the rules, last one first, each once.
TextList RuleMasksFromTheEnd(const std::vector<Rule>& rules, KnownMasks& known) {
    TextList masks;
    for (auto rule = rules.rbegin(); rule != rules.rend(); ++rule) {
        for (auto mask = rule->masks.rbegin(); mask != rule->masks.rend(); ++mask) {
            if (known.insert(*mask).second) {
                masks.push_back(*mask);
            }
        }
    }
    return masks;
}

TextList ExtensionMasks(const AppSettings& settings) {
    TextList masks;
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

TextList BuildMaskSuggestions(const AppSettings& settings, const std::vector<Rule>& rules) {
    const TextList extensionMasks = ExtensionMasks(settings);
    KnownMasks known;
    TextList suggestions = RuleMasksFromTheEnd(rules, known);
    std::reverse(suggestions.begin(), suggestions.end());
    for (const std::wstring& mask : extensionMasks) {
        if (known.insert(mask).second) {
            suggestions.push_back(mask);
        }
    }
    return suggestions;
}

}  // namespace corvane
