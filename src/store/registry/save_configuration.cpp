#include "store/registry/save_configuration.h"

#include <algorithm>
#include <string>

#include "store/registry/registry_access.h"
#include "store/registry/registry_layout.h"
#include "store/registry/stored_record.h"

namespace corvane::store {

namespace {

bool Contains(const TextList& names, const std::wstring& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// One save. What a step's result means for those that follow stands where it is called.
class ConfigurationSave {
  public:
    ConfigurationSave(const ConfigurationState& state, RegistryAccess& registry,
                      reporting::ErrorReporter& reporter, toolkit::WindowHandle owner)
        : state_(state), registry_(registry), reporter_(reporter), owner_(owner), writer_(registry, owner) {}

    /// Returns true when the end was reached.
    [[nodiscard]] bool Run(const WindowRectangle& restored) {
        TextList storedNames;
        if (!Open(kProgramKey) ||
            !Report(registry_.EnumerateSubkeys(storedNames), kSearchKeyOperation, kProgramKey) ||
            !DeleteRemovedProfiles(storedNames)) {
            return false;
        }
        writer_.Write(WindowLayout(), restored);
        writer_.Write(SettingsLayout(), state_.settings);
        CreateNewProfiles(storedNames);
        for (const Profile& profile : state_.profiles) {
            if (!SaveProfile(profile)) {
                break;
            }
            // Reported where it fails, and no more: the next profile is opened by its full path.
            static_cast<void>(Open(kProgramKey));
        }
        // A key that does not close is deliberately reported with the text for opening.
        Report(registry_.Close(), kOpenKeyOperation, kProgramKey);
        return true;
    }

  private:
    bool DeleteRemovedProfiles(const TextList& storedNames) {
        return std::all_of(storedNames.begin(), storedNames.end(), [this](const std::wstring& storedName) {
            return HasProfile(storedName) || Report(registry_.RecurseDeleteKey(storedName),
                                                    kDeleteKeyOperation, ProfileKey(storedName));
        });
    }

    /// Names are compared with their case, unlike the registry's own.
    [[nodiscard]] bool HasProfile(const std::wstring& name) const {
        return std::any_of(state_.profiles.begin(), state_.profiles.end(),
                           [&name](const Profile& profile) { return profile.name == name; });
    }

    /// A profile whose key cannot be made is reported, and the next one has its turn.
    void CreateNewProfiles(const TextList& storedNames) {
        for (const Profile& profile : state_.profiles) {
            if (!Contains(storedNames, profile.name)) {
                static_cast<void>(Create(ProfileKey(profile.name)) && Open(kProgramKey));
            }
        }
    }

    /// Returns false where the remaining profiles are deliberately not written.
    bool SaveProfile(const Profile& profile) {
        if (!Open(ProfileKey(profile.name))) {
            return false;
        }
        writer_.Write(ProfileLayout(), profile);
        const std::wstring rulesKey = RulesKey(profile.name);
        const std::uint32_t deleteCode = registry_.RecurseDeleteKey(kRulesSubkey);
        if ((deleteCode != kCodeNotFound && !Report(deleteCode, kDeleteKeyOperation, rulesKey)) ||
            !Create(rulesKey)) {
            return false;
        }
        // A rule without operation is not stored, but counts: the numbers may have gaps.
        std::size_t position = 0;
        for (const Rule& rule : profile.rules) {
            if (!SaveRule(rulesKey, position, rule)) {
                break;
            }
            ++position;
        }
        return true;
    }

    /// Returns false where the remaining rules of the profile cannot be written.
    bool SaveRule(const std::wstring& rulesKey, std::size_t position, const Rule& rule) {
        if (!Open(rulesKey)) {
            return false;
        }
        if (rule.operation.empty()) {
            return true;
        }
        const std::wstring ruleKey = KeyPath(rulesKey, RuleKeyName(position));
        if (!Create(ruleKey)) {
            return false;
        }
        writer_.Write(RuleLayout(), rule);
        for (const SignerGroup& group : rule.signerGroups) {
            if (!Create(KeyPath(ruleKey, group.name))) {
                break;
            }
            writer_.Write(SignerGroupLayout(), group);
        }
        return true;
    }

    bool Open(const std::wstring& path) { return Report(registry_.OpenKey(path), kOpenKeyOperation, path); }

    bool Create(const std::wstring& path) {
        return Report(registry_.CreateKey(path), kOpenKeyOperation, path);
    }

    bool Report(std::uint32_t code, const char* operation, std::wstring_view path) {
        return ReportKeyResult(reporter_, owner_, code, operation, path);
    }

    const ConfigurationState& state_;
    RegistryAccess& registry_;
    reporting::ErrorReporter& reporter_;
    toolkit::WindowHandle owner_;
    RecordWriter writer_;
};

}  // namespace

void SaveConfiguration(ConfigurationState& state, const WindowRectangle& restored, RegistryAccess& registry,
                       reporting::ErrorReporter& reporter, toolkit::WindowHandle owner) {
    if (ConfigurationSave(state, registry, reporter, owner).Run(restored)) {
        state.isDirty = false;
    }
}

}  // namespace corvane::store
