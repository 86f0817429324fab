#include "tests/store/registry/faults/read_by_hand.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "tests/kit/samples/stored_configuration.h"

namespace corvane::test {

namespace {

using List = corvane::store::TextList;

// The values of one key.
class Values {
  public:
    Values(const MemoryRegistry& registry, std::wstring key) : registry_(registry), key_(std::move(key)) {}

    [[nodiscard]] std::int32_t Number(const std::wstring& name, std::int32_t missing = 0) const {
        const std::optional<StoredData> data = registry_.Find(key_, name);
        return data ? static_cast<std::int32_t>(data->bytes[0] | (data->bytes[1] << 8) |
                                                (data->bytes[2] << 16) | (data->bytes[3] << 24))
                    : missing;
    }

    [[nodiscard]] std::wstring Text(const std::wstring& name, const std::wstring& missing = {}) const {
        const std::optional<StoredData> data = registry_.Find(key_, name);
        if (!data) {
            return missing;
        }
        const std::wstring text = Characters(*data);
        return text.substr(0, text.find(L'\0'));
    }

    [[nodiscard]] List Texts(const std::wstring& name) const {
        List list;
        if (const std::optional<StoredData> data = registry_.Find(key_, name)) {
            const std::wstring characters = Characters(*data);
            for (const wchar_t* element = characters.c_str(); *element != L'\0';
                 element += list.back().size() + 1) {
                list.emplace_back(element);
            }
        }
        return list;
    }

    [[nodiscard]] corvane::store::NumberList Numbers(const std::wstring& name) const {
        corvane::store::NumberList numbers;
        for (const std::wstring& text : Texts(name)) {
            numbers.push_back(std::stoi(text));
        }
        return numbers;
    }

    [[nodiscard]] List Elements(const std::wstring& letter, std::int32_t count) const {
        List list;
        for (std::int32_t index = 0; index < count; ++index) {
            list.push_back(Text(letter + std::to_wstring(index)));
        }
        return list;
    }

  private:
    static std::wstring Characters(const StoredData& data) {
        std::wstring characters;
        for (std::size_t index = 0; index + 1 < data.bytes.size(); index += 2) {
            characters += static_cast<wchar_t>(data.bytes[index] | (data.bytes[index + 1] << 8));
        }
        return characters;
    }

