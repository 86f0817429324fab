#include "tests/journey/stored_forms.h"

#include "tests/kit/fixtures/journey_fixture.h"

namespace corvane::test {

namespace {

void AddNumbered(RegistryValues& values, const wchar_t* countName, const wchar_t* prefix,
                 const Texts& texts) {
    values[countName] = static_cast<std::uint32_t>(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        values[prefix + std::to_wstring(i)] = texts[i];
    }
}

/// What a rule stores, by key below its own.
StoredTree StoredFormOfRule(const TypicalRule& rule) {
    RegistryValues values = {{L"Operation", rule.code},
                             {L"Path In", kExchangeIn},
                             {L"Path Out", rule.code == L"DELE" ? L"" : kExchangeOut},
                             {L"Path Error", kExchangeError},
                             {L"ZCSProfile", rule.csProfile},
                             {L"Descryption", DescriptionOf(rule)},
                             {L"Is on", 1U}};
    for (const wchar_t* name : {L"Path Out 2", L"DelExt", L"AddExt", L"Folders", L"Copyfolders", L"ArchName",
                                L"ExecName", L"ResignProfile"}) {
        values[name] = L"";
    }
    for (const wchar_t* name : {L"ArchCount", L"ArchSize", L"ArchTimeout", L"ExecTimeout", L"In format det",
                                L"Out format det", L"ZipFile"}) {
        values[name] = 0U;
    }
    AddNumbered(values, L"Mask num", L"M", rule.masks);
    AddNumbered(values, L"Ext num", L"C", rule.recipients);
    for (const auto& [name, data] : rule.ownValues) {
        values[name] = data;
    }
    StoredTree tree = {{L"", values}};
    for (const auto& [name, signers] : rule.signerLists) {
        AddNumbered(tree[name], L"Signer Num", L"S", signers);
    }
    return tree;
}

}  // namespace

std::wstring DescriptionOf(const TypicalRule& rule) {
    return L"Made with " + rule.operation;
}

RegistryValues DefaultSettings() {
    return {{L"SigExt", L"p7s"},        {L"DsigExt", L"p7d"},       {L"EncExt", L"p7e"},
            {L"B64Ext", L"b64"},        {L"HashExt", L"hsh"},       {L"VerifyFileExt", L"vrf"},
            {L"ZIPArchiveExt", L"zip"}, {L"GZIPArchiveExt", L"gz"}, {L"ExtExt", Texts()},
            {L"LogPath", L""},          {L"Log filesize", 4000U}};
}

RegistryValues ProfileValues(const Texts& csProfiles, const std::wstring& notUseDirectory) {
    RegistryValues values = {{L"ZCSProfile", csProfiles},
                             {L"ServerTSP", Texts(csProfiles.size(), L"0")},
                             {L"NotUseLDAP", Texts(csProfiles.size(), notUseDirectory)},
                             {L"CrlUpdatePeriod", Texts(csProfiles.size(), L"1")},
                             {L"Handler timeout", 15U}};
    for (const wchar_t* name : {L"NotCopyToLocal", L"AutoUseTSP", L"AutoVerifyTSP", L"NoTSPisError",
                                L"UseAIA", L"NotAddCert", L"NotLoadCrl"}) {
        values[name] = Texts(csProfiles.size(), L"0");
    }
    for (const wchar_t* name : {L"Verify File", L"Verify x file", L"Verify det file", L"Verify resign file",
                                L"Rename conf files"}) {
        values[name] = 0U;
    }
    return values;
}

StoredTree StoredFormOf(const std::wstring& profile, const RegistryValues& profileValues,
                        const std::vector<TypicalRule>& rules) {
    StoredTree tree = {{L"", DefaultSettings()}, {profile, profileValues}, {profile + L"\\rules", {}}};
    for (std::size_t i = 0; i < rules.size(); ++i) {
        const std::wstring key = profile + L"\\rules\\Rule " + std::to_wstring(i);
        for (const auto& [name, values] : StoredFormOfRule(rules[i])) {
            std::wstring subkey = key;
            if (!name.empty()) {
                subkey.append(L"\\").append(name);
            }
            tree[subkey] = values;
        }
    }
    return tree;
}

Texts TakeRefreshTimes(StoredTree& tree) {
    Texts csProfiles;
    RegistryValues& values = tree[L""];
    const auto stored = values.find(L"LastCrlUpdate");
    if (stored != values.end()) {
        for (const std::wstring& entry : std::get<Texts>(stored->second)) {
            csProfiles.push_back(entry.substr(0, entry.find(L";;")));
        }
        values.erase(stored);
    }
    return csProfiles;
}

}  // namespace corvane::test
