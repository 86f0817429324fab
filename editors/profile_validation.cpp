#include "editors/profile_validation.h"

#include <algorithm>

#include "toolkit/format_text.h"

namespace corvane {

namespace {

constexpr std::int32_t kLongestName = 15;

bool IsTaken(const ProfileForm& form, const TextList& profileNames) {
    const std::wstring& name = form.result.name;
    // An empty opened name is that of a new profile, and no name that is checked here is empty.
    return name != form.openedName &&
           std::find(profileNames.begin(), profileNames.end(), name) != profileNames.end();
}

}  // namespace

std::optional<ProfileRefusal> CheckProfile(const ProfileForm& form, const TextList& profileNames) {
    using enum ProfileField;
    const std::wstring& name = form.result.name;
    if (name.empty()) {
        return ProfileRefusal{L"Please, type a name for profile.", kName};
    }
    if (name.size() > static_cast<std::size_t>(kLongestName)) {
        return ProfileRefusal{
            toolkit::FormatText(L"Profile name cannot be longer than %d symbols.", {kLongestName}), kName};
    }
    // Deliberate: other white space is a name like any other.
    if (name.find_first_not_of(L' ') == std::wstring::npos) {
        return ProfileRefusal{L"Profile name cannot consist from spaces only.", kName};
    }
    if (form.result.handlerTimeout == 0) {
        return ProfileRefusal{L"Please, choose handler timeout.", kHandlerTimeout};
    }
    if (IsTaken(form, profileNames)) {
        return ProfileRefusal{toolkit::FormatText(L"Profile '%s' allready exists.", {name}), kName};
    }
    if (IsTimeStampServerMissing(form)) {
        return ProfileRefusal{kNoTimeStampServerText, kTimeStampServer};
    }
    // It would be stored as a key within a key, and be lost at the next start.
    if (name.find(L'\\') != std::wstring::npos) {
        return ProfileRefusal{L"Profile name cannot contain the symbol '\\'.", kName};
    }
    return std::nullopt;
}

}  // namespace corvane
