#include "editors/rule/rule_cert_command.h"

#include <gtest/gtest.h>

#include "tests/kit/fakes/registry_snapshot.h"
#include "tests/kit/samples/sample_rules.h"

namespace corvane::test {
namespace {

TEST(CertButtonCommand, OpensWhatTheOperationNeeds) {
    for (const std::wstring code : kCodes) {
        const editors::CertCommand expected =
            IsOneOf(code, L"ENCR LENC SGEN")             ? editors::CertCommand::kChooseRecipients
            : IsOneOf(code, L"CHCK CHKX DCHK RESG DCCX") ? editors::CertCommand::kEditSignerLists
            : code == L"MOVE"                            ? editors::CertCommand::kPickFolder
            : code == L"EXEC"                            ? editors::CertCommand::kPickExecutable
                                                         : editors::CertCommand::kNone;
        EXPECT_EQ(editors::CertButtonCommand(Opened(FullRule(code))), expected) << Printable(code);
    }
}

TEST(CertButtonCommand, TheExecutableIsPickedAmongAllFiles) {
    EXPECT_STREQ(editors::kExecutableFilter, L"All files (*.*)|*.*||");
    EXPECT_STREQ(editors::kExecutableDefaultExtension, L"*.*");
}

TEST(SelectedCsProfileIndex, IsThatOfTheSelectedEntry) {
    editors::RuleForm form = Opened(FullRule(L"ENCR"));
    EXPECT_EQ(store::CsProfileAt(form.profile, editors::SelectedCsProfileIndex(form)).name, L"Second");
    form.csProfile.index = 0;
    EXPECT_EQ(editors::SelectedCsProfileIndex(form), 0U);
}

TEST(SelectedCsProfileIndex, WithoutASelectionIsThatOfNoCsProfile) {
    editors::RuleForm form = Opened(FullRule(L"ENCR"));
    form.csProfile.index = -1;
    EXPECT_EQ(store::CsProfileAt(form.profile, editors::SelectedCsProfileIndex(form)), store::CsProfile());
}

TEST(TakeCertPath, PutsThePathIntoTheCertificateField) {
    editors::RuleForm form = Opened(FullRule(L"MOVE"));
    editors::TakeCertPath(form, L"D:\\other");
    EXPECT_EQ(form.cert.text, L"D:\\other");
}

TEST(TakeRecipients, ReplacesThemAndShowsTheirNumber) {
    editors::RuleForm form = Opened(FullRule(L"ENCR"));
    editors::TakeRecipients(form, {L"CN=X", L"CN=Y", L"CN=Z"});
    EXPECT_EQ(form.recipients, (corvane::store::TextList{L"CN=X", L"CN=Y", L"CN=Z"}));
    EXPECT_EQ(form.cert.text, L"3");
    editors::TakeRecipients(form, {});
    EXPECT_EQ(form.cert.text, L"0");
}

TEST(TakeSignerLists, ReplacesThemAndShowsTheirNumber) {
    editors::RuleForm form = Opened(FullRule(L"CHCK"));
    editors::TakeSignerLists(form, {{L"only", {L"CN=X"}}});
    EXPECT_EQ(form.result.signerGroups, (std::vector<store::SignerGroup>{{L"only", {L"CN=X"}}}));
    EXPECT_EQ(form.cert.text, L"1");
    editors::TakeSignerLists(form, {});
    EXPECT_EQ(form.cert.text, L"0");
}

}  // namespace
}  // namespace corvane::test
