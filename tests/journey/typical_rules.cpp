#include "tests/journey/typical_rules.h"

#include "res/ids.h"
#include "tests/kit/fixtures/journey_fixture.h"
#include "tests/kit/samples/operation_witness.h"

namespace corvane::test {

namespace {

constexpr wchar_t kZip[] = L"ZIP archivation";
constexpr wchar_t kGzip[] = L"GZIP archivation";

/// An operation that asks for nothing but folders, masks and, in some, the CS profile.
TypicalRule PlainTypicalRule(const std::wstring& code, const std::wstring& csProfile,
                             const std::wstring& mask) {
    return {.code = code,
            .operation = NameOfCode(code),
            .csProfile = csProfile,
            .masks = {mask},
            .recipients = {},
            .signerLists = {},
            .typed = {},
            .chosen = {},
            .masksCell = mask,
            .extraCell = {},
            .ownValues = {}};
}

TypicalRule ArchivingRule(TypicalRule rule, const std::wstring& choice, const std::wstring& extraCell,
                          std::uint32_t zipFile) {
    rule.chosen = {{IDC_RULE_ROW2_COMBO, choice}};
    rule.extraCell = extraCell;
    rule.ownValues = {{L"ZipFile", zipFile}};
    return rule;
}

TypicalRule EncryptingRule(const std::wstring& code, const std::wstring& csProfile, const Texts& recipients) {
    TypicalRule rule = PlainTypicalRule(code, csProfile, L"*.xml");
    rule.recipients = recipients;
    return rule;
}

TypicalRule VerifyingRule(const std::wstring& code, const std::wstring& csProfile,
                          const std::vector<NamedSigners>& lists, const std::wstring& extraCell) {
    TypicalRule rule = PlainTypicalRule(code, csProfile, L"*.p7s");
    rule.signerLists = lists;
    rule.extraCell = extraCell;
    return rule;
}

TypicalRule ResigningRule() {
    TypicalRule rule = VerifyingRule(L"RESG", kFirstCsProfile, {{L"Claims", {kDanielOkafor}}},
                                     L"1; Partner exchange; Attached signature->Detached signature");
    rule.chosen = {{IDC_RULE_ROW2_COMBO, L"Detached signature"}, {IDC_RULE_ROW3_COMBO, kSecondCsProfile}};
    rule.ownValues = {{L"In format det", 0U}, {L"Out format det", 1U}, {L"ResignProfile", kSecondCsProfile}};
    return rule;
}

TypicalRule MovingRule() {
    TypicalRule rule = PlainTypicalRule(L"MOVE", L"", L"");
    rule.masks = {L"*.csv", L"report_????.xml", L"*.csv"};
    rule.masksCell = L"3";
    rule.typed = {{IDC_RULE_CERT_EDIT, kExchangeSent},
                  {IDC_RULE_ROW1_EDIT, L"tmp"},
                  {IDC_RULE_ROW2_EDIT, L"done"},
                  {IDC_RULE_ROW3_EDIT, L"%Y\\%m"},
                  {IDC_RULE_ROW4_EDIT, L"copy %d"}};
    rule.extraCell = L"C:\\Exchange\\Sent; tmp; done; %Y\\%m; copy %d";
    rule.ownValues = {{L"Path Out 2", kExchangeSent},
                      {L"DelExt", L"tmp"},
                      {L"AddExt", L"done"},
                      {L"Folders", L"%Y\\%m"},
                      {L"Copyfolders", L"copy %d"}};
    return rule;
}

TypicalRule PackingRule() {
    TypicalRule rule = PlainTypicalRule(L"PACK", L"", L"*.pdf");
    rule.typed = {{IDC_RULE_ROW1_NUMBER_EDIT, L"200"},
                  {IDC_RULE_ROW2_NUMBER_EDIT, L"10240"},
                  {IDC_RULE_ROW3_NUMBER_EDIT, L"30"},
                  {IDC_RULE_ROW4_EDIT, L"contracts_%d"}};
    rule.extraCell = L"200; 10240; 30; contracts_%d";
    rule.ownValues = {
        {L"ArchCount", 200U}, {L"ArchSize", 10240U}, {L"ArchTimeout", 30U}, {L"ArchName", L"contracts_%d"}};
    return rule;
}

TypicalRule ExecutingRule() {
    TypicalRule rule = PlainTypicalRule(L"EXEC", L"", L"*");
    rule.typed = {{IDC_RULE_CERT_EDIT, L"C:\\Ledger\\import.exe"}, {IDC_RULE_ROW1_NUMBER_EDIT, L"5"}};
    rule.extraCell = L"C:\\Ledger\\import.exe; 5";
    rule.ownValues = {{L"ExecName", L"C:\\Ledger\\import.exe"}, {L"ExecTimeout", 5U}};
    return rule;
}

}  // namespace

std::vector<TypicalRule> RulesWithRecipients() {
    return {
        EncryptingRule(L"ENCR", kFirstCsProfile, {kHelenMarsh, kOliverTrent}),
        ArchivingRule(EncryptingRule(L"LENC", kSecondCsProfile, {kDanielOkafor}), kGzip,
                      L"; GZIP archivation", 2),
        ArchivingRule(EncryptingRule(L"SGEN", kFirstCsProfile, {kOliverTrent, kAstridLindholm, kHelenMarsh}),
                      kZip, L"; ZIP archivation", 1),
    };
}

std::vector<TypicalRule> RulesWithSigners() {
    return {
        VerifyingRule(L"CHCK", kFirstCsProfile,
                      {{L"Directors", {kHelenMarsh}}, {L"Settlement desk", {kOliverTrent}}}, L"2"),
        VerifyingRule(L"CHKX", kSecondCsProfile, {{L"Dispatchers", {kErikSandberg, kAstridLindholm}}}, L"1"),
        VerifyingRule(L"DCHK", kFirstCsProfile, {}, L""),
        ResigningRule(),
        ArchivingRule(VerifyingRule(L"DCCX", kFirstCsProfile, {{L"Dispatchers", {kErikSandberg}}}, L""), kZip,
                      L"; ZIP archivation", 1),
    };
}

std::vector<TypicalRule> RulesWithoutCertificates() {
    return {
        ArchivingRule(PlainTypicalRule(L"DECR", kFirstCsProfile, L"*.p7e"), kZip, kZip, 1),
        PlainTypicalRule(L"HASH", kSecondCsProfile, L"*"),
        PlainTypicalRule(L"B64E", L"", L"*"),
        PlainTypicalRule(L"B64D", L"", L"*.b64"),
        PlainTypicalRule(L"SIGN", kFirstCsProfile, L"*.pdf"),
        MovingRule(),
        PlainTypicalRule(L"DELE", L"", L"~*"),
        PlainTypicalRule(L"LDEC", kFirstCsProfile, L"*.p7e"),
        PlainTypicalRule(L"CDSG", kFirstCsProfile, L"*.pdf"),
        PlainTypicalRule(L"DSIG", kSecondCsProfile, L"*.p7d"),
        PlainTypicalRule(L"DELS", kFirstCsProfile, L"*.p7s"),
        ArchivingRule(PlainTypicalRule(L"ARCH", L"", L"*.log"), kGzip, kGzip, 2),
        ArchivingRule(PlainTypicalRule(L"UNAR", L"", L"*.zip"), kZip, kZip, 1),
        PackingRule(),
        PlainTypicalRule(L"UNPK", L"", L"*.zip"),
        ExecutingRule(),
    };
}

}  // namespace corvane::test
