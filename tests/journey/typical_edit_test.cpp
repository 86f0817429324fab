// The way of a rule from "Add rule" to the registry and back, for each operation.

#include <algorithm>

#include "tests/journey/stored_forms.h"
#include "tests/journey/typical_rules.h"
#include "tests/kit/driver/failure.h"
#include "tests/kit/fixtures/journey_fixture.h"

namespace corvane::test {
namespace {

constexpr wchar_t kProfile[] = L"Exchange";

class TypicalEdit : public JourneyTest {
  protected:
    void StartWithTwoCsProfiles() {
        WriteCatalogue({kFirstCsProfile, kSecondCsProfile});
        WriteProfile(kProfile, {kFirstCsProfile, kSecondCsProfile});
        Start();
        OpenProfile(kProfile);
    }

    /// Makes the rule in the rule editor, as a user goes through it from top to bottom.
    void Make(const TypicalRule& rule) const {
        const Window dialog = OpenNew();
        EXPECT_EQ(dialog.Text(), L"Add rule");
        ChooseEntry(dialog, IDC_RULE_OPERATION_COMBO, rule.operation);
        if (!rule.csProfile.empty()) {
            ChooseEntry(dialog, IDC_RULE_CS_PROFILE_COMBO, rule.csProfile);
        }
        SettleEditor(dialog);
        dialog.Control(IDC_RULE_DESCRIPTION_EDIT).SetText(DescriptionOf(rule));
        TypeFolders(dialog);
        for (const std::wstring& mask : rule.masks) {
            AddMaskByDialog(dialog, mask);
        }
        if (!rule.recipients.empty()) {
            ChooseRecipients(Editor(), dialog, rule.recipients);
            EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), std::to_wstring(rule.recipients.size()));
        }
        if (!rule.signerLists.empty()) {
            AddSignerLists(Editor(), dialog, rule.signerLists);
            EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), std::to_wstring(rule.signerLists.size()));
        }
        for (const auto& [control, text] : rule.typed) {
            dialog.Control(control).SetText(text);
        }
        for (const auto& [control, entry] : rule.chosen) {
            ChooseEntry(dialog, control, entry);
        }
        Close(dialog, IDOK);
    }

    void ExpectRow(int row, const TypicalRule& rule) const {
        EXPECT_EQ(Rules().Row(row), (Texts{std::to_wstring(row + 1), DescriptionOf(rule), rule.operation,
                                           kExchangeIn, rule.code == L"DELE" ? L"" : kExchangeOut,
                                           kExchangeError, rule.masksCell, rule.csProfile, rule.extraCell}));
        EXPECT_TRUE(Rules().IsChecked(row)) << "a rule that was confirmed is on";
    }

    void ExpectMadeStoredAndKept(const std::vector<TypicalRule>& rules, const Texts& refreshed) {
        StartWithTwoCsProfiles();
        for (std::size_t i = 0; i < rules.size(); ++i) {
            SCOPED_TRACE(Utf8(rules[i].operation));
            Make(rules[i]);
            ASSERT_EQ(Rules().RowCount(), static_cast<int>(i) + 1);
            ExpectRow(static_cast<int>(i), rules[i]);
        }
        const StoredTree expected =
            StoredFormOf(kProfile, ProfileValues({kFirstCsProfile, kSecondCsProfile}, L"0"), rules);

        StoredTree stored = SaveAndReadAll();
        EXPECT_EQ(TakeRefreshTimes(stored), refreshed);
        EXPECT_EQ(DifferencesOf(expected, stored), std::vector<std::string>());

        stored = ConfirmEachRuleUnchanged(kProfile);
        EXPECT_EQ(TakeRefreshTimes(stored), refreshed);
        EXPECT_EQ(DifferencesOf(expected, stored), std::vector<std::string>()) << "after a second save";
    }
};

TEST_F(TypicalEdit, RulesWithRecipientsAreMadeStoredAndKept) {
    ExpectMadeStoredAndKept(RulesWithRecipients(), {kFirstCsProfile, kSecondCsProfile});
}

TEST_F(TypicalEdit, RulesWithSignersAreMadeStoredAndKept) {
    ExpectMadeStoredAndKept(RulesWithSigners(), {kFirstCsProfile, kSecondCsProfile});
}

TEST_F(TypicalEdit, RulesWithoutCertificatesAreMadeStoredAndKept) {
    ExpectMadeStoredAndKept(RulesWithoutCertificates(), {});
}

