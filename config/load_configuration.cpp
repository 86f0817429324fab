#include "config/load_configuration.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

#include "config/operation_codes.h"
#include "config/registry_layout.h"
#include "config/registry_reports.h"
#include "config/rule_key_order.h"
#include "config/stored_record.h"

namespace corvane {

namespace {

/// One load. Its steps return false after a failure to open, create or enumerate a key, which ends it.
class ConfigurationLoad {
  public:
    ConfigurationLoad(ConfigurationState& state, RegistryAccess& registry, ErrorReporter& reporter,
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
        profile.timeStampServers = {kNotSetText};
        profile.csProfiles = {state_.csProfileCatalogue.front()};
        for (NumberList Profile::*const list :
             {&Profile::autoUseTimeStamp, &Profile::autoVerifyTimeStamp, &Profile::notAddCertificate,
              &Profile::notCopyToLocal, &Profile::notLoadCrl, &Profile::noTimeStampIsError,
              &Profile::useAuthorityAccess}) {
            profile.*list = {0};
        }
        profile.notUseDirectory = {1};
        // The update periods are deliberately stored as an empty list, as every default profile so far has
        // them; the 1 comes from the padding when they are read.
        profile.crlUpdatePeriods = {};
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
        if (profile.crlUpdatePeriods.size() < profile.notLoadCrl.size()) {
            profile.crlUpdatePeriods.resize(profile.notLoadCrl.size(), 1);
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
    ErrorReporter& reporter_;
    toolkit::WindowHandle owner_;
    RecordReader reader_;
};

}  // namespace

bool LoadConfiguration(ConfigurationState& state, RegistryAccess& registry, ErrorReporter& reporter,
                       toolkit::WindowHandle owner) {
    return ConfigurationLoad(state, registry, reporter, owner).Run();
}

bool ShouldRestoreWindow(const WindowRectangle& stored) {
    return stored.top != 0 && stored.left != 0;
}

}  // namespace corvane
