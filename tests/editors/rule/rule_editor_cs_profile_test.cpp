// The guard on changing the CS profile of a rule that has certificates, with its one remembered index.

#include <windows.h>

#include "tests/kit/fixtures/rule_editor_fixture.h"

namespace corvane::test {
namespace {

constexpr wchar_t kRecipientsQuestion[] =
    L"Recipients field must be clean to change CS profile.\r\nDelete all recipients from rule?";
constexpr wchar_t kSignersQuestion[] =
    L"Signers field must be clean to change CS profile.\r\nDelete all signer lists from rule?";

class CsProfileGuard : public RuleEditorTest {
  protected:
    static void ExpectShown(const Window& dialog, const std::wstring& csProfile, const std::wstring& count) {
        SettleEditor(dialog);
        EXPECT_EQ(SelectedEntry(dialog.Control(IDC_RULE_CS_PROFILE_COMBO)), csProfile);
        EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), count);
    }
    /// Answers a question and comes back when what follows has been done.
    void Answer(const Window& dialog, const std::wstring& question, int answer) const {
        AnswerBox(dialog, question, kConfirmation, answer);
        WaitForEditor(dialog);
    }
};

TEST_F(CsProfileGuard, YesDropsTheRecipients) {
    const Window dialog = StartAndOpen(FullRule(L"ENCR"));
    PostCsProfile(dialog, 0);
    Answer(dialog, kRecipientsQuestion, IDYES);
    ExpectShown(dialog, L"CS one", L"0");
    ExpectErrorBox(dialog, L"No certificate is selected for operation.", IDI_CERTIFICATES,
                   IDC_RULE_CERT_BUTTON);
    Close(dialog, IDCANCEL);
}

TEST_F(CsProfileGuard, NoGoesBackAndKeepsTheRecipients) {
    const Window dialog = StartAndOpen(FullRule(L"ENCR"));
    PostCsProfile(dialog, 0);
    Answer(dialog, kRecipientsQuestion, IDNO);
    ExpectShown(dialog, L"CS two", L"2");
    Close(dialog, IDOK);
    RegistryValues rule = SaveAndRead(0)[L""];
    EXPECT_EQ(rule[L"ZCSProfile"], RegistryData(L"CS two"));
    EXPECT_EQ(rule[L"Ext num"], RegistryData(2U));
}

TEST_F(CsProfileGuard, YesDropsTheSignerLists) {
    const Window dialog = StartAndOpen(FullRule(L"CHCK"));
    PostCsProfile(dialog, 0);
    Answer(dialog, kSignersQuestion, IDYES);
    ExpectShown(dialog, L"CS one", L"0");
    Close(dialog, IDOK);
    EXPECT_EQ(Rules().Cell(0, kExtraColumn), L"");
    EXPECT_EQ(Rules().Cell(0, kCsProfileColumn), L"CS one");
}

TEST_F(CsProfileGuard, NoGoesBackAndKeepsTheSignerLists) {
    const Window dialog = StartAndOpen(FullRule(L"DCHK"));
    PostCsProfile(dialog, 0);
    Answer(dialog, kSignersQuestion, IDNO);
    ExpectShown(dialog, L"CS two", L"3");
    Close(dialog, IDCANCEL);
}

TEST_F(CsProfileGuard, TheQuestionKeepsWhatIsBeingTyped) {
    const Window dialog = StartAndOpen(FullRule(L"CHCK"));
    dialog.Control(IDC_RULE_ERROR_EDIT).SetText(L"C:\\half typ");
    PostCsProfile(dialog, 0);
    Answer(dialog, kSignersQuestion, IDNO);
    EXPECT_EQ(dialog.Control(IDC_RULE_ERROR_EDIT).Text(), L"C:\\half typ");
    Close(dialog, IDCANCEL);
}

TEST_F(CsProfileGuard, WithoutCertificatesNothingIsAsked) {
    const Window dialog = StartAndOpen(FullRule(L"HASH"));
    PostCsProfile(dialog, 0);
    ExpectShown(dialog, L"CS one", L"0");
    EXPECT_TRUE(dialog.IsEnabled());
    Close(dialog, IDCANCEL);
}

TEST_F(CsProfileGuard, GoingToTheAcceptedOneAsksNothing) {
    const Window dialog = StartAndOpen(FullRule(L"ENCR"));
    PostCsProfile(dialog, 1);
    ExpectShown(dialog, L"CS two", L"2");
    EXPECT_TRUE(dialog.IsEnabled());
    Close(dialog, IDCANCEL);
}

}  // namespace
}  // namespace corvane::test
