#include "store/registry/load_configuration.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/cs_profile_settings.h"
#include "store/records.h"
#include "store/registry/registry_access.h"
#include "store/registry/registry_layout.h"
#include "store/registry/stored_record.h"
#include "toolkit/text/format_text.h"

namespace corvane::store {

namespace {

/// One load. Its steps return false after a failure to open, create or enumerate a key, which ends it.
class ConfigurationLoad {
  public:
    ConfigurationLoad(ConfigurationState& state, RegistryAccess& registry, reporting::ErrorReporter& reporter,
                      toolkit::WindowHandle owner)
        : state_(state),
          registry_(registry),
          reporter_(reporter),
          owner_(owner),
          reader_(registry, reporter, owner) {}

    [[nodiscard]] bool Run() {
        state_ = {};
        return LoadCatalogue() && LoadProfileNames() && LoadSettings() && LoadProfiles();
    }

  private:
    bool LoadCatalogue() {
        TextList keyNames;
        if (!Open(kProviderProfilesKey) || !Enumerate(kProviderProfilesKey, keyNames)) {
            return false;
        }
        for (const std::wstring& keyName : keyNames) {
            if (!Open(KeyPath(kProviderProfilesKey, keyName))) {
                return false;
            }
            ProviderProfile profile;
            reader_.Read(ProviderProfileLayout(), profile);
            state_.csProfileCatalogue.push_back(std::move(profile.displayName));
        }
        return true;
    }

    bool LoadProfileNames() {
        if (!Create(kProgramKey) || !Enumerate(kProgramKey, state_.profileNames)) {
            return false;
        }
        return !state_.profileNames.empty() || MakeFirstProfile();
    }

    /// Stores the profile "default", which is then loaded like any other.
    bool MakeFirstProfile() {
        if (state_.csProfileCatalogue.empty()) {
            // Asked before anything is written: a profile left half-made would pass for a whole one next
            // time.
            throw std::invalid_argument(
                "There is no profile yet, and the crypto provider has no CS profile to make a first one "
                "with.");
        }
        state_.profileNames.emplace_back(kFirstProfileName);
        RecordWriter writer(registry_, owner_);
        writer.Write(FirstSettingsLayout(), AppSettings{});

        Profile profile;
        CsProfile entry;
        entry.name = state_.csProfileCatalogue.front();
        ForEachCsProfileSetting(profile, entry, [](auto& list, const auto& field) { list.push_back(field); });
        // The update periods are deliberately stored as an empty list, as every default profile so far has
        // them; the 1 comes from the padding when they are read.
        profile.crlUpdatePeriods.clear();
        if (!Create(ProfileKey(kFirstProfileName))) {
            return false;
        }
        writer.Write(FirstProfileLayout(), profile);
        return Create(RulesKey(kFirstProfileName)) && Open(kProgramKey);
    }

    bool LoadSettings() {
        reader_.Read(WindowLayout(), state_.settings.window);
        reader_.Read(SettingsLayout(), state_.settings);
        state_.settings.logFileSize = std::max(state_.settings.logFileSize, kSmallestLogFileSize);
        return true;
    }

    bool LoadProfiles() {
        for (const std::wstring& name : state_.profileNames) {
            Profile profile;
            profile.name = name;
            if (!LoadProfile(profile)) {
                return false;
            }
            state_.profiles.push_back(std::move(profile));
        }
        // Nothing was written to this key; that it does not close well is nothing that the user could act on.
        static_cast<void>(registry_.Close());
        return true;
    }

    bool LoadProfile(Profile& profile) {
        if (!Open(ProfileKey(profile.name))) {
            return false;
        }
        reader_.Read(ProfileLayout(), profile);
        // Profiles from before update periods existed have none.
        if (profile.crlUpdatePeriods.size() < profile.notLoadCrl.size()) {
            profile.crlUpdatePeriods.resize(profile.notLoadCrl.size(), CsProfile().crlUpdatePeriod);
        }

        const std::wstring rulesKey = RulesKey(profile.name);
        TextList ruleKeyNames;
        if (!Open(rulesKey) || !Enumerate(rulesKey, ruleKeyNames)) {
            return false;
        }
        OrderRuleKeys(ruleKeyNames);
        profile.rules.reserve(ruleKeyNames.size());
        for (const std::wstring& ruleKeyName : ruleKeyNames) {
            Rule rule;
            if (!LoadRule(KeyPath(rulesKey, ruleKeyName), rule)) {
                return false;
            }
            profile.rules.push_back(std::move(rule));
        }
        return true;
    }

