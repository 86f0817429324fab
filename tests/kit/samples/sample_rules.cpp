#include "tests/kit/samples/sample_rules.h"

namespace corvane::test {

bool IsOneOf(const std::wstring& code, const std::wstring& codes) {
    return (L" " + codes + L" ").find(L" " + code + L" ") != std::wstring::npos;
}

store::Profile SampleProfile() {
    store::Profile profile;
    profile.name = L"sample";
    profile.csProfiles = {L"First", L"Second", L"Third"};
    profile.timeStampServers = {L"0", L"http://second", L"0"};
    profile.notUseDirectory = {1, 0, 1};
    profile.crlUpdatePeriods = {1, 24, 1};
    return profile;
}

store::Rule FullRule(const std::wstring& code) {
    store::Rule rule;
    rule.csProfile = L"Second";
    rule.resignProfile = L"Third";
    rule.operation = code;
    rule.inputFolder = L"C:\\in";
    rule.outputFolder = L"C:\\out";
    rule.secondOutput = L"C:\\second";
    rule.errorFolder = L"C:\\error";
    rule.legacyMask = L"*.old";
    rule.description = L"What it is for\r\nin two lines";
    rule.deleteExtension = L"del";
    rule.addExtension = L"add";
    rule.folders = L"%Y";
    rule.copyFolders = L"%M";
    rule.archiveName = L"name%D";
    rule.executable = L"C:\\run.exe";
    rule.recipients = {L"CN=A", L"CN=B"};
    rule.masks = {L"*.txt", L"*.doc"};
    rule.isOn = 0;
    rule.inputDetached = 1;
    rule.outputDetached = 1;
    rule.signerGroups = {{L"one", {L"CN=S"}}, {L"two", {}}, {L"three", {}}};
    rule.archiveFormat = 2;
    rule.archiveFileCount = 11;
    rule.archiveSize = 12;
    rule.archiveTimeout = 13;
    rule.executionTimeout = 14;
    return rule;
}

editors::RuleForm Opened(const store::Rule& rule) {
    editors::AcceptedCsProfile accepted;
    return editors::OpenRule(SampleProfile(), rule, accepted);
}

void SelectOperation(editors::RuleForm& form, const std::wstring& code) {
    form.operation.index = IndexOfCode(code);
    editors::ChangeOperation(form);
}

}  // namespace corvane::test
