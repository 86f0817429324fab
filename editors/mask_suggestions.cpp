#include "editors/mask_suggestions.h"

#include <algorithm>

#include "toolkit/known_texts.h"

namespace corvane {

namespace {

/// The masks of the rules, last one first, each once.
TextList RuleMasksFromTheEnd(const std::vector<Rule>& rules, toolkit::KnownTexts& known) {
    TextList masks;
    for (auto rule = rules.rbegin(); rule != rules.rend(); ++rule) {
        for (auto mask = rule->masks.rbegin(); mask != rule->masks.rend(); ++mask) {
            if (known.Add(*mask)) {
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
    toolkit::KnownTexts known;
    TextList suggestions = RuleMasksFromTheEnd(rules, known);
    std::reverse(suggestions.begin(), suggestions.end());
    for (const std::wstring& mask : extensionMasks) {
        if (known.Add(mask)) {
            suggestions.push_back(mask);
        }
    }
    return suggestions;
}

}  // namespace corvane