    bool LoadRule(const std::wstring& ruleKey, Rule& rule) {
        if (!Open(ruleKey)) {
            return false;
        }
        reader_.Read(RuleLayout(), rule);
        if (IsArchiveOperation(rule.operation) && rule.archiveFormat == 0) {
            rule.archiveFormat = 1;
        }
        if (!rule.recipients.empty()) {
            // Copied, not moved: the recipient stays in the list.
            if (rule.operation == L"RESG" && rule.resignProfile.empty()) {
                rule.resignProfile = rule.recipients.front();
            } else if (rule.operation == L"MOVE" && rule.secondOutput.empty()) {
                rule.secondOutput = rule.recipients.front();
            }
        }

        TextList groupNames;
        if (!Enumerate(ruleKey, groupNames)) {
            return false;
        }
        for (std::wstring& groupName : groupNames) {
            if (!Open(KeyPath(ruleKey, groupName))) {
                return false;
            }
            SignerGroup& group = rule.signerGroups.emplace_back();
            group.name = std::move(groupName);
            reader_.Read(SignerGroupLayout(), group);
        }
        return true;
    }

    bool Open(const std::wstring& path) {
        return ReportKeyResult(reporter_, owner_, registry_.OpenKey(path), kOpenKeyOperation, path);
    }

    bool Create(const std::wstring& path) {
        return ReportKeyResult(reporter_, owner_, registry_.CreateKey(path), kOpenKeyOperation, path);
    }

    /// `path` is that of the current key.
    bool Enumerate(std::wstring_view path, TextList& names) {
        return ReportKeyResult(reporter_, owner_, registry_.EnumerateSubkeys(names), kSearchKeyOperation,
                               path);
    }

    ConfigurationState& state_;
    RegistryAccess& registry_;
    reporting::ErrorReporter& reporter_;
    toolkit::WindowHandle owner_;
    RecordReader reader_;
};

}  // namespace

bool LoadConfiguration(ConfigurationState& state, RegistryAccess& registry,
                       reporting::ErrorReporter& reporter, toolkit::WindowHandle owner) {
    return ConfigurationLoad(state, registry, reporter, owner).Run();
}

bool ShouldRestoreWindow(const WindowRectangle& stored) {
    return stored.top != 0 && stored.left != 0;
}

namespace {

struct NumberedName {
    std::int32_t number = 0;
    std::wstring name;
};

std::int32_t NumberOf(std::wstring_view name) {
    const std::size_t blank = name.rfind(L' ');
    return toolkit::ParseDecimal(blank == std::wstring_view::npos ? name : name.substr(blank + 1));
}

}  // namespace

void OrderRuleKeys(TextList& names) {
    if (names.size() < 3) {
        return;
    }
    const std::int32_t lastNumber = NumberOf(names.back());
    std::vector<NumberedName> ordered;
    for (std::wstring& name : names) {
        const std::int32_t number = NumberOf(name);
        ordered.push_back({number, std::move(name)});
    }
    const bool lastIsSmallest =
        std::all_of(ordered.begin(), ordered.end() - 1,
                    [lastNumber](const NumberedName& other) { return lastNumber < other.number; });
    std::stable_sort(ordered.begin(), ordered.end(), [](const NumberedName& left, const NumberedName& right) {
        return left.number < right.number;
    });
    // Each pass moves a name by at most one place to the left, and n - 2 passes order all others: only a
    // last name that belongs first is left short of its place, by one. Deliberately so, see the header.
    if (lastIsSmallest) {
        std::swap(ordered[0], ordered[1]);
    }
    std::transform(ordered.begin(), ordered.end(), names.begin(),
                   [](NumberedName& entry) { return std::move(entry.name); });
}

}  // namespace corvane::store
