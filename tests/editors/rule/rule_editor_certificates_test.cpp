// The certificate button of the rule editor with the stand-in provider and its certificates beside the
// program.

#include <windows.h>

#include "tests/kit/fixtures/certificate_steps.h"
#include "tests/kit/fixtures/rule_editor_fixture.h"

namespace corvane::test {
namespace {

constexpr wchar_t kHelen[] = L"CN=Helen Marsh,OU=Settlement,O=Northgate Clearing,C=GB";
constexpr wchar_t kOliver[] = L"CN=Oliver Trent,OU=Settlement,O=Northgate Clearing,C=GB";
constexpr wchar_t kRecipientsQuestion[] =
    L"Recipients field must be clean to change CS profile.\r\nDelete all recipients from rule?";

class RuleCertificates : public RuleEditorTest {
  protected:
    /// Starts on these rules, with CS profiles that ask the network store for nothing.
    void StartQuietly(const std::vector<StoredRule>& rules) {
        WriteCatalogue({L"CS one", L"CS two"});
        WriteProfile(L"alpha", {L"CS one", L"CS two"});
        const std::wstring profile = std::wstring(kProgramKey) + L"\\alpha";
        WriteRegistryValue(profile, L"NotUseLDAP", Texts{L"1", L"1"});
        WriteRegistryValue(profile, L"NotLoadCrl", Texts{L"1", L"1"});
        for (std::size_t i = 0; i < rules.size(); ++i) {
            WriteRule(L"alpha", static_cast<int>(i), rules[i]);
        }
        Start();
    }
    [[nodiscard]] static std::wstring Count(const Window& dialog) {
        return dialog.Control(IDC_RULE_CERT_EDIT).Text();
    }
    [[nodiscard]] static std::wstring CsProfileShown(const Window& dialog) {
        return SelectedEntry(dialog.Control(IDC_RULE_CS_PROFILE_COMBO));
    }
    /// Presses the certificate button and waits for a dialog that has this control.
    [[nodiscard]] Window OpenByButton(const Window& dialog, int controlId) const {
        dialog.Control(IDC_RULE_CERT_BUTTON).PostClick();
        return WaitForDialogWith(Editor(), dialog, controlId);
    }
};

TEST_F(RuleCertificates, ChosenRecipientsAreCountedCommittedAndShownAgain) {
    StartQuietly({});
    const Window dialog = OpenNew();
    FillFolders(dialog);
    AddMaskByDialog(dialog, L"*.xml");
    ChooseRecipients(Editor(), dialog, {kHelen, kOliver});
    EXPECT_EQ(Count(dialog), L"2");
    EXPECT_EQ(dialog.Control(IDC_RULE_INPUT_EDIT).Text(), kInFolder);
    const Window again = OpenByButton(dialog, IDC_SELECTION_CHOSEN_LIST);
    EXPECT_EQ(ListView(again.Control(IDC_SELECTION_CHOSEN_LIST)).Column(0), (Texts{kHelen, kOliver}));
    EndDialog(again, IDCANCEL);
    EXPECT_EQ(Count(dialog), L"2");
    Close(dialog, IDOK);
    RegistryValues rule = SaveAndRead(0)[L""];
    EXPECT_EQ(rule[L"Ext num"], RegistryData(2U));
    EXPECT_EQ(rule[L"C0"], RegistryData(kHelen));
    EXPECT_EQ(rule[L"C1"], RegistryData(kOliver));
}

TEST_F(RuleCertificates, SignerListsAreCountedCommittedAndKeptByExit) {
    StartQuietly({FullRule(L"CHCK")});
    const Window dialog = OpenStored();
    Window lists = OpenByButton(dialog, IDC_SIGNER_LISTS_EDIT_BUTTON);
    AddSignerListByDialog(Editor(), lists, {L"New", {kHelen}});
    EndDialog(lists, IDCANCEL);
    EXPECT_EQ(Count(dialog), L"3");
    AddSignerLists(Editor(), dialog, {{L"New", {kHelen}}});
    EXPECT_EQ(Count(dialog), L"4");
    Close(dialog, IDOK);
    EXPECT_EQ(Rules().Cell(0, kExtraColumn), L"4");
    EXPECT_EQ(SaveAndRead(0)[L"New"][L"S0"], RegistryData(kHelen));
}

// Deliberate: the accepted CS profile is one for the whole program. A new rule does not set it, so there a
// change is asked about only when it goes beyond the one of the last stored rule that was opened.
TEST_F(RuleCertificates, ANewRuleIsGuardedTowardsTheCsProfileOfTheRuleOpenedBefore) {
    StartQuietly({FullRule(L"HASH")});
    Close(OpenStored(), IDCANCEL);
    const Window dialog = OpenNew();
    EXPECT_EQ(CsProfileShown(dialog), L"CS one");
    ChooseRecipients(Editor(), dialog, {kHelen});
    PostCsProfile(dialog, 1);
    SettleEditor(dialog);
    EXPECT_TRUE(dialog.IsEnabled());
    EXPECT_EQ(CsProfileShown(dialog), L"CS two");
    EXPECT_EQ(Count(dialog), L"1");
    PostCsProfile(dialog, 0);
    AnswerBox(dialog, kRecipientsQuestion, kConfirmation, IDNO);
    WaitForEditor(dialog);
    EXPECT_EQ(CsProfileShown(dialog), L"CS two");
    EXPECT_EQ(Count(dialog), L"1");
    Close(dialog, IDCANCEL);
}

TEST_F(RuleCertificates, ACsProfileThatTheProviderDoesNotKnowIsReportedAndNothingIsLost) {
    StartQuietly({FullRule(L"ENCR")});
    // The provider reads its catalogue when a cryptocontext is opened.
    DeleteRegistryKey(kCatalogueKey);
    const Window dialog = OpenStored();
    const Window report = OpenByButton(dialog, IDC_WARNING_BOX_EDIT);
    EXPECT_NE(report.Control(IDC_WARNING_BOX_EDIT).Text().find(L"Cryptocontext initialization"),
              std::wstring::npos);
    EndDialog(report, IDCANCEL);
    EXPECT_EQ(Count(dialog), L"2");
    Close(dialog, IDOK);
    EXPECT_EQ(SaveAndRead(0)[L""][L"Ext num"], RegistryData(2U));
}

}  // namespace
}  // namespace corvane::test
