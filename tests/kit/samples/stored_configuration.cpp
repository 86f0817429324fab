#include "tests/kit/samples/stored_configuration.h"

#include <utility>

namespace corvane::test {

namespace {

void PutRule(MemoryRegistry& registry, const std::wstring& key, std::wstring_view operation) {
    registry.PutText(key, L"Operation", operation);
    registry.PutText(key, L"Path In", L"C:\\in");
    registry.PutText(key, L"Path Out", L"C:\\out");
    registry.PutText(key, L"ZCSProfile", L"Main CSP");
    registry.PutNumber(key, L"Is on", 1);
    registry.PutNumber(key, L"ArchSize", 7);
}

void PutSignerList(MemoryRegistry& registry, const std::wstring& key, std::wstring_view signer) {
    registry.PutNumber(key, L"Signer Num", 2);
    registry.PutText(key, L"S0", signer);
    registry.PutText(key, L"S1", L"CN=Second");
}

void PutProfile(MemoryRegistry& registry, const std::wstring& key) {
    registry.PutTextList(key, L"ServerTSP", {L"http://tsp", L"0"});
    registry.PutTextList(key, L"ZCSProfile", {L"Main CSP", L"Second CSP"});
    registry.PutTextList(key, L"NotUseLDAP", {L"1", L"0"});
    registry.PutTextList(key, L"NotLoadCrl", {L"0", L"1"});
    registry.PutTextList(key, L"CrlUpdatePeriod", {L"24"});
    registry.PutNumber(key, L"Verify File", 1);
    registry.PutNumber(key, L"Handler timeout", 30);
    registry.PutKey(key + L"\\rules");
}

store::Rule RuleOf(std::wstring_view operation) {
    store::Rule rule;
    rule.operation = operation;
    rule.masks = {L"*.txt"};
    return rule;
}

}  // namespace

void PutStoredConfiguration(MemoryRegistry& registry) {
    registry.PutText(kCatalogue + L"\\{1}", L"ProfileName", L"Main CSP");
    registry.PutText(kCatalogue + L"\\{2}", L"ProfileName", L"Second CSP");
    registry.PutNumber(kProgram, L"Window_top", 10);
    registry.PutNumber(kProgram, L"Window_left", 20);
    registry.PutText(kProgram, L"SigExt", L"sig");
    registry.PutTextList(kProgram, L"ExtExt", {L"doc", L"pdf"});
    registry.PutText(kProgram, L"LogPath", L"C:\\log");
    registry.PutNumber(kProgram, L"Log filesize", 5000);

    const std::wstring mail = kProgram + L"\\Mail";
    PutProfile(registry, mail);
    const std::wstring first = mail + L"\\rules\\Rule 0";
    PutRule(registry, first, L"SGEN");
    registry.PutNumber(first, L"Mask num", 2);
    registry.PutText(first, L"M0", L"*.txt");
    registry.PutText(first, L"M1", L"*.doc");
    registry.PutNumber(first, L"Ext num", 2);
    registry.PutText(first, L"C0", L"CN=A");
    registry.PutText(first, L"C1", L"CN=B");
    PutSignerList(registry, first + L"\\Officers", L"CN=Officer");
    PutSignerList(registry, first + L"\\Clerks", L"CN=Clerk");
    const std::wstring second = mail + L"\\rules\\Rule 1";
    PutRule(registry, second, L"ARCH");
    registry.PutText(second, L"Mask", L"*.old");
    const std::wstring third = mail + L"\\rules\\Rule 2";
    PutRule(registry, third, L"RESG");
    registry.PutNumber(third, L"Mask num", 1);
    registry.PutText(third, L"M0", L"*");
    registry.PutNumber(third, L"Ext num", 1);
    registry.PutText(third, L"C0", L"Second CSP");

    PutProfile(registry, kProgram + L"\\Gone");
    const std::wstring gone = kProgram + L"\\Gone\\rules\\Rule 0";
    PutRule(registry, gone, L"SIGN");
    PutSignerList(registry, gone + L"\\Officers", L"CN=Officer");

    PutProfile(registry, kProgram + L"\\Quiet");
}

store::ConfigurationState ChangedConfiguration() {
    store::ConfigurationState state;
    state.csProfileCatalogue = {L"Main CSP", L"Second CSP"};
    state.settings.encryptedExtension = L"enc";
    state.settings.additionalExtensions = {L"xml"};
    state.settings.logPath = L"D:\\log";
    for (const wchar_t* name : {L"Mail", L"New", L"Quiet", L"Newer"}) {
        state.profileNames.emplace_back(name);
        store::Profile& profile = state.profiles.emplace_back();
        profile.name = name;
        profile.timeStampServers = {L"", L"http://tsp"};
        profile.csProfiles = {L"Main CSP", name};
        profile.notLoadCrl = {0, 1};
        profile.crlUpdatePeriods = {1, 2};
    }
    store::Rule signing = RuleOf(L"SIGN");
    signing.signerGroups = {{L"Officers", {L"CN=Officer"}}, {L"Clerks", {L"CN=Clerk", L"CN=Other"}}};
    store::Rule encrypting = RuleOf(L"ENCR");
    encrypting.recipients = {L"CN=A", L"CN=B"};
    state.profiles[0].rules = {signing, RuleOf(L""), encrypting};
    state.profiles[1].rules = {signing};
    state.profiles[3].rules = {RuleOf(L"MOVE")};
    state.currentProfileName = L"New";
    state.isDirty = true;
    return state;
}

}  // namespace corvane::test
