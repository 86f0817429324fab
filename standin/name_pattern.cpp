#include "standin/name_pattern.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace corvane::standin {
namespace {

bool IsKeyCharacter(wchar_t character) {
    return (character >= L'A' && character <= L'Z') || (character >= L'0' && character <= L'9') ||
           character == L'.';
}

/// The length of the key at the start of `text`, or 0 when it does not start with "KEY=".
std::size_t KeyLength(std::wstring_view text) {
    const auto end = std::find_if_not(text.begin(), text.end(), IsKeyCharacter);
    return end != text.end() && *end == L'=' ? static_cast<std::size_t>(end - text.begin()) : 0;
}

/// A comma parts two attributes only where another "KEY=" follows it, because values hold commas too.
std::vector<ComparableAttribute> SplitParts(std::wstring_view pattern) {
    std::vector<ComparableAttribute> parts;
    while (const std::size_t keyLength = KeyLength(pattern)) {
        const std::wstring_view key = pattern.substr(0, keyLength);
        pattern.remove_prefix(keyLength + 1);
        std::size_t end = pattern.find(L',');
        while (end != std::wstring_view::npos && KeyLength(pattern.substr(end + 1)) == 0) {
            end = pattern.find(L',', end + 1);
        }
        parts.push_back({std::wstring(key), std::wstring(pattern.substr(0, end))});
        if (end == std::wstring_view::npos) {
            break;
        }
        pattern.remove_prefix(end + 1);
    }
    return parts;
}

}  // namespace

bool WildcardMatches(std::wstring_view text, std::wstring_view pattern) {
    std::size_t textAt = 0;
    std::size_t patternAt = 0;
    std::size_t lastStar = std::wstring_view::npos;
    std::size_t textAtLastStar = 0;
    while (textAt < text.size()) {
        if (patternAt < pattern.size() && pattern[patternAt] == L'*') {
            lastStar = patternAt++;
            textAtLastStar = textAt;
        } else if (patternAt < pattern.size() && pattern[patternAt] == text[textAt]) {
            ++patternAt;
            ++textAt;
        } else if (lastStar != std::wstring_view::npos) {
            patternAt = lastStar + 1;
            textAt = ++textAtLastStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(L'*', patternAt) == std::wstring_view::npos;
}

NamePattern::NamePattern(std::wstring pattern) : pattern_(std::move(pattern)), parts_(SplitParts(pattern_)) {}

bool NamePattern::Matches(const ComparableName& name) const {
    if (WildcardMatches(name.text, pattern_)) {
        return true;
    }
    return !parts_.empty() && std::all_of(parts_.begin(), parts_.end(), [&](const ComparableAttribute& part) {
        return std::any_of(
            name.attributes.begin(), name.attributes.end(), [&](const ComparableAttribute& attribute) {
                return attribute.key == part.key && WildcardMatches(attribute.value, part.value);
            });
    });
}

}  // namespace corvane::standin
