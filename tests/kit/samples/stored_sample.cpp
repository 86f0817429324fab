#include "tests/kit/samples/stored_sample.h"

namespace corvane::test {

Texts SampleDescriptions() {
    return {L"Encrypt orders",
            L"Move invoices",
            L"\u041F\u043E\u0434\u043F\u0438\u0441\u044C \u043F\u0440\u0438\u043A\u0430\u0437\u043E\u0432",
            L"Pack archive",
            L"Run tool",
            L"Delete orders"};
}

Texts SampleOperations() {
    return {L"ENCR", L"MOVE", L"RESG", L"PACK", L"EXEC", L"DELE"};
}

void WriteCatalogue(const Texts& names) {
    CreateRegistryKey(kCatalogueKey);
    int number = 1;
    for (const std::wstring& name : names) {
        WriteRegistryValue(std::wstring(kCatalogueKey) + L"\\" + std::to_wstring(number++), L"ProfileName",
                           name);
    }
}

void WriteProfile(const std::wstring& name, const Texts& csProfiles) {
    const std::wstring key = std::wstring(kProgramKey) + L"\\" + name;
    WriteRegistryValue(key, L"ZCSProfile", csProfiles);
    WriteRegistryValue(key, L"ServerTSP", Texts(csProfiles.size(), L"0"));
    for (const wchar_t* value : {L"NotUseLDAP", L"NotCopyToLocal", L"AutoUseTSP", L"AutoVerifyTSP",
                                 L"NoTSPisError", L"UseAIA", L"NotAddCert", L"NotLoadCrl"}) {
        WriteRegistryValue(key, value, Texts(csProfiles.size(), L"0"));
    }
    WriteRegistryValue(key, L"CrlUpdatePeriod", Texts(csProfiles.size(), L"1"));
    CreateRegistryKey(key + L"\\rules");
}

std::wstring RuleKey(const std::wstring& profile, int number) {
    return std::wstring(kProgramKey) + L"\\" + profile + L"\\rules\\Rule " + std::to_wstring(number);
}

void WriteRule(const std::wstring& profile, int number, const StoredRule& rule) {
    const std::wstring key = RuleKey(profile, number);
    for (const auto& [name, data] : rule.values) {
        WriteRegistryValue(key, name, data);
    }
    WriteRegistryValue(key, L"Mask num", static_cast<std::uint32_t>(rule.masks.size()));
    for (std::size_t i = 0; i < rule.masks.size(); ++i) {
        WriteRegistryValue(key, L"M" + std::to_wstring(i), rule.masks[i]);
    }
    WriteRegistryValue(key, L"Ext num", static_cast<std::uint32_t>(rule.recipients.size()));
    for (std::size_t i = 0; i < rule.recipients.size(); ++i) {
        WriteRegistryValue(key, L"C" + std::to_wstring(i), rule.recipients[i]);
    }
    for (const auto& [name, signers] : rule.signerLists) {
        const std::wstring listKey = key + L"\\" + name;
        WriteRegistryValue(listKey, L"Signer Num", static_cast<std::uint32_t>(signers.size()));
        for (std::size_t i = 0; i < signers.size(); ++i) {
            WriteRegistryValue(listKey, L"S" + std::to_wstring(i), signers[i]);
        }
    }
}

StoredRule PlainRule(const std::wstring& operation, const std::wstring& description, std::uint32_t isOn) {
    StoredRule rule;
    rule.values = {{L"Operation", operation}, {L"Descryption", description},  {L"Path In", L"C:\\in"},
                   {L"Path Out", L"C:\\out"}, {L"Path Error", L"C:\\failed"}, {L"ZCSProfile", L"CS one"},
                   {L"Is on", isOn}};
    rule.masks = {L"*.xml"};
    return rule;
}

void WriteSampleConfiguration() {
    WriteCatalogue({L"CS one", L"CS two"});
    WriteProfile(L"alpha", {L"CS one", L"CS two"});
    WriteProfile(L"beta", {L"CS one"});
    WriteProfile(L"gamma", {L"CS two"});

    const Texts descriptions = SampleDescriptions();
    StoredRule encrypt = PlainRule(L"ENCR", descriptions[kEncrypt], 1);
    encrypt.recipients = {L"CN=First", L"CN=Second"};
    encrypt.values[L"ZipFile"] = 1U;
    WriteRule(L"alpha", kEncrypt, encrypt);

    StoredRule move = PlainRule(L"MOVE", descriptions[kMove]);
    move.values[L"Path Out"] = L"0";
    move.values[L"Path Out 2"] = L"C:\\second";
    move.values[L"DelExt"] = L"tmp";
    move.values[L"AddExt"] = L"done";
    move.values[L"ZCSProfile"] = L"0";
    move.masks = {L"*.a", L"*.b"};
    move.recipients = {L"CN=Third"};
    WriteRule(L"alpha", kMove, move);

    StoredRule resign = PlainRule(L"RESG", descriptions[kResign], 1);
    resign.values[L"ResignProfile"] = L"CS two";
    resign.values[L"In format det"] = 1U;
    resign.signerLists = {{L"Board", {L"CN=Chair", L"CN=Secretary"}}};
    WriteRule(L"alpha", kResign, resign);

    StoredRule pack = PlainRule(L"PACK", descriptions[kPack]);
    pack.values[L"ZipFile"] = 2U;
    pack.values[L"ArchCount"] = 10U;
    pack.values[L"ArchSize"] = 2048U;
    pack.values[L"ArchTimeout"] = 5U;
    pack.values[L"ArchName"] = L"pack";
    WriteRule(L"alpha", kPack, pack);

    StoredRule execute = PlainRule(L"EXEC", descriptions[kExecute], 1);
    execute.values[L"ExecName"] = L"C:\\tool.exe";
    execute.values[L"ExecTimeout"] = 7U;
    WriteRule(L"alpha", kExecute, execute);

    WriteRule(L"alpha", kDelete, PlainRule(L"DELE", descriptions[kDelete]));

    WriteRule(L"beta", 0, PlainRule(L"HASH", L"Hash reports", 1));
    WriteRule(L"beta", 1, PlainRule(L"B64E", L"Encode reports"));

    WriteRule(L"gamma", 0, PlainRule(L"HASH", L"Hash letters"));
    WriteRule(L"gamma", 1, PlainRule(L"B64D", L"Decode letters"));
}

Texts StoredRuleTexts(const std::wstring& profile, const std::wstring& value) {
    Texts texts;
    for (int number = 0; RegistryKeyExists(RuleKey(profile, number)); ++number) {
        texts.push_back(std::get<std::wstring>(ReadRegistryValue(RuleKey(profile, number), value)));
    }
    return texts;
}

std::vector<std::uint32_t> StoredSwitches(const std::wstring& profile) {
    std::vector<std::uint32_t> switches;
    for (int number = 0; RegistryKeyExists(RuleKey(profile, number)); ++number) {
        switches.push_back(std::get<std::uint32_t>(ReadRegistryValue(RuleKey(profile, number), L"Is on")));
    }
    return switches;
}

}  // namespace corvane::test