TEST_F(TypicalEdit, EveryOperationOfTheEditorIsMade) {
    Texts made;
    for (const std::vector<TypicalRule>& rules :
         {RulesWithRecipients(), RulesWithSigners(), RulesWithoutCertificates()}) {
        for (const TypicalRule& rule : rules) {
            made.push_back(rule.operation);
        }
    }
    std::sort(made.begin(), made.end());
    StartWithTwoCsProfiles();
    const Window dialog = OpenNew();
    Texts offered = Entries(dialog.Control(IDC_RULE_OPERATION_COMBO));
    std::sort(offered.begin(), offered.end());
    EXPECT_EQ(made, offered);
    Close(dialog, IDCANCEL);
}

TEST_F(TypicalEdit, TheFirstRuleOfANewMachineIsPickedAndStored) {
    WriteCatalogue({kFirstCsProfile, kSecondCsProfile});
    Start();
    EXPECT_EQ(Profiles().Column(0), (Texts{L"default"}));
    OpenProfile(L"default");
    const Window dialog = OpenNew();
    dialog.Control(IDC_RULE_DESCRIPTION_EDIT).SetText(L"Made with Encrypt");
    Pick(dialog, IDC_RULE_INPUT_BUTTON, kExchangeIn);
    Pick(dialog, IDC_RULE_OUTPUT_BUTTON, kExchangeOut);
    Pick(dialog, IDC_RULE_ERROR_BUTTON, kExchangeError);
    EXPECT_EQ(dialog.Control(IDC_RULE_INPUT_EDIT).Text(), kExchangeIn);
    EXPECT_EQ(dialog.Control(IDC_RULE_OUTPUT_EDIT).Text(), kExchangeOut);
    EXPECT_EQ(dialog.Control(IDC_RULE_ERROR_EDIT).Text(), kExchangeError);

    dialog.Control(IDC_RULE_ADD_MASK_BUTTON).PostClick();
    const Window mask = WaitForDialogWith(Editor(), dialog, IDC_MASK_COMBO);
    ChooseEntry(mask, IDC_MASK_COMBO, L"*.p7s");
    EndDialog(mask, IDOK);

    ChooseRecipients(Editor(), dialog, {kHelenMarsh, kDanielOkafor});
    EXPECT_EQ(dialog.Control(IDC_RULE_CERT_EDIT).Text(), L"2");
    Close(dialog, IDOK);

    TypicalRule rule = RulesWithRecipients().front();
    rule.masks = {L"*.p7s"};
    rule.masksCell = L"*.p7s";
    rule.recipients = {kHelenMarsh, kDanielOkafor};
    ASSERT_EQ(Rules().RowCount(), 1);
    ExpectRow(0, rule);
    const StoredTree expected = StoredFormOf(L"default", ProfileValues({kFirstCsProfile}, L"1"), {rule});
    StoredTree stored = SaveAndReadAll();
    EXPECT_EQ(TakeRefreshTimes(stored), (Texts{kFirstCsProfile}));
    EXPECT_EQ(DifferencesOf(expected, stored), std::vector<std::string>());
    stored = ConfirmEachRuleUnchanged(L"default");
    EXPECT_EQ(TakeRefreshTimes(stored), (Texts{kFirstCsProfile}));
    EXPECT_EQ(DifferencesOf(expected, stored), std::vector<std::string>()) << "after a second save";
}

TEST_F(TypicalEdit, RecipientsComeFromTheNetworkStoreToo) {
    StartWithTwoCsProfiles();
    const Window dialog = OpenNew();
    TypeFolders(dialog);
    AddMaskByDialog(dialog, L"*");
    dialog.Control(IDC_RULE_CERT_BUTTON).PostClick();
    const Window selection = WaitForDialogWith(Editor(), dialog, IDC_SELECTION_CHOSEN_LIST);
    SearchNetworkStore(Editor(), selection, L"Organization (O)", L"lindholm*");
    TakeOwners(selection, {kMajaNyberg, kAstridLindholm});
    EndDialog(selection, IDOK);
    Close(dialog, IDOK);
    SaveAndLeave();
    const RegistryValues stored = ReadRegistryValues(RuleKey(kProfile, 0));
    EXPECT_EQ(stored.at(L"Ext num"), RegistryData(2U));
    EXPECT_EQ(stored.at(L"C0"), RegistryData(kMajaNyberg));
    EXPECT_EQ(stored.at(L"C1"), RegistryData(kAstridLindholm));
}

}  // namespace
}  // namespace corvane::test