    const MemoryRegistry& registry_;
    std::wstring key_;
};

void ReadSettings(const Values& values, store::AppSettings& settings) {
    settings.window = {values.Number(L"Window_top"), values.Number(L"Window_bottom"),
                       values.Number(L"Window_left"), values.Number(L"Window_right")};
    settings.signedExtension = values.Text(L"SigExt", L"p7s");
    settings.detachedSignatureExtension = values.Text(L"DsigExt", L"p7d");
    settings.encryptedExtension = values.Text(L"EncExt", L"p7e");
    settings.base64Extension = values.Text(L"B64Ext", L"b64");
    settings.hashExtension = values.Text(L"HashExt", L"hsh");
    settings.verificationExtension = values.Text(L"VerifyFileExt", L"vrf");
    settings.zipExtension = values.Text(L"ZIPArchiveExt", L"zip");
    settings.gzipExtension = values.Text(L"GZIPArchiveExt", L"gz");
    settings.additionalExtensions = values.Texts(L"ExtExt");
    settings.logPath = values.Text(L"LogPath");
    settings.logFileSize = std::max(values.Number(L"Log filesize", 4000), 400);
}

void ReadProfile(const Values& values, store::Profile& profile) {
    profile.timeStampServers = values.Texts(L"ServerTSP");
    profile.csProfiles = values.Texts(L"ZCSProfile");
    profile.notUseDirectory = values.Numbers(L"NotUseLDAP");
    profile.notCopyToLocal = values.Numbers(L"NotCopyToLocal");
    profile.autoUseTimeStamp = values.Numbers(L"AutoUseTSP");
    profile.autoVerifyTimeStamp = values.Numbers(L"AutoVerifyTSP");
    profile.noTimeStampIsError = values.Numbers(L"NoTSPisError");
    profile.useAuthorityAccess = values.Numbers(L"UseAIA");
    profile.notAddCertificate = values.Numbers(L"NotAddCert");
    profile.notLoadCrl = values.Numbers(L"NotLoadCrl");
    profile.crlUpdatePeriods = values.Numbers(L"CrlUpdatePeriod");
    while (profile.crlUpdatePeriods.size() < profile.notLoadCrl.size()) {
        profile.crlUpdatePeriods.push_back(1);
    }
    profile.verifyFile = values.Number(L"Verify File");
    profile.verifyXFile = values.Number(L"Verify x file");
    profile.verifyDetachedFile = values.Number(L"Verify det file");
    profile.verifyResignFile = values.Number(L"Verify resign file");
    profile.handlerTimeout = values.Number(L"Handler timeout", 15);
    profile.renameConfFiles = values.Number(L"Rename conf files");
}

void ReadTexts(const Values& values, store::Rule& rule) {
    rule.operation = values.Text(L"Operation");
    rule.inputFolder = values.Text(L"Path In");
    rule.outputFolder = values.Text(L"Path Out");
    rule.secondOutput = values.Text(L"Path Out 2");
    rule.errorFolder = values.Text(L"Path Error");
    rule.deleteExtension = values.Text(L"DelExt");
    rule.addExtension = values.Text(L"AddExt");
    rule.folders = values.Text(L"Folders");
    rule.copyFolders = values.Text(L"Copyfolders");
    rule.archiveName = values.Text(L"ArchName");
    rule.executable = values.Text(L"ExecName");
    rule.csProfile = values.Text(L"ZCSProfile");
    rule.resignProfile = values.Text(L"ResignProfile");
    rule.description = values.Text(L"Descryption");
}

store::Rule ReadRule(const MemoryRegistry& registry, const std::wstring& key) {
    const Values values(registry, key);
    store::Rule rule;
    ReadTexts(values, rule);
    rule.archiveFileCount = values.Number(L"ArchCount");
    rule.archiveSize = values.Number(L"ArchSize");
    rule.archiveTimeout = values.Number(L"ArchTimeout");
    rule.executionTimeout = values.Number(L"ExecTimeout");
    rule.isOn = values.Number(L"Is on");
    rule.inputDetached = values.Number(L"In format det");
    rule.outputDetached = values.Number(L"Out format det");
    rule.archiveFormat = values.Number(L"ZipFile");
    rule.masks = values.Elements(L"M", values.Number(L"Mask num"));
    if (values.Number(L"Mask num") == 0) {
        rule.legacyMask = values.Text(L"Mask");
        rule.masks = {rule.legacyMask};
    }
    rule.recipients = values.Elements(L"C", values.Number(L"Ext num"));
    if ((rule.operation == L"ARCH" || rule.operation == L"UNAR") && rule.archiveFormat == 0) {
        rule.archiveFormat = 1;
    }
    if (rule.operation == L"RESG" && rule.resignProfile.empty() && !rule.recipients.empty()) {
        rule.resignProfile = rule.recipients[0];
    }
    if (rule.operation == L"MOVE" && rule.secondOutput.empty() && !rule.recipients.empty()) {
        rule.secondOutput = rule.recipients[0];
    }
    for (const std::wstring& name : registry.SubkeyNames(key)) {
        const Values group(registry, key + L"\\" + name);
        rule.signerGroups.push_back({name, group.Elements(L"S", group.Number(L"Signer Num"))});
    }
    return rule;
}

// In the order of their numbers, as far as the passes go: one fewer than the order may need.
List RuleNames(const MemoryRegistry& registry, const std::wstring& rulesKey) {
    List names = registry.SubkeyNames(rulesKey);
    const auto number = [](const std::wstring& name) { return std::stoi(name.substr(name.rfind(L' '))); };
    for (std::size_t pass = 2; pass < names.size(); ++pass) {
        for (std::size_t index = 1; index < names.size(); ++index) {
            if (number(names[index - 1]) > number(names[index])) {
                std::swap(names[index - 1], names[index]);
            }
        }
    }
    return names;
}

}  // namespace

ReadByHand ReadStoreByHand(const MemoryRegistry& registry) {
    ReadByHand read;
    for (const std::wstring& name : registry.SubkeyNames(kCatalogue)) {
        read.state.csProfileCatalogue.push_back(
            Values(registry, kCatalogue + L"\\" + name).Text(L"ProfileName"));
    }
    ReadSettings(Values(registry, kProgram), read.state.settings);
    read.state.profileNames = registry.SubkeyNames(kProgram);
    for (const std::wstring& name : read.state.profileNames) {
        store::Profile profile;
        profile.name = name;
        const std::wstring key = kProgram + L"\\" + name;
        const std::wstring rulesKey = key + L"\\rules";
        if (!registry.HasKey(rulesKey)) {
            read.isWhole = false;
            read.missingKey = rulesKey;
            return read;
        }
        ReadProfile(Values(registry, key), profile);
        for (const std::wstring& ruleName : RuleNames(registry, rulesKey)) {
            profile.rules.push_back(ReadRule(registry, rulesKey + L"\\" + ruleName));
        }
        read.state.profiles.push_back(std::move(profile));
    }
    return read;
}

}  // namespace corvane::test
