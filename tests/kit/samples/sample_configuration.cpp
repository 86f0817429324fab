#include "tests/kit/samples/sample_configuration.h"

#include "tests/kit/samples/operation_witness.h"

namespace corvane::test {
namespace {

store::Rule UsualRule(std::size_t number) {
    const std::wstring text = std::to_wstring(number);
    store::Rule rule;
    rule.operation = kCodes.at(number % kCodes.size());
    rule.csProfile = L"Signature 2012";
    rule.inputFolder = L"C:\\Exchange\\Incoming\\Branch " + text;
    rule.outputFolder = L"C:\\Exchange\\Done\\Branch " + text;
    rule.errorFolder = L"C:\\Exchange\\Failed\\Branch " + text;
    rule.description = L"Reports of branch " + text;
    rule.masks = {L"*.xml"};
    rule.recipients = {L"CN=Anna Berg,O=Nordhafen,C=DE", L"CN=Ivan Orlov,O=Volna,C=RU"};
    rule.isOn = number % 3 == 0 ? 0 : 1;
    if (number % 20 == 0) {
        rule.signerGroups = {{.name = L"Board", .signers = {L"CN=Jan Maas,O=Nordhafen,C=DE"}}};
    }
    return rule;
}

store::Profile UsualProfile(std::size_t number, std::size_t ruleCount) {
    store::Profile profile;
    profile.name = L"Profile " + std::to_wstring(number);
    profile.csProfiles = {L"Signature 2012"};
    profile.timeStampServers = {L"0"};
    profile.notUseDirectory = {1};
    profile.notAddCertificate = {0};
    profile.notCopyToLocal = {0};
    profile.autoVerifyTimeStamp = {0};
    profile.noTimeStampIsError = {0};
    profile.useAuthorityAccess = {0};
    profile.autoUseTimeStamp = {0};
    profile.notLoadCrl = {0};
    profile.crlUpdatePeriods = {1};
    for (std::size_t rule = 0; rule < ruleCount; ++rule) {
        profile.rules.push_back(UsualRule(rule));
    }
    return profile;
}

}  // namespace

store::ConfigurationState SampleConfiguration(std::size_t profileCount, std::size_t rulesPerProfile) {
    store::ConfigurationState state;
    for (std::size_t number = 0; number < profileCount; ++number) {
        state.profiles.push_back(UsualProfile(number, rulesPerProfile));
        state.profileNames.push_back(state.profiles.back().name);
    }
    return state;
}

}  // namespace corvane::test
