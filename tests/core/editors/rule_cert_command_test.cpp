#include "editors/rule_cert_command.h"

#include <gtest/gtest.h>

#include "tests/core/editors/sample_rules.h"
#include "tests/support/registry_snapshot.h"

namespace corvane::testing {
namespace {

TEST(CertButtonCommand, OpensWhatTheOperationNeeds) {
    for (const std::wstring code : kCodes) {
        const CertCommand expected = IsOneOf(code, L"ENCR LENC SGEN") ? CertCommand::kChooseRecipients
                                     : IsOneOf(code, L"CHCK CHKX DCHK RESG DCCX")
                                         ? CertCommand::kEditSignerLists
                                     : code == L"MOVE" ? CertCommand::kPickFolder
                                     : code == L"EXEC" ? CertCommand::kPickExecutable
                                                       : CertCommand::kNone;
        EXPECT_EQ(CertButtonCommand(Opened(FullRule(code))), expected) << Printable(code);
    }
}

TEST(CertButtonCommand, TheExecutableIsPickedAmongAllFiles) {
    EXPECT_STREQ(kExecutableFilter, L"All files (*.*)|*.*||");
    EXPECT_STREQ(kExecutableDefaultExtension, L"*.*");
}

TEST(SelectedCsProfileIndex, IsThatOfTheSelectedEntry) {
    RuleForm form = Opened(FullRule(L"ENCR"));
    EXPECT_EQ(CsProfileAt(form.profile, SelectedCsProfileIndex(form)).name, L"Second");
    form.csProfile.index = 0;
    EXPECT_EQ(SelectedCsProfileIndex(form), 0U);
}

TEST(SelectedCsProfileIndex, WithoutASelectionIsThatOfNoCsProfile) {
    RuleForm form = Opened(FullRule(L"ENCR"));
    form.csProfile.index = -1;
    EXPECT_EQ(CsProfileAt(form.profile, SelectedCsProfileIndex(form)), CsProfile());
}

TEST(TakeCertPath, PutsThePathIntoTheCertificateField) {
    RuleForm form = Opened(FullRule(L"MOVE"));
    TakeCertPath(form, L"D:\\other");
    EXPECT_EQ(form.cert.text, L"D:\\other");
}

TEST(TakeRecipients, ReplacesThemAndShowsTheirNumber) {
    RuleForm form = Opened(FullRule(L"ENCR"));
    TakeRecipients(form, {L"CN=X", L"CN=Y", L"CN=Z"});
    EXPECT_EQ(form.recipients, (corvane::TextList{L"CN=X", L"CN=Y", L"CN=Z"}));
    EXPECT_EQ(form.cert.text, L"3");
    TakeRecipients(form, {});
    EXPECT_EQ(form.cert.text, L"0");
}

TEST(TakeSignerLists, ReplacesThemAndShowsTheirNumber) {
    RuleForm form = Opened(FullRule(L"CHCK"));
    TakeSignerLists(form, {{L"only", {L"CN=X"}}});
    EXPECT_EQ(form.result.signerGroups, (std::vector<SignerGroup>{{L"only", {L"CN=X"}}}));
    EXPECT_EQ(form.cert.text, L"1");
    TakeSignerLists(form, {});
    EXPECT_EQ(form.cert.text, L"0");
}

}  // namespace
}  // namespace corvane::testing
